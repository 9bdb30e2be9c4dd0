#include "platform/NumberValidator.h"

#include <algorithm>

namespace {

constexpr qsizetype mostDigits = 9; // before the point, so that a whole number always fits 32 bits

bool areDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

QValidator::State NumberValidator::validate(QString &input, int &position) const
{
    input.replace(u',', u'.');
    input.removeIf([](QChar c) { return c.isSpace(); });
    position = std::min(position, int(input.size()));
    const qsizetype point = input.indexOf(u'.');
    const QStringView whole = QStringView(input).left(point < 0 ? input.size() : point);
    const QStringView rest = point < 0 ? QStringView() : QStringView(input).mid(point + 1);
    if (!areDigits(whole) || !areDigits(rest) || whole.size() > mostDigits || rest.size() > m_decimals
        || (point >= 0 && m_decimals == 0))
        return Invalid;
    return point >= 0 && whole.isEmpty() && rest.isEmpty() ? Intermediate : Acceptable;
}

void NumberValidator::admit(const QString &text)
{
    if (const qsizetype point = text.indexOf(u'.'); point >= 0)
        m_decimals = std::max(m_decimals, int(text.size() - point - 1));
}

QString NumberValidator::tidy(const QString &text)
{
    if (text.startsWith(u'.'))
        return u'0' + text;
    return text.endsWith(u'.') ? text.chopped(1) : text;
}
