#include "shop/PageParts.h"

using namespace Qt::StringLiterals;

QString PageParts::sCopyrightGenere()
{
    return u"2004 zelvantor - https://www.zelvantor.example/"_s;
}

std::vector<Replacement> PageParts::banner(const ShopSettings &settings)
{
    return {{u"topbkg1"_s, u"topbkg"_s + settings.lbTemp},
            {u"logo.gif"_s, settings.txtFile.isEmpty() ? u"spacer.gif"_s : settings.txtFile}};
}

QString PageParts::lines(const QStringList &lines)
{
    return lines.join(u"\r\n"_s) + u"\r\n"_s;
}

QString PageParts::searchCell(const ShopData &data)
{
    if (!data.settings.chSearch)
        return quoteRule(lines({u"<td width='50%'>"_s, u"<p align='right'>&nbsp;</td>"_s}));
    return quoteRule(lines({
        u"<td width='50%' align='right' valign='bottom'>"_s,
        u"        <form name=form_search action='JavaScript:OnSearchSubmit()'>"_s,
        u"            <table width='100%' cellpadding='0'>"_s,
        u"                <tr>"_s,
        u"                    <td width='100%' align='right'>"_s,
        u"                        <input type='text' name='sw' size='20'>"_s,
        u"                    </td>"_s,
        u"                    <td width='20%'> <font color='#0000FF'>"_s,
        u"                        <input type='submit' value='"_s + data.words(u"m9"_s)
            + u"' style='font-weight: bold; background-color: #FFFF99'></font>"_s,
        u"                    </td>"_s,
        u"                </tr>"_s,
        u"            </table>"_s,
        u"        </form>"_s,
        u"    </td>"_s,
    }));
}

std::vector<Replacement> PageParts::head(const ShopData &data, const QStringList &placeholders)
{
    const ShopSettings &settings = data.settings;
    const QHash<QString, QString> values = {
        {u"[titre]"_s, settings.txtTitre},
        {u"[KEYWORD]"_s, settings.txtKeyword},
        {u"[DESCRIPTION]"_s, settings.txtDescription},
        {u"[TAGLNG]"_s, data.language.name.toLower()},
        {u"[LNG]"_s, data.language.sLangueHtm},
        {u"[AUTHOR]"_s, data.gsLogin},
        {u"[COPYRIGHT]"_s, data.info(1) + u" - "_s + QString::number(data.year)},
        {u"[TAGEMAIL]"_s, settings.txtDest},
        {u"[TDSEARCH]"_s, searchCell(data)},
        {u"[generated]"_s, sCopyrightGenere()},
    };
    std::vector<Replacement> steps;
    for (const QString &placeholder : placeholders)
        steps.push_back({placeholder, values.value(placeholder)});
    return steps;
}

QString PageParts::shippingValue(const ShopSettings &settings)
{
    if (settings.chGratuit)
        return u"0"_s;
    for (const ShippingMethod &method : settings.fpSpread12)
        if (!method.value.isEmpty())
            return method.value;
    return {};
}

bool PageParts::hasTax(const ShopData &data)
{
    return data.numbers.toNumber(data.settings.txtTaxe) > 0;
}

QString PageParts::taxRate(const ShopData &data)
{
    return hasTax(data) ? data.numbers.toText(data.numbers.toNumber(data.settings.txtTaxe) / 100) : u"0.0"_s;
}
