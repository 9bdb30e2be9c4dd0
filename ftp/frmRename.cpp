#include "ftp/frmRename.h"

#include "ftp/Conflict.h"
#include "ui_frmRename.h"

frmRename::frmRename(Session &screenSession, FtpDesk &desk, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmRename>()), m_desk(desk)
{
    m_ui->setupUi(this);
    m_ui->txtRename->setText(Conflict::nameOfTarget(desk.transfer));
    m_ui->txtRename->selectAll();
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmRename::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmRename::reject);
    opened();
}

frmRename::~frmRename() = default;

QString frmRename::newName() const
{
    return m_ui->txtRename->text();
}

void frmRename::done(int result)
{
    m_desk.transfer.bCancel = result != QDialog::Accepted;
    Screen::done(result);
}
