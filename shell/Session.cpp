#include "shell/Session.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

Session::Session(SettingsStore &settingsStore, const Clock &sessionClock, QString folder)
    : settings(settingsStore), clock(sessionClock), applicationFolder(std::move(folder)),
      localisation(applicationFolder)
{
}

void Session::readSettings()
{
    const auto stored = [this](const QString &name, const QString &absent) {
        const QString value = setting(name);
        return value.isEmpty() ? absent : value;
    };
    gsPays = stored(u"PAYS"_s, u"FR"_s);
    localisation.gsLangue = stored(u"LANGUE"_s, u"FR"_s);
    gsMonnaie = stored(u"MONNAIE"_s, {});
    gsDbPath = stored(u"DB"_s, applicationFolder + u"/zelvantor.mdb"_s);
    gsLogin = stored(u"NomLogin"_s, {});
}

QString Session::setting(const QString &name) const
{
    return settings.value(SettingsKey::application, SettingsKey::section, name);
}

Result Session::saveSetting(const QString &name, const QString &value)
{
    return settings.save(SettingsKey::application, SettingsKey::section, name, value);
}

QString Session::filePath(const QString &stored) const
{
    return QDir(QFileInfo(gsDbPath).absolutePath()).absoluteFilePath(stored);
}

Result AfficherInfo(Session &session)
{
    session.gInfo.clear();
    Reader rows = session.gCnn.read(u"SELECT REF_Info.idInfo, REF_Info.sInfo, REF_Info.sValeur From REF_Info "_s);
    while (rows.next()) {
        const QString value = rows.text(2);
        session.gInfo << (value.isEmpty() ? u" "_s : value);
    }
    return rows.result();
}
