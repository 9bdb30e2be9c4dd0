#include "reference/TranslationRule.h"

#include <QStringList>

using namespace Qt::StringLiterals;

bool mayTranslate(const QString &section, const QString &key, const QString &text)
{
    static const QStringList languageTabs = {u"120"_s,      u"121"_s,      u"122"_s,      u"123"_s,
                                             u"124"_s,      u"125"_s,      u"SSTab1_0"_s, u"SSTab1_1"_s,
                                             u"SSTab1_2"_s, u"SSTab1_3"_s, u"SSTab1_4"_s, u"SSTab1_5"_s};
    return section != u"ARTICLE"_s || !languageTabs.contains(key) || u"FRENNLDEITES"_s.contains(text);
}
