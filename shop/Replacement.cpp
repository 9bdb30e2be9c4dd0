#include "shop/Replacement.h"

QString applyReplacements(QString text, const std::vector<Replacement> &steps)
{
    for (const Replacement &step : steps)
        text.replace(step.placeholder, step.value);
    return text;
}

QString toDoubleQuotes(QString text)
{
    return text.replace(u'\'', u'"');
}

QString quoteRule(QString text)
{
    for (QChar &c : text) {
        if (c == u'\'')
            c = u'"';
        else if (c == u'@')
            c = u'\'';
    }
    return text;
}

QString withoutApostrophes(QString text)
{
    return text.remove(u'\'');
}

QString withoutQuotes(QString text)
{
    return text.removeIf([](QChar c) { return c == u'\'' || c == u'"'; });
}
