#include "platform/ColumnWidths.h"

QString ColumnWidths::toText(const QList<int> &widths)
{
    QString text;
    for (const int width : widths)
        text += QString::number(width) + u'|';
    return text;
}

QList<int> ColumnWidths::fromText(const QString &text)
{
    QList<int> widths;
    if (text.isEmpty())
        return widths;
    const QStringView parts = text.endsWith(u'|') ? QStringView(text).chopped(1) : QStringView(text);
    for (const QStringView part : parts.split(u'|')) {
        bool isNumber = false;
        const int width = part.toInt(&isNumber);
        widths << (isNumber ? width : -1);
    }
    return widths;
}
