#include "ftp/frmConnect.h"

#include "platform/Messages.h"
#include "ui_frmConnect.h"

#include <QTimer>

using namespace Qt::StringLiterals;

frmConnect::frmConnect(Session &screenSession, FtpDesk &desk, bool bConnected, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmConnect>()), m_desk(desk)
{
    m_ui->setupUi(this);
    m_desk.transfer.bCancel = true;
    for (QWidget *field :
         std::initializer_list<QWidget *>{m_ui->txtRemoteHost, m_ui->txtUserName, m_ui->txtPassword, m_ui->txtRemoteDir,
                                          m_ui->txtRemotePort, m_ui->chkPassive, m_ui->txtTimeout, m_ui->cbTls})
        field->setEnabled(!bConnected);
    for (QLineEdit *field : {m_ui->txtRemoteHost, m_ui->txtUserName, m_ui->txtPassword, m_ui->txtRemoteDir})
        field->installEventFilter(this);
    m_ui->lstTransferType->addItems({u"Binary"_s, u"Ascii"_s, u"EBCIDIC"_s});
    opened();
    const QStringList tls = {u"Automatique"_s, u"Toujours"_s, u"Jamais"_s};
    for (int mode = 0; mode < tls.size(); ++mode) {
        const QString text = session().localisation.Traduire(u"CONNECT"_s, u"tls"_s + QString::number(mode));
        m_ui->cbTls->addItem(text.isEmpty() ? tls[mode] : text);
    }
    showSettings();
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmConnect::validate);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmConnect::reject);
}

frmConnect::~frmConnect() = default;

/// A field shows its whole text selected when it gets the focus, by the mouse too.
bool frmConnect::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        if (auto *field = qobject_cast<QLineEdit *>(object))
            QTimer::singleShot(0, field, &QLineEdit::selectAll);
    return Screen::eventFilter(object, event);
}

void frmConnect::showSettings()
{
    const FtpSettings &settings = m_desk.settings;
    m_ui->txtRemoteHost->setText(settings.RemoteHost);
    m_ui->txtUserName->setText(settings.UserName);
    m_ui->txtPassword->setText(settings.Password);
    m_ui->txtRemoteDir->setText(settings.RemoteDir);
    m_ui->txtRemotePort->setText(QString::number(settings.RemotePort));
    m_ui->txtTimeout->setText(QString::number(settings.Timeout));
    m_ui->lstTransferType->setCurrentText(FtpSettings::typeName(settings.TransferType));
    m_ui->chkPassive->setChecked(settings.Passive);
    m_ui->cbTls->setCurrentIndex(int(settings.Tls));
}

void frmConnect::validate()
{
    FtpSettings settings = m_desk.settings;
    m_desk.transfer.bCancel = false;
    if (!settings.takeTimeout(m_ui->txtTimeout->text())) {
        session().messages->box(FtpSettings::timeoutWarning, FtpSettings::application);
        m_desk.transfer.bCancel = true;
        m_ui->txtTimeout->setFocus();
        return;
    }
    settings.RemoteHost = m_ui->txtRemoteHost->text();
    settings.UserName = m_ui->txtUserName->text();
    settings.Password = m_ui->txtPassword->text();
    settings.RemoteDir = m_ui->txtRemoteDir->text();
    settings.takePort(m_ui->txtRemotePort->text());
    settings.TransferType = FtpSettings::typeFromName(m_ui->lstTransferType->currentText());
    settings.Passive = m_ui->chkPassive->isChecked();
    settings.Tls = FtpTls(m_ui->cbTls->currentIndex());
    m_desk.settings = settings;
    // The session can go on with settings that could not be kept.
    if (const Result saved = settings.save(session().settings); !saved)
        session().messages->box(saved.message(), FtpSettings::application);
    accept();
}
