#include "shell/ApplicationFolder.h"

#include "platform/WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

const QStringList textFiles = {u"accueil.txt"_s, u"modalite.txt"_s, u"expedition.txt"_s,
                               u"privacy.txt"_s, u"keyword.txt"_s,  u"des.txt"_s};

Result copyWhole(const QString &from, const QString &to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return {1, from + u": "_s + source.errorString()};
    const QByteArray bytes = source.readAll();
    if (WholeFile::holds(to, bytes))
        return {};
    QDir().mkpath(QFileInfo(to).absolutePath());
    return WholeFile::write(to, bytes);
}

/// What a newer version may replace.
bool isOwnedByProgram(const QString &name)
{
    return name.startsWith(u"img/"_s) || name.contains(u"/img/"_s) || name.endsWith(u".pdf"_s);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A layout may have been changed by its user, and then stays until a version brings another one. So what was
/// delivered last lies beside it, and what is replaced though it was changed is kept.
Result refreshLayout(const QString &from, const QString &to)
{
    const QString last = QFileInfo(to).path() + u"/.delivered/"_s + QFileInfo(to).fileName();
    const bool isThere = QFileInfo::exists(to);
    if (isThere && WholeFile::holds(last, contentOf(from)))
        return {};
    if (isThere && !WholeFile::holds(to, contentOf(last)) && !WholeFile::holds(to, contentOf(from))) {
        QFile::remove(to + u".bak"_s);
        QFile::copy(to, to + u".bak"_s);
    }
    if (Result copied = copyWhole(from, to); !copied)
        return copied;
    return copyWhole(from, last);
}

/// What a killed program left half written, beside what it was to be.
void clearTemporaries(const QString &folder)
{
    WholeFile::clearTemporaries(folder);
    QDirIterator folders(folder, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (folders.hasNext())
        WholeFile::clearTemporaries(folders.next());
}

} // namespace

QString ApplicationFolder::delivered()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/zelvantor"_s);
}

QString ApplicationFolder::user()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString ApplicationFolder::sample(const QString &applicationFolder)
{
    return applicationFolder + u"/sample"_s;
}

Result ApplicationFolder::fill(const QString &deliveredFolder, const QString &applicationFolder)
{
    Result first;
    const QDir from(deliveredFolder);
    clearTemporaries(applicationFolder);
    QDirIterator files(deliveredFolder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString name = from.relativeFilePath(path);
        const QString target = applicationFolder + u'/' + name;
        const bool isLayout = name.endsWith(u".tpl"_s);
        if (name.endsWith(u".stamp"_s) || (QFileInfo::exists(target) && !isLayout && !isOwnedByProgram(name)))
            continue;
        if (const Result copied = isLayout ? refreshLayout(path, target) : copyWhole(path, target); first && !copied)
            first = copied;
    }
    return first;
}

Result ApplicationFolder::takeSampleSettings(Session &session)
{
    const QString folder = sample(session.applicationFolder);
    const SettingsStore taken(folder + u"/settings"_s);
    Result first;
    for (const QString &name : taken.names(SettingsKey::application, SettingsKey::section)) {
        if (session.settings.contains(SettingsKey::application, SettingsKey::section, name) || name == u"NomLogin"_s)
            continue;
        const QString value = taken.value(SettingsKey::application, SettingsKey::section, name);
        if (const Result saved = session.saveSetting(name, value); first && !saved)
            first = saved;
    }
    for (const QString &name : textFiles) {
        const QString target = session.applicationFolder + u'/' + name;
        if (QFileInfo(target).size() > 0)
            continue;
        if (const Result copied = copyWhole(folder + u'/' + name, target); first && !copied)
            first = copied;
    }
    return first;
}
