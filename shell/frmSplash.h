#pragma once
#include <QWidget>
#include <memory>

namespace Ui {
class frmSplash;
}

/// Shown while the main window loads. It takes no input.
class frmSplash : public QWidget {
    Q_OBJECT
public:
    explicit frmSplash(QWidget *parent = nullptr);
    ~frmSplash() override;

private:
    std::unique_ptr<Ui::frmSplash> m_ui;
};
