#pragma once
#include "platform/Result.h"

#include <QString>
#include <QStringList>

/// The user's settings: three levels of names (application key, section, value), strings only. One file per
/// application key, `<folder>/<application>.ini`, UTF-8, readable by its owner alone.
class SettingsStore {
public:
    explicit SettingsStore(QString folder) : m_folder(std::move(folder)) {}

    /// The folder `zelvantor` in the user's configuration folder.
    static QString userFolder();

    const QString &folder() const { return m_folder; }
    QString fileName(const QString &application) const;

    QString value(const QString &application, const QString &section, const QString &name,
                  const QString &absent = {}) const;
    bool contains(const QString &application, const QString &section, const QString &name) const;
    /// Writes at once and whole; on failure the old file and the old value stay. A file that can't be read as a whole
    /// is kept under its `unreadableName` first.
    Result save(const QString &application, const QString &section, const QString &name, const QString &value);
    /// Removes a value, or with an empty name the whole section.
    Result remove(const QString &application, const QString &section, const QString &name);
    /// The sections directly below a section, and the names of the values of a section.
    QStringList sections(const QString &application, const QString &section) const;
    QStringList names(const QString &application, const QString &section) const;
    /// Whether the file of an application key can be read; a file that does not exist can.
    Result check(const QString &application) const;
    QString unreadableName(const QString &application) const;
    /// Removes what a program that was killed while it saved has left beside the files.
    void clearUnfinished() const;

private:
    Result keepUnreadable(const QString &application) const;

    QString m_folder;
};

/// The application keys and the section under which the program keeps its own settings.
namespace SettingsKey {
inline const QString application = QStringLiteral("DORNELIQUE");
inline const QString section = QStringLiteral("ZELVANTOR");
} // namespace SettingsKey
