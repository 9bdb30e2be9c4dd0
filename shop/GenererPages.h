#pragma once
#include "shop/CatalogueReader.h"
#include "shop/GenererMenu.h"
#include "shop/Page.h"
#include "shop/ShopData.h"

/// The page of each product and the list page of each sub-group, in the order of `listPages`: first the
/// products of a sub-group with their pictures, then its list. A sub-group without products gets no page.
void GenererPages(const ShopData &data, const std::vector<ListPage> &listPages, CatalogueReader &catalogue,
                  ShopOutput &output);
