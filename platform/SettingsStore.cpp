#include "platform/SettingsStore.h"

#include "platform/IniFile.h"
#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <algorithm>

namespace {

QString keyOf(const QString &section, const QString &name)
{
    return name.isEmpty() ? section : section + u'/' + name;
}

/// A line edited by hand may hold an unquoted comma, which the reader takes for a list.
QString asText(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", "))
                                                    : value.toString();
}

Result notWritten(const QString &path)
{
    return {1, QStringLiteral("can't be written: ") + path};
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Whether the file holds a line for every value. The library passes over a write that fails at the end of its saving.
bool isWhole(const QSettings &settings)
{
    const QByteArray bytes = bytesOf(settings.fileName());
    const QList<QByteArray> lines = bytes.split('\n');
    const auto values = std::count_if(lines.begin(), lines.end(), [](const QByteArray &line) {
        return line.contains('=') && !line.startsWith('[') && !line.startsWith(';');
    });
    return (bytes.isEmpty() || bytes.endsWith('\n')) && values == settings.allKeys().size();
}

/// Saves what has been changed; `before` is what comes back when the file can't be written whole.
Result written(QSettings &settings, const QByteArray &before)
{
    settings.sync();
    const QString path = settings.fileName();
    // An error of form tells how the file was read; it has been written all the same.
    if (settings.status() == QSettings::AccessError)
        return notWritten(path);
    if (!isWhole(settings)) {
        if (before.isEmpty())
            QFile::remove(path);
        else if (Result restored = WholeFile::replace(path, before); !restored)
            return restored;
        return notWritten(path);
    }
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    return {};
}

/// Asks for the room before the old file is touched: the settings of the library put a cut file in its place when the
/// disk fills at the end of their writing.
Result hasRoom(const QString &path, qsizetype more)
{
    QTemporaryFile probe(path + QStringLiteral(".XXXXXX"));
    if (!probe.open())
        return notWritten(path);
    const QByteArray bytes(QFileInfo(path).size() + more + 4096, ' ');
    if (probe.write(bytes) != bytes.size() || !probe.flush())
        return {1, probe.errorString()};
    return {};
}

} // namespace

QString SettingsStore::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/zelvantor");
}

QString SettingsStore::fileName(const QString &application) const
{
    return m_folder + u'/' + application + QStringLiteral(".ini");
}

QString SettingsStore::value(const QString &application, const QString &section, const QString &name,
                             const QString &absent) const
{
    const QSettings settings(fileName(application), QSettings::IniFormat);
    const QString key = keyOf(section, name);
    return settings.contains(key) ? asText(settings.value(key)) : absent;
}

bool SettingsStore::contains(const QString &application, const QString &section, const QString &name) const
{
    return QSettings(fileName(application), QSettings::IniFormat).contains(keyOf(section, name));
}

Result SettingsStore::save(const QString &application, const QString &section, const QString &name,
                           const QString &value)
{
    QDir().mkpath(m_folder);
    const QString path = fileName(application);
    constexpr qsizetype escaped = 8; // bytes that a character takes at most
    if (Result room = hasRoom(path, escaped * value.size()); !room)
        return room;
    if (Result kept = keepUnreadable(application); !kept)
        return kept;
    const QByteArray bytes = bytesOf(path);
    QSettings settings(path, QSettings::IniFormat);
    const QString key = keyOf(section, name);
    const QVariant before = settings.value(key);
    settings.setValue(key, value);
    Result result = written(settings, bytes);
    if (!result) {
        // Or the library would give what it could not write, and write it at the next chance.
        if (before.isValid())
            settings.setValue(key, before);
        else
            settings.remove(key);
    }
    return result;
}

Result SettingsStore::keepUnreadable(const QString &application) const
{
    const QString path = fileName(application);
    const QString kept = unreadableName(application);
    if (check(application) || QFile::exists(kept) || QFile::copy(path, kept))
        return {};
    return notWritten(path);
}

void SettingsStore::clearUnfinished() const
{
    QDir dir(m_folder);
    for (const QString &name : dir.entryList({QStringLiteral("*.ini.??????")}, QDir::Files)) {
        // The library holds this lock while it writes, and a lock whose holder is gone is none.
        QLockFile lock(dir.filePath(name.chopped(7)) + QStringLiteral(".lock"));
        if (lock.tryLock(0))
            dir.remove(name);
    }
}

QString SettingsStore::unreadableName(const QString &application) const
{
    const QString path = fileName(application);
    const QString first = path + QStringLiteral(".bad");
    QString name = first;
    // An earlier damage keeps its copy.
    for (int number = 2; QFile::exists(name) && bytesOf(name) != bytesOf(path); ++number)
        name = first + QString::number(number);
    return name;
}

Result SettingsStore::remove(const QString &application, const QString &section, const QString &name)
{
    if (Result kept = keepUnreadable(application); !kept)
        return kept;
    const QByteArray bytes = bytesOf(fileName(application));
    QSettings settings(fileName(application), QSettings::IniFormat);
    settings.remove(keyOf(section, name));
    return written(settings, bytes);
}

QStringList SettingsStore::sections(const QString &application, const QString &section) const
{
    QSettings settings(fileName(application), QSettings::IniFormat);
    settings.beginGroup(section);
    return settings.childGroups();
}

QStringList SettingsStore::names(const QString &application, const QString &section) const
{
    QSettings settings(fileName(application), QSettings::IniFormat);
    settings.beginGroup(section);
    return settings.childKeys();
}

Result SettingsStore::check(const QString &application) const
{
    const QString path = fileName(application);
    if (!QFile::exists(path))
        return {};
    IniFile file;
    if (Result loaded = file.load(path); !loaded)
        return loaded;
    if (!file.remarks().isEmpty() || file.isDamaged())
        return {2, QStringLiteral("not in the form of a settings file")};
    return {};
}
