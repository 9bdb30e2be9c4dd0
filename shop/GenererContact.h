#pragma once
#include "shop/Page.h"
#include "shop/ShopData.h"

#include <vector>

/// The contact page and the three legal pages, always all four: the ticks of the settings only switch their
/// entries in the menu.
std::vector<Page> GenererContact(const ShopData &data);
