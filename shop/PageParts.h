#pragma once
#include "shop/Replacement.h"
#include "shop/ShopData.h"

/// What several pages share.
namespace PageParts {

/// The credit line of every page.
QString sCopyrightGenere();

/// "topbkg1" becomes the banner of the theme, "logo.gif" the shop's logo file, or the blank picture without one.
std::vector<Replacement> banner(const ShopSettings &settings);

/// The cell "[TDSEARCH]" at the right of the banner, quote rule applied.
QString searchCell(const ShopData &data);

/// The value of a head placeholder that means the same on all pages that have it: "[titre]", "[KEYWORD]",
/// "[DESCRIPTION]", "[TAGLNG]", "[LNG]", "[AUTHOR]", "[COPYRIGHT]", "[TAGEMAIL]", "[TDSEARCH]", "[generated]".
std::vector<Replacement> head(const ShopData &data, const QStringList &placeholders);

/// The shipping amount that stands in the scripts: the first value in the shipping grid, "0" when shipping is free.
QString shippingValue(const ShopSettings &settings);

/// The tax rate as a part of one ("0.21"), or "0.0" when there is none.
QString taxRate(const ShopData &data);
/// Whether the tax rate is above 0.
bool hasTax(const ShopData &data);

/// Lines, each ended by CR LF.
QString lines(const QStringList &lines);

} // namespace PageParts
