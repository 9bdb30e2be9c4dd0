#include "shop/GenererCheck.h"

#include "shop/GrilleModeles.h"
#include "shop/PageParts.h"

using namespace Qt::StringLiterals;

namespace {

/// The shipping rows as the checkout scripts and tables need them, one line a row.
struct ShippingFragments {
    QString add;
    QString set;
    QString rows;
    QString options;
};

ShippingFragments shippingFragments(const ShopSettings &settings)
{
    ShippingFragments fragments;
    if (settings.chGratuit)
        return fragments;
    constexpr auto lineEnd = "\r\n"_L1;
    int i = 0;
    for (const auto &[name, value, row] : settings.fpSpread12) {
        if (value.isEmpty())
            continue;
        const QString number = QString::number(i++);
        fragments.add +=
            u"if (selected=="_s + number + u"){SetCookie ('cdship', "_s + value + u", null, '/');}"_s + lineEnd;
        fragments.set += u"if (sdb=="_s + value + u"){document.mycart.Ship_cost.options.selectedIndex="_s + number
                         + u" ;}"_s + lineEnd;
        fragments.rows += u"<tr><td width='276'>"_s + name + u"</td><td width='127'>"_s + settings.txtSymbol + value
                          + u"</td></tr>"_s + lineEnd;
        fragments.options += u"<option value='"_s + name + u"'>"_s + name + u"</option>"_s + lineEnd;
    }
    return fragments;
}

QStringList cartCall(bool withShipping)
{
    QStringList call = {u"<NOBR>"_s, u"<SCRIPT language=JavaScript"_s, u"type=text/javascript>"_s,
                        u"        CheckoutCart();"_s};
    if (withShipping)
        call << u"        SetShip();"_s;
    call << u"    </SCRIPT>"_s << u"</NOBR>"_s;
    return call;
}

QString shippingTable(const ShopData &data, const ShippingFragments &fragments)
{
    if (data.settings.chGratuit)
        return toDoubleQuotes(PageParts::lines(cartCall(false)));
    const QStringList table = {
        u"<table id='table1' width='413'>"_s,
        u"<tr><td align='center' bgcolor='#D2D2DA' width='276'><b>[LBSHIP]</b></td>"_s,
        u"    <td align='center' bgcolor='#D2D2DA' width='127'><b>[PRIX]</b></td></tr>"_s,
        u"[FORSHIP]"_s,
        u"<tr><td width='276'>[LBSELECT]</td>"_s,
        u"    <td width='127'>"_s,
        u"   <p align='center'>"_s,
        u" <select name = 'Ship_cost' size ='1' onchange=AddShip(document.mycart.Ship_cost.options.selectedIndex);>"_s,
        u"[FORSELECTSHIP]"_s,
        u"</select></td>"_s,
        u"</tr>"_s,
        u"<tr><td colspan='2'><br />"_s,
        u"&nbsp;"_s,
        u"</td>"_s,
        u"</tr>"_s,
        u"</table>"_s,
    };
    // The rows go in behind the quote step, so that their own quotes stay as they are.
    return applyReplacements(toDoubleQuotes(PageParts::lines(table + cartCall(true))),
                             {{u"[FORSELECTSHIP]"_s, fragments.options},
                              {u"[FORSHIP]"_s, fragments.rows},
                              {u"[FORSELECT]"_s, fragments.options},
                              {u"[LBSHIP]"_s, data.words(u"50"_s)},
                              {u"[PRIX]"_s, data.words(u"22"_s)},
                              {u"[LBSELECT]"_s, data.words(u"66"_s)}});
}

/// The steps at the end of both kinds of checkout.
std::vector<Replacement> closingSteps(const ShopData &data, const QString &table)
{
    return {{u"[SHIP]"_s, PageParts::shippingValue(data.settings)},
            {u"[TAXE]"_s, PageParts::taxRate(data)},
            {u"[DEVISE]"_s, data.settings.txtSymbol},
            {u"[MINORDER]"_s, data.settings.txtMin},
            {u"[LBMINORDER]"_s, data.words(u"65"_s)},
            {u"[TABLESHIP]"_s, table},
            {u"[LBCOMMANDE]"_s, data.words(u"m5"_s)}};
}

/// Banner and the two scripts of the shipping choice, with which both kinds begin.
QString opened(const ShopData &data, int row, const ShippingFragments &fragments)
{
    const QString text = applyReplacements(GrilleModeles::text(13, row), PageParts::banner(data.settings));
    return applyReplacements(text, {{u"[FORADDSHIP]"_s, fragments.add}, {u"[FORSETSHIP]"_s, fragments.set}});
}

std::vector<Replacement> titleSteps(const ShopData &data)
{
    return {{u"[LANGUAGE]"_s, languageScript(data.language.sLangueHtm)},
            {u"[company]"_s, data.info(1)},
            {u"[titre]"_s, data.info(1)},
            {u"[generated]"_s, PageParts::sCopyrightGenere()}};
}

QString payPalPage(const ShopData &data, const ShippingFragments &fragments, const QString &table)
{
    const ShopSettings &settings = data.settings;
    QString text = applyReplacements(opened(data, 1, fragments), {{u"[PPRETOUR]"_s, settings.txtPPRetour},
                                                                  {u"[PPEMAIL]"_s, settings.txtPPEmail},
                                                                  {u"[PPDEVISE]"_s, settings.txtPPDevise}});
    text = applyReplacements(text, titleSteps(data));
    return applyReplacements(text, closingSteps(data, table));
}

QString formPage(const ShopData &data, const ShippingFragments &fragments, const QString &table)
{
    const ShopSettings &settings = data.settings;
    const Traduction &words = data.words;
    // A French shop gets the form, every other one the payment page once more, in which the steps of the form
    // find nothing. The pairing is as old as the shops that live with it.
    const int row = settings.sLangueHtm == u"FR"_s ? 2 : 1;
    const QString mail = u"mailto:"_s + data.info(9).trimmed() + u"?subject=Order"_s;
    QString text = applyReplacements(opened(data, row, fragments),
                                     {{u"[ACTION]"_s, settings.txtForm.isEmpty() ? mail : settings.txtForm},
                                      {u"[RECIPIENT]"_s, settings.txtDest},
                                      {u"[EMAIL]"_s, settings.txtExp}});
    text = applyReplacements(text, titleSteps(data));
    text = applyReplacements(text, {{u"[MERCI]"_s, words(u"78"_s) + u" "_s + data.info(1)},
                                    {u"[AEMAIL]"_s, words(u"70"_s)},
                                    {u"[PRINT]"_s, words(u"57"_s)},
                                    {u"[RESET]"_s, words(u"71"_s)}});
    return applyReplacements(text, closingSteps(data, table));
}

} // namespace

std::vector<Page> GenererCheck(const ShopData &data)
{
    const ShippingFragments fragments = shippingFragments(data.settings);
    const QString table = shippingTable(data, fragments);
    const QString form = formPage(data, fragments, table);
    return {{u"checkout.htm"_s, payPalPage(data, fragments, table)},
            {u"checkout_cc.htm"_s, form},
            {u"checkout_mf.htm"_s, form}};
}
