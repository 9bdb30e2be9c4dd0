#include "platform/OneLine.h"

QString oneLine(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar &c : text)
        if (c == u'\n' || c == u'\r' || c == u'\t' || c == u'\v' || c == u'\f' || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator || c == QChar(0x85))
            c = u' ';
    return text.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
}
