#include "ftp/frmTransfer.h"

#include "ftp/Conflict.h"
#include "ftp/frmRename.h"
#include "ui_frmTransfer.h"

frmTransfer::frmTransfer(Session &screenSession, FtpDesk &desk, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmTransfer>())
{
    m_ui->setupUi(this);
    TransferVariables &transfer = desk.transfer;
    Conflict::opened(transfer);
    m_ui->lblMessage->setText(Conflict::message(transfer));
    m_ui->cmdResume->setEnabled(Conflict::canResume(transfer, desk.bRestartSupported));
    const auto choose = [this, &transfer](QPushButton *button, void (*choice)(TransferVariables &)) {
        connect(button, &QPushButton::clicked, this, [this, &transfer, choice] {
            choice(transfer);
            accept();
        });
    };
    choose(m_ui->cmdTransfer, &Conflict::overwrite);
    choose(m_ui->cmdResume, &Conflict::resume);
    choose(m_ui->cmdRename, &Conflict::rename);
    choose(m_ui->cmdCancel, &Conflict::cancel);
    connect(m_ui->chkSelectedAll, &QCheckBox::toggled, this,
            [&transfer](bool ticked) { Conflict::applyToAll(transfer, ticked); });
    opened();
    setWindowTitle(Conflict::caption(transfer));
}

frmTransfer::~frmTransfer() = default;

void frmTransfer::ask(Session &session, FtpDesk &desk, RemoteBrowser &remote, QWidget *parent)
{
    for (;;) {
        frmTransfer(session, desk, parent).exec();
        if (!desk.transfer.bRenamed)
            return;
        frmRename rename(session, desk, parent);
        if (rename.exec() != QDialog::Accepted || Conflict::renameTarget(desk, remote, rename.newName()))
            return;
    }
}
