#include "shell/Main.h"

#include "data/DataSource.h"
#include "data/clsConnection.h"
#include "platform/Messages.h"
#include "shell/Causes.h"
#include "shell/Login.h"
#include "shell/OneProgram.h"
#include "shell/ToolkitTexts.h"
#include "shell/frmDbPath.h"
#include "shell/frmLogin.h"
#include "shell/frmMain.h"
#include "shell/frmPays.h"
#include "shell/frmSplash.h"

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// The first start asks for country, language and currency, over the delivered store. False when there is none.
bool askRegionalSettings(Session &session)
{
    session.gsLogin = u"admin"_s;
    session.gsPassword.clear();
    session.gbPremierLancement = true;
    clsConnection connection(*session.messages, session.gsDbPath);
    connection.Modeconnect = u"L"_s;
    connection.sLogin = session.gsLogin;
    connection.sPassWord = session.gsPassword;
    connection.Init_connect();
    if (!connection.bLogin()) {
        session.messages->box(u"Database access failed"_s, u"ZELVANTOR"_s);
        session.gCnn = Connection();
        return false;
    }
    session.gCnn = connection.connectdb();
    frmPays(session, nullptr).exec();
    session.gCnn = Connection();
    return true;
}

/// Once at the start, and not at each reading: what could not be read is gone with the next saving.
void tellUnreadableSettings(const Session &session)
{
    const SettingsStore &settings = session.settings;
    const auto tell = [&](const QString &key, const QString &application) {
        if (settings.check(application))
            return;
        QString text = session.localisation.textOr(u"RUN"_s, key, u"Fichier de réglages illisible : %1"_s);
        text.replace(u"%1"_s, settings.fileName(application)).replace(u"%2"_s, settings.unreadableName(application));
        session.messages->box(text, u"ZELVANTOR"_s);
    };
    tell(u"bad"_s, SettingsKey::application);
    tell(u"secret"_s, AdminPassword::application);
}

bool readRegionalSettings(Session &session)
{
    session.gbPremierLancement = false;
    session.gsDbPath = session.applicationFolder + u"/zelvantor.mdb"_s;
    session.gsPays = session.setting(u"PAYS"_s);
    const QString language = session.setting(u"LANGUE"_s);
    session.gsMonnaie = session.setting(u"MONNAIE"_s);
    if (!language.isEmpty())
        session.localisation.gsLangue = language;
    tellUnreadableSettings(session);
    const bool complete = !session.gsMonnaie.isEmpty() && !language.isEmpty() && !session.gsPays.isEmpty();
    if (!complete && !askRegionalSettings(session))
        return false;
    if (session.gsPays.isEmpty()) {
        session.gsPays = u"FR"_s;
        session.localisation.gsLangue = u"FR"_s;
    }
    return true;
}

bool findStore(Session &session)
{
    session.gsDbPath = session.setting(u"DB"_s);
    session.gbValider = true;
    if (session.gsDbPath.isEmpty())
        frmDbPath(session, nullptr).exec();
    return session.gbValider;
}

/// The program that holds the store comes to the front in the place of this one.
void callOther(const OneProgram &other, const Session &session)
{
    if (other.callHolder())
        return;
    session.messages->box(
        session.localisation.textOr(u"RUN"_s, u"running"_s, u"ZELVANTOR est déjà ouvert sur cette base de données."_s),
        u"ZELVANTOR"_s);
}

/// The orderly end: the main window is gone when the timer fires, and nothing is left to wait for.
void endWithTimer()
{
    QTimer::singleShot(100, qApp, [] { QApplication::exit(0); });
}

} // namespace

std::unique_ptr<frmMain> Main(Session &session)
{
    if (!readRegionalSettings(session))
        return nullptr;
    ToolkitTexts::load(session.localisation.gsLangue);
    if (const Result registered = registerDataSource(session.settings, QString()); !registered)
        session.messages->box(Causes::message(registered, session.localisation), u"ZELVANTOR"_s);
    if (!findStore(session))
        return nullptr;
    auto program = std::make_unique<OneProgram>(session.gsDbPath);
    if (!program->claim()) {
        callOther(*program, session);
        return nullptr;
    }
    QObject::connect(program.get(), &OneProgram::called, qApp, bringToFront);
    {
        frmLogin login(session, nullptr);
        login.exec();
        if (!login.LoginSucceeded)
            return nullptr;
    }
    if (session.gCnn.isReadOnly()) {
        session.messages->box(
            session.localisation.textOr(u"RUN"_s, u"readonly"_s,
                                        u"Le catalogue est en lecture seule : rien ne sera enregistré."_s),
            u"ZELVANTOR"_s);
    }
    frmSplash splash;
    splash.show();
    splash.repaint();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    auto window = std::make_unique<frmMain>(session);
    program.release()->setParent(window.get());
    QObject::connect(window.get(), &frmMain::ended, qApp, endWithTimer);
    splash.close();
    window->show();
    return window;
}
