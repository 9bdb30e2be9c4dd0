#include "ftp/frmCertificate.h"

#include "ui_frmCertificate.h"

#include <QLocale>

using namespace Qt::StringLiterals;

frmCertificate::frmCertificate(Session &screenSession, const FtpCertificate &certificate, bool changed, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmCertificate>())
{
    m_ui->setupUi(this);
    opened();
    m_ui->lbInconnu->setVisible(!changed);
    m_ui->lbChange->setVisible(changed);
    const QString day = u"dd/MM/yyyy"_s;
    m_ui->txtHote->setText(certificate.host);
    m_ui->txtNom->setText(certificate.subject);
    m_ui->txtEmetteur->setText(certificate.issuer);
    m_ui->txtDates->setText(certificate.from.toString(day) + u" - "_s + certificate.until.toString(day));
    m_ui->txtEmpreinte->setPlainText(certificate.fingerprint);
    m_ui->txtRaison->setText(session().localisation.textOr(
        u"CERTIF"_s, u'r' + QString::number(certificate.reasonNumber), certificate.reason));
    connect(m_ui->cmdSession, &QPushButton::clicked, this, &frmCertificate::accept);
    connect(m_ui->cmdToujours, &QPushButton::clicked, this, [this] {
        m_forGood = true;
        accept();
    });
    connect(m_ui->cmdRefuser, &QPushButton::clicked, this, &frmCertificate::reject);
}

frmCertificate::~frmCertificate() = default;
