#pragma once
#include "shop/Page.h"
#include "shop/ShopData.h"

#include <vector>

/// The home page, and with the search ticked the search page `searchfunc.html`.
std::vector<Page> GenererHome(const ShopData &data);
