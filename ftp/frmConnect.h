#pragma once
#include "ftp/FtpDesk.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmConnect;
}

/// The settings of the server. While a session is open they can be looked at and not changed.
class frmConnect : public Screen {
    Q_OBJECT
public:
    /// Leaves the cancel flag of the desk set unless it ends with `cmdOK`.
    frmConnect(Session &session, FtpDesk &desk, bool bConnected, QWidget *parent);
    ~frmConnect() override;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void showSettings();
    void validate();

    std::unique_ptr<Ui::frmConnect> m_ui;
    FtpDesk &m_desk;
};
