#include "shop/GenererHome.h"

#include "shop/GrilleModeles.h"
#include "shop/PageParts.h"

using namespace Qt::StringLiterals;

std::vector<Page> GenererHome(const ShopData &data)
{
    const std::vector<Replacement> banner = PageParts::banner(data.settings);
    QString text = applyReplacements(GrilleModeles::text(1, 1), banner);
    // The shipping amount that the page resets is the literal 24 of its script, and not this value: a visitor
    // pays that until he chooses at the checkout.
    text = applyReplacements(
        text, {
                  {u"[SHIP]"_s, PageParts::shippingValue(data.settings)},
                  {u"[messageaccueil]"_s, withoutQuotes(QString(data.settings.txtmessage).replace(u"\n"_s, u"<br>"_s))},
                  {u"[bienvenue]"_s, data.words(u"60"_s)},
              });
    text = applyReplacements(
        text, PageParts::head(data, {u"[generated]"_s, u"[titre]"_s, u"[KEYWORD]"_s, u"[DESCRIPTION]"_s, u"[TAGLNG]"_s,
                                     u"[LNG]"_s, u"[AUTHOR]"_s, u"[COPYRIGHT]"_s, u"[TAGEMAIL]"_s, u"[TDSEARCH]"_s}));
    std::vector<Page> pages = {{u"index.htm"_s, text, true}};
    if (data.settings.chSearch) {
        const QString search = applyReplacements(GrilleModeles::text(5, 1), banner);
        pages.push_back(
            {u"searchfunc.html"_s, applyReplacements(search, {{u"[generated]"_s, PageParts::sCopyrightGenere()}})});
    }
    return pages;
}
