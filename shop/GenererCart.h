#pragma once
#include "shop/Page.h"
#include "shop/ShopData.h"

#include <vector>

/// The cart script `nopcart.js` and the cart page `managecart.html`.
std::vector<Page> GenererCart(const ShopData &data);
