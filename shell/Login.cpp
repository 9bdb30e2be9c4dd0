#include "shell/Login.h"

#include "data/StoreCopies.h"
#include "data/clsConnection.h"
#include "platform/Cipher.h"
#include "platform/Messages.h"
#include "shell/Causes.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString passPhrase = u"sirocco"_s;

/// Reads the user's row; his rights count even when his password is then refused, as they always have.
LoginStep checkUser(Session &session, const QString &password)
{
    // The blank before the closing quote belongs to the statement: trailing blanks do not count in comparisons.
    Reader row = session.gCnn.read(
        u"SELECT REF_USER.Num_user, login, REF_USER.Mot_passe, sDroits FROM REF_USER WHERE (((REF_USER.Login)='"_s
        + QString(session.gsLogin).replace(u"'"_s, u"''"_s) + u" '));"_s);
    if (!row.next()) {
        if (row.result())
            return LoginStep::Refused;
        if (isDamage(row.result()))
            return LoginStep::Damaged;
        session.messages->box(Causes::message(row.result(), session.localisation), u"Login/cmdOK"_s);
        return LoginStep::UsersNotRead;
    }
    if (!row.isNull(3))
        session.gsDroits = row.text(3);
    if (!row.isNull(2) && row.text(2) != password)
        return LoginStep::Refused;
    return LoginStep::Done;
}

} // namespace

QString ChercherDroit(const QString &code, const QString &gsDroits)
{
    const qsizetype found = gsDroits.indexOf(code);
    return found < 0 || gsDroits.isEmpty() ? u"/1111/"_s : gsDroits.mid(found + 3, 6);
}

const QString AdminPassword::application = u"BRAXOSOFT"_s;

QString AdminPassword::read(const SettingsStore &settings)
{
    const QString stored = settings.value(application, SettingsKey::section, u"mk"_s);
    if (stored.isEmpty() && !settings.check(application))
        return QChar(0);
    return stored.isEmpty() ? stored : Cipher::DecryptText(passPhrase, stored).value_or(stored);
}

Result AdminPassword::write(SettingsStore &settings, const QString &password)
{
    return settings.save(application, SettingsKey::section, u"mk"_s, Cipher::EncryptText(passPhrase, password));
}

LoginStep logIn(Session &session, const QString &userName, const QString &password, const QString &msAdminPW)
{
    session.gsLogin = userName.trimmed();
    session.gsPassword = password.trimmed();
    if (session.gsLogin.isEmpty())
        return LoginStep::NameMissing;
    if (session.gsPassword.isEmpty() && !msAdminPW.isEmpty())
        return LoginStep::PasswordMissing;
    const bool isAdmin = session.gsLogin.toUpper() == u"ADMIN"_s;
    if (isAdmin && msAdminPW != session.gsPassword)
        return LoginStep::AdminRefused;

    clsConnection connection(*session.messages, session.gsDbPath);
    connection.Modeconnect = u"L"_s;
    connection.sLogin = session.gsLogin;
    connection.sPassWord = session.gsPassword;
    connection.Init_connect();
    if (!connection.bLogin())
        return isDamage(connection.failure()) || !QFileInfo::exists(session.gsDbPath) ? LoginStep::Damaged
                                                                                      : LoginStep::Refused;
    session.gCnn = connection.connectdb();
    session.gsDroits.clear();
    if (!isAdmin)
        if (const LoginStep step = checkUser(session, session.gsPassword); step != LoginStep::Done)
            return step;
    if (connection.bErreur())
        return LoginStep::NoConnection;
    // The name is a convenience of the next start; a login does not fail over it.
    (void)session.saveSetting(u"NomLogin"_s, session.gsLogin);
    return LoginStep::Done;
}
