#pragma once
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmPW;
}

/// Changes the administrator's password.
class frmPW : public Screen {
    Q_OBJECT
public:
    frmPW(Session &session, QWidget *parent);
    ~frmPW() override;

private:
    void change();
    void refuse(int text, class QLineEdit &field);

    std::unique_ptr<Ui::frmPW> m_ui;
    QString m_msAdminPW;
};
