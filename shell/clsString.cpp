#include "shell/clsString.h"

#include <algorithm>

namespace {

qsizetype leadingBlanks(const QString &text)
{
    qsizetype count = 0;
    while (count < text.size() && text[count] == u' ')
        ++count;
    return count;
}

qsizetype trailingBlanks(const QString &text)
{
    qsizetype count = 0;
    while (count < text.size() && text[text.size() - 1 - count] == u' ')
        ++count;
    return count;
}

} // namespace

void clsString::setWorkingString(const QString &text)
{
    m_text = text;
    m_length = text.size();
}

const QString &clsString::TrimStringRight()
{
    setWorkingString(m_text.chopped(trailingBlanks(m_text)));
    return m_text;
}

const QString &clsString::TrimStringLeft()
{
    setWorkingString(m_text.mid(leadingBlanks(m_text)));
    return m_text;
}

const QString &clsString::TrimStringBoth()
{
    TrimStringLeft();
    return TrimStringRight();
}

const QString &clsString::FindAndReplace(const QString &find, const QString &replacement)
{
    if (!find.isEmpty())
        setWorkingString(QString(m_text).replace(find, replacement));
    return m_text;
}

bool clsString::CheckInvalidCharacters(const QString &characters) const
{
    return std::any_of(characters.begin(), characters.end(), [this](QChar c) { return m_text.contains(c); });
}

const QString &clsString::Switch2Letters()
{
    QString swapped = m_text;
    for (qsizetype i = 0; i + 1 < swapped.size(); i += 2)
        std::swap(swapped[i], swapped[i + 1]);
    setWorkingString(swapped);
    return m_text;
}

const QString &clsString::ReverseLetters()
{
    QString reversed = m_text;
    std::reverse(reversed.begin(), reversed.end());
    setWorkingString(reversed);
    return m_text;
}

QStringList clsString::MakeArrayOfChrs() const
{
    QStringList letters;
    for (const QChar c : m_text)
        letters << QString(c);
    return letters;
}

QStringList clsString::strParse(const QString &separator) const
{
    return separator.isEmpty() ? QStringList{m_text} : m_text.split(separator);
}

std::vector<QString> clsString::strParse1(const QString &separator) const
{
    const QStringList pieces = strParse(separator);
    return {pieces.begin(), pieces.end()};
}
