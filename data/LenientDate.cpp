#include "data/LenientDate.h"

#include <QDate>
#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace {

int fullYear(int year)
{
    if (year >= 100)
        return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

bool isDayAndMonth(int a, int b, int year)
{
    return QDate::isValid(year, b, a) || QDate::isValid(year, a, b);
}

bool isMonthAndYear(int a, int b)
{
    return (a >= 1 && a <= 12 && b > 31) || (b >= 1 && b <= 12 && a > 31);
}

} // namespace

bool LenientDate::isDate(const QString &text)
{
    static const QRegularExpression form(
        u"^\\s*(\\d{1,4})\\s*([/.-])\\s*(\\d{1,4})(?:\\s*\\2\\s*(\\d{1,4}))?(?:\\s+\\d{1,2}:\\d{2}(?::\\d{2})?)?\\s*$"_s);
    static const QRegularExpression time(u"^\\s*([01]?\\d|2[0-3]):[0-5]\\d(:[0-5]\\d)?\\s*$"_s);
    if (time.match(text).hasMatch())
        return true;
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return false;
    const int a = match.captured(1).toInt();
    const int b = match.captured(3).toInt();
    if (match.captured(4).isEmpty()) {
        // "1.5" is a number, not the first of May.
        if (match.captured(2) == u"."_s)
            return false;
        return isDayAndMonth(a, b, 2000) || isMonthAndYear(a, b);
    }
    const int c = match.captured(4).toInt();
    return isDayAndMonth(a, b, fullYear(c)) || isDayAndMonth(b, c, fullYear(a));
}
