#include "shop/GenererCart.h"

#include "shop/GrilleModeles.h"
#include "shop/PageParts.h"

using namespace Qt::StringLiterals;

namespace {

Page cartScript(const ShopData &data)
{
    const ShopSettings &settings = data.settings;
    std::vector<Replacement> steps = {
        {u"[SHIP]"_s, PageParts::shippingValue(settings)},
        {u"[SHIPTRUE]"_s, settings.chGratuit ? u"false"_s : u"true"_s},
        {u"[TAXE]"_s, PageParts::taxRate(data)},
        {u"[TAXETRUE]"_s, PageParts::hasTax(data) ? u"true"_s : u"false"_s},
    };
    // Without a tax the label stays as it stands in the template: its row is not shown.
    if (PageParts::hasTax(data))
        steps.push_back({u"[MTAXE]"_s, settings.txtlbTaxe + u"("_s + settings.txtTaxe + u" %)"_s});
    steps.push_back({u"[DEVISE]"_s, settings.txtSymbol});
    steps.push_back({u"[MINORDER]"_s, settings.txtMin});
    steps.push_back({u"[LBMINORDER]"_s, data.words(u"65"_s)});
    return {u"nopcart.js"_s, applyReplacements(GrilleModeles::text(12, 3), steps)};
}

Page cartPage(const ShopData &data)
{
    const Traduction &words = data.words;
    const QString script = languageScript(data.language.sLangueHtm);
    const QString title = words(u"67"_s);
    const QString text = applyReplacements(GrilleModeles::text(9, 1), PageParts::banner(data.settings));
    return {u"managecart.html"_s, applyReplacements(text, {
                                                              {u"[language]"_s, script},
                                                              {u"[LANGUAGE]"_s, script},
                                                              {u"[titrecart]"_s, title},
                                                              {u"[titre]"_s, title},
                                                              {u"[bienvenue]"_s, title},
                                                              {u"[RETOUR]"_s, words(u"28"_s)},
                                                              {u"[CALCUL]"_s, words(u"69"_s)},
                                                              {u"[VERIFIER]"_s, words(u"33"_s)},
                                                              {u"[LBPANIER]"_s, words(u"m4"_s)},
                                                              {u"[LBLISTE]"_s, title},
                                                              {u"[LBMODIFERQTE]"_s, {}},
                                                              {u"[generated]"_s, PageParts::sCopyrightGenere()},
                                                          })};
}

} // namespace

std::vector<Page> GenererCart(const ShopData &data)
{
    return {cartScript(data), cartPage(data)};
}
