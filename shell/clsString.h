#pragma once
#include <QString>
#include <QStringList>
#include <vector>

/// A small wrapper around one working string.
class clsString {
public:
    /// Each trims the working string and returns it.
    const QString &TrimStringRight();
    const QString &TrimStringBoth();
    const QString &TrimStringLeft();

    const QString &WorkingString() const { return m_text; }
    void setWorkingString(const QString &text);
    qsizetype StringLength() const { return m_length; }

    /// Replaces every occurrence, comparing exactly; returns the new text. An empty `find` changes nothing.
    const QString &FindAndReplace(const QString &find, const QString &replacement);
    /// The number of characters of a text, or of elements of an array.
    static qsizetype Length(const QString &text) { return text.size(); }
    static qsizetype Length(const QStringList &array) { return array.size(); }
    /// Whether the working string holds one of the characters.
    bool CheckInvalidCharacters(const QString &characters) const;
    /// Swaps neighbouring letters in pairs; a last single letter stays. Returns the new text.
    const QString &Switch2Letters();
    const QString &ReverseLetters();
    QStringList MakeArrayOfChrs() const;
    /// The pieces between separators, empty ones kept; an empty separator gives the whole as one piece.
    QStringList strParse(const QString &separator) const;
    std::vector<QString> strParse1(const QString &separator) const;

private:
    QString m_text;
    qsizetype m_length = 0;
};
