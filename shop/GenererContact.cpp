#include "shop/GenererContact.h"

#include "shop/GrilleModeles.h"
#include "shop/PageParts.h"

using namespace Qt::StringLiterals;

namespace {

/// Position 8 stands twice: the last line has always repeated the fax number.
QString addressBlock(const ShopData &data)
{
    QString block = PageParts::lines({
        data.words(u"63"_s) + u": "_s,
        data.info(1) + u"<br>"_s,
        u"<br>"_s + data.info(2),
        u"<br>"_s + data.info(3),
        u"<br>"_s + data.info(4) + u" - "_s + data.info(5),
        u"<br>"_s,
        u"<br>"_s + data.info(7),
        u"<br>Fax: "_s + data.info(8),
        u"<br>Email: "_s + data.info(9),
    });
    block += u"<br>"_s + data.info(8) + u"\n\n"_s;
    return block;
}

} // namespace

std::vector<Page> GenererContact(const ShopData &data)
{
    const QString base = applyReplacements(
        applyReplacements(GrilleModeles::text(2, 1), PageParts::banner(data.settings)),
        PageParts::head(data, {u"[generated]"_s, u"[titre]"_s, u"[KEYWORD]"_s, u"[DESCRIPTION]"_s, u"[TAGLNG]"_s,
                               u"[LNG]"_s, u"[AUTHOR]"_s, u"[COPYRIGHT]"_s, u"[TAGEMAIL]"_s, u"[TDSEARCH]"_s}));
    const auto page = [&](const QString &fileName, const QString &title, const QString &body) {
        return Page{fileName,
                    applyReplacements(base, {{u"[tcontact]"_s, title}, {u"[contact]"_s, withoutQuotes(body)}}), true};
    };
    return {page(u"contact.htm"_s, data.words(u"m3"_s), addressBlock(data)),
            page(u"terme.htm"_s, data.words(u"m6"_s), data.settings.txtModalite),
            page(u"expedition.htm"_s, data.words(u"m7"_s), data.settings.txtExpedition),
            page(u"privacy.htm"_s, data.words(u"m8"_s), data.settings.txtPrivacy)};
}
