#pragma once
#include "shell/Screen.h"

#include <memory>
#include <vector>

class QComboBox;
namespace Ui {
class frmPays;
}

/// Country, language and currency of the installation.
class frmPays : public Screen {
    Q_OBJECT
public:
    frmPays(Session &session, QWidget *parent);
    ~frmPays() override;

private:
    void fill(QComboBox &list, const QString &statement, std::vector<QString> &keys, const QString &selected);
    void validate();

    std::unique_ptr<Ui::frmPays> m_ui;
    std::vector<QString> m_colPays;
    std::vector<QString> m_colLangue;
    std::vector<QString> m_colMonnaie;
};
