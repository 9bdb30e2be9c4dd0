#include "shop/Traduction.h"

using namespace Qt::StringLiterals;

Traduction Traduction::read(const Localisation &localisation)
{
    static const QStringList keys = {u"21"_s, u"22"_s, u"23"_s, u"28"_s, u"33"_s, u"34"_s, u"50"_s, u"57"_s, u"60"_s,
                                     u"63"_s, u"65"_s, u"66"_s, u"67"_s, u"69"_s, u"70"_s, u"71"_s, u"78"_s, u"m1"_s,
                                     u"m2"_s, u"m3"_s, u"m4"_s, u"m5"_s, u"m6"_s, u"m7"_s, u"m8"_s, u"m9"_s};
    QHash<QString, QString> words;
    for (const QString &key : keys)
        words.insert(key, localisation.Traduire(u"CATALOG"_s, key));
    return Traduction(words);
}
