#include "platform/SettingsStore.h"

#include "platform/IniFile.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

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

Result written(QSettings &settings)
{
    settings.sync();
    if (settings.status() != QSettings::NoError)
        return {1, QStringLiteral("can't be written: ") + settings.fileName()};
    QFile::setPermissions(settings.fileName(), QFile::ReadOwner | QFile::WriteOwner);
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
    QSettings settings(fileName(application), QSettings::IniFormat);
    settings.setValue(keyOf(section, name), value);
    return written(settings);
}

Result SettingsStore::remove(const QString &application, const QString &section, const QString &name)
{
    QSettings settings(fileName(application), QSettings::IniFormat);
    settings.remove(keyOf(section, name));
    return written(settings);
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
    if (!file.remarks().isEmpty())
        return {2, QStringLiteral("not in the form of a settings file")};
    return {};
}
