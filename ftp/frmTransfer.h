#pragma once
#include "ftp/FtpDesk.h"
#include "ftp/RemoteBrowser.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmTransfer;
}

/// The target of a transfer is already there: overwrite it, resume, move it out of the way, or skip.
class frmTransfer : public Screen {
    Q_OBJECT
public:
    frmTransfer(Session &session, FtpDesk &desk, QWidget *parent);
    ~frmTransfer() override;

    /// Opens the dialogue, and the one for a new name, until there is an answer in the transfer variables.
    static void ask(Session &session, FtpDesk &desk, RemoteBrowser &remote, QWidget *parent);

private:
    std::unique_ptr<Ui::frmTransfer> m_ui;
};
