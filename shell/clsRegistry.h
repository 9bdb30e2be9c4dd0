#pragma once
#include "platform/SettingsStore.h"

#include <QStringList>
#include <QVariant>

/// Operations on any key of any root of the registry. Here a root is an application key of the settings store
/// and a key path a section, its parts joined by "\". Key paths may begin or end with "\".
class clsRegistry {
public:
    explicit clsRegistry(SettingsStore &settings) : m_settings(settings) {}

    /// Names of the direct sub-keys; the number is 0, or 2 when the key does not exist.
    long EnumKeys(const QString &path, quint32 root, QStringList &names) const;
    /// Names of the values of a key.
    long EnumValues(const QString &path, quint32 root, QStringList &names) const;
    /// Removes a key with all its sub-keys.
    long DeleteKey(const QString &path, quint32 root);
    long DeleteValue(const QString &path, const QString &name, quint32 root);
    /// Reads a value, or gives the default when it can't be read. Texts come back as texts, numbers as
    /// numbers, binary values as byte arrays.
    void LoadValue(const QString &path, const QString &name, QVariant &value, quint32 root,
                   const QVariant &absent) const;
    /// Writes a text as a text, a number with the flag as a 32-bit number. A number without the flag goes out
    /// as binary: its low bytes, as many as its decimal text has characters.
    long SaveValue(const QString &path, const QString &name, const QVariant &value, quint32 root, bool isNumber);
    bool KeyExists(const QString &path, quint32 root) const;

    static constexpr quint32 HKEY_CURRENT_USER = 0x80000001;
    static constexpr quint32 HKEY_LOCAL_MACHINE = 0x80000002;

private:
    SettingsStore &m_settings;
};

/// A path and a root, and the texts under it.
class clsSetSettings {
public:
    explicit clsSetSettings(SettingsStore &settings) : m_registry(settings) {}

    quint32 RootKey = clsRegistry::HKEY_LOCAL_MACHINE;
    QString RegBase = QStringLiteral("SOFTWARE");
    QString MainBranch;
    QString Program;
    QString Section = QStringLiteral("Settings");

    /// The text of an entry, or `absent` when it is empty or missing.
    QString ReadEntry(const QString &name, const QString &absent) const;
    Result WriteEntry(const QString &name, const QString &value);

private:
    QString path() const;
    clsRegistry m_registry;
};
