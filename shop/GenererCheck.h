#pragma once
#include "shop/Page.h"
#include "shop/ShopData.h"

#include <vector>

/// The checkout pages: `checkout.htm` for PayPal, `checkout_cc.htm` and `checkout_mf.htm` for an order by form.
std::vector<Page> GenererCheck(const ShopData &data);
