#pragma once
#include "shell/Login.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmLogin;
}

/// The gate between the start and the main window.
class frmLogin : public Screen {
    Q_OBJECT
public:
    frmLogin(Session &session, QWidget *parent);
    ~frmLogin() override;

    bool LoginSucceeded = false;

private:
    void takeStoredName();
    LoginStep attempt();
    void tryLogin();
    void refuse(const QString &text);

    std::unique_ptr<Ui::frmLogin> m_ui;
    QString m_msAdminPW;
};
