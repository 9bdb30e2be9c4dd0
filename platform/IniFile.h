#pragma once
#include "platform/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

/// An initialisation file: sections in square brackets, lines of key and value, UTF-8. Section and key names
/// count without regard to case. Order and comments are kept on writing.
class IniFile {
public:
    IniFile();
    ~IniFile();
    IniFile(IniFile &&) noexcept;

    /// Reads a file. A missing or unreadable one fails and leaves the object empty. A file that is not UTF-8 is
    /// read in the 8-bit code page, a line that is neither section, comment nor "key=value" says nothing and is kept;
    /// `remarks` names both.
    Result load(const QString &path);
    /// Writes the whole file, atomically.
    Result save(const QString &path) const;

    /// The value as it stands, trailing blanks included; an empty text when there is none.
    QString value(const QString &section, const QString &key) const;
    /// A value is one line; line breaks become blanks. Blanks before it are not kept.
    void setValue(const QString &section, const QString &key, const QString &value);
    /// The keys of a section in the order of the file.
    QStringList keys(const QString &section) const;
    /// What was wrong with the file last loaded, one line each.
    const QStringList &remarks() const { return m_remarks; }
    /// Whether the file holds bytes that no text does; written back it would not be the same.
    bool isDamaged() const { return m_damaged; }

private:
    struct Content;
    std::unique_ptr<Content> m_content;
    QStringList m_remarks;
    bool m_damaged = false;
};
