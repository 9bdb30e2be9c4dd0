#include "shop/ShopLanguage.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

std::vector<Language> readLanguages(Connection &connection, Result &result)
{
    std::vector<Language> languages;
    Reader rows = connection.read(u"SELECT * FROM REF_LANGUE_U ORDER BY LANGUE"_s);
    if (rows.result() && rows.columnCount() < 2) {
        result = {1, u"REF_LANGUE_U lacks a column"_s};
        return {};
    }
    while (rows.next())
        if (!rows.isNull(0))
            languages.push_back({rows.text(0), rows.text(1)});
    result = rows.result();
    return languages;
}

ShopLanguage ShopLanguage::choose(const std::vector<Language> &languages, const QString &storedCode,
                                  const QString &sessionLanguage)
{
    constexpr size_t firstSelected = 3;
    const Language *selected = nullptr;
    if (languages.size() > firstSelected)
        selected = &languages[firstSelected];
    ShopLanguage language;
    language.sLangueHtm = storedCode.isEmpty() ? sessionLanguage : storedCode;
    for (const Language &entry : languages)
        if (entry.code == language.sLangueHtm)
            selected = &entry;
    language.gsLangueCatalogue = selected ? selected->code : sessionLanguage;
    language.name = selected ? selected->name : QString();
    return language;
}

QString languageScript(const QString &code)
{
    // "ge" and "sp" are how the scripts have always been called.
    static const std::array<std::pair<QString, QString>, 6> scripts = {{
        {u"FR"_s, u"language-fr.js"_s},
        {u"EN"_s, u"language-en.js"_s},
        {u"DE"_s, u"language-ge.js"_s},
        {u"NL"_s, u"language-nl.js"_s},
        {u"IT"_s, u"language-it.js"_s},
        {u"ES"_s, u"language-sp.js"_s},
    }};
    for (const auto &[scriptCode, name] : scripts)
        if (scriptCode == code)
            return name;
    return {};
}
