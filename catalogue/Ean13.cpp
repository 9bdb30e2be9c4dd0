#include "catalogue/Ean13.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int payload = 12;

bool isDigits(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

QString Ean13::CalculerCD(QString &code)
{
    if (isDigits(code))
        code = code.rightJustified(payload, u'0');
    int sum = 0;
    for (qsizetype i = 0; i < code.size(); ++i) {
        const int digit = code[i] >= u'0' && code[i] <= u'9' ? code[i].digitValue() : 0;
        sum += i % 2 == 0 ? digit : 3 * digit;
    }
    return QString::number((10 - sum % 10) % 10);
}

QString Ean13::fromReference(const QString &reference)
{
    const QString digits = QString(reference).replace(u'/', u'0');
    QString code = QString(u'1' + digits.right(payload - 1)).trimmed();
    const QString check = CalculerCD(code);
    return code.trimmed() + check;
}

bool Ean13::isValid(const QString &code)
{
    QString front = code.left(payload);
    return code.size() == payload + 1 && isDigits(code) && CalculerCD(front) == code.right(1);
}
