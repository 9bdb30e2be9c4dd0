#include "shell/frmLogin.h"

#include "platform/Messages.h"
#include "shell/BuiltInTexts.h"
#include "shell/Login.h"
#include "shell/StoreUpkeep.h"
#include "ui_frmLogin.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// The name of the user who is logged in to the system.
QString systemUser()
{
    const QString name = qEnvironmentVariable("USER");
    return name.isEmpty() ? qEnvironmentVariable("USERNAME") : name;
}

} // namespace

frmLogin::frmLogin(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmLogin>())
{
    m_ui->setupUi(this);
    if (session().gbPremierLancement) {
        m_ui->txtUserName->setText(session().gsLogin);
        m_ui->txtPassword->setFocus();
    } else {
        m_msAdminPW = AdminPassword::read(session().settings);
        takeStoredName();
    }
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmLogin::tryLogin);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmLogin::reject);
    opened();
}

frmLogin::~frmLogin() = default;

void frmLogin::takeStoredName()
{
    QString name = session().setting(u"NomLogin"_s);
    if (name.isEmpty())
        name = systemUser();
    m_ui->txtUserName->setText(name);
    if (name.isEmpty()) {
        m_ui->txtUserName->setFocus();
        return;
    }
    setTabOrder(m_ui->txtPassword, m_ui->cmdOK);
    setTabOrder(m_ui->cmdOK, m_ui->cmdCancel);
    setTabOrder(m_ui->cmdCancel, m_ui->txtUserName);
    m_ui->txtPassword->setFocus();
}

LoginStep frmLogin::attempt()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const LoginStep step = logIn(session(), m_ui->txtUserName->text(), m_ui->txtPassword->text(), m_msAdminPW);
    QApplication::restoreOverrideCursor();
    return step;
}

void frmLogin::tryLogin()
{
    LoginStep step = attempt();
    if (step == LoginStep::Damaged)
        session().gCnn = Connection(); // that of an attempt before
    if (step == LoginStep::Done || step == LoginStep::Damaged)
        if (const Result damage = StoreUpkeep::damageOf(session()); !damage)
            if (StoreUpkeep::offerSoundCopy(session(), damage))
                step = attempt();
    LoginSucceeded = step == LoginStep::Done;
    switch (step) {
    case LoginStep::Done:
        StoreUpkeep::keepDailyCopies(session());
        LoginSucceeded = StoreUpkeep::carryForward(session());
        if (LoginSucceeded)
            accept();
        break;
    case LoginStep::NameMissing:
        session().messages->box(u"Please fill the login "_s, u"QUILMARDOT/Login"_s);
        m_ui->txtUserName->setFocus();
        break;
    case LoginStep::PasswordMissing:
        session().messages->alert(BuiltInTexts::text(2026));
        m_ui->txtPassword->setFocus();
        break;
    case LoginStep::AdminRefused:
        session().messages->alert(BuiltInTexts::text(2027));
        m_ui->txtPassword->setFocus();
        break;
    case LoginStep::Refused:
    case LoginStep::Damaged:
        refuse(u"Login or Password is invalid !"_s);
        break;
    case LoginStep::UsersNotRead:
        m_ui->txtPassword->setFocus();
        break;
    case LoginStep::NoConnection:
        session().messages->box(u"Problème de connection"_s, u"ZELVANTOR"_s);
        break;
    }
}

void frmLogin::refuse(const QString &text)
{
    session().messages->box(text, u"ZELVANTOR"_s);
    m_ui->txtPassword->selectAll();
    m_ui->txtPassword->setFocus();
}
