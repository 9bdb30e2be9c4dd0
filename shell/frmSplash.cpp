#include "shell/frmSplash.h"

#include "shell/BuiltInTexts.h"
#include "shell/Skin.h"
#include "ui_frmSplash.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

frmSplash::frmSplash(QWidget *parent) : QWidget(parent, Qt::SplashScreen), m_ui(std::make_unique<Ui::frmSplash>())
{
    m_ui->setupUi(this);
    for (QLabel *label : findChildren<QLabel *>()) {
        const QString text = BuiltInTexts::text(label->property("Tag").toInt());
        if (!text.isEmpty())
            label->setText(text);
    }
    m_ui->lblVersion->setText(u"Version "_s + QCoreApplication::applicationVersion());
    m_ui->lbNom->setText(u"ZELVANTOR"_s);
    m_ui->lblPlatform->setText(QSysInfo::prettyProductName());
    m_ui->imgLogo->setPixmap(Skin::icon(u"zelvantor"_s).pixmap(72, 72));
    m_ui->fr2->setVisible(true);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

frmSplash::~frmSplash() = default;
