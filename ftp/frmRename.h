#pragma once
#include "ftp/FtpDesk.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmRename;
}

/// A new name for the file that is in the way of a transfer.
class frmRename : public Screen {
    Q_OBJECT
public:
    /// Leaves the cancel flag of the desk set unless it ends with `cmdOK`.
    frmRename(Session &session, FtpDesk &desk, QWidget *parent);
    ~frmRename() override;

    QString newName() const;
    void done(int result) override;

private:
    std::unique_ptr<Ui::frmRename> m_ui;
    FtpDesk &m_desk;
};
