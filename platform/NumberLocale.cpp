#include "platform/NumberLocale.h"

QString NumberLocale::toText(double value) const
{
    return QString::number(value, 'g', 15).replace(u'.', m_decimalMark);
}

double NumberLocale::toNumber(const QString &text) const
{
    QString plain = text.trimmed();
    if (m_decimalMark != u'.')
        plain.replace(m_decimalMark, u'.');
    bool isNumber = false;
    const double value = plain.toDouble(&isNumber);
    return isNumber ? value : 0.0;
}
