#pragma once
#include "shop/Page.h"
#include "shop/Selection.h"
#include "shop/ShopData.h"

/// A list page that `GenererPages` is going to write.
struct ListPage {
    qint64 idCategorie;
    qint64 idFamille;
    QString category;
    QString family;
    QString fileName;
};

struct MenuScript {
    Page page;                       ///< exmplmenu_var.js
    std::vector<ListPage> listPages; ///< in menu order, so that menu and pages can't differ
};

/// The arrays of the drop-down menu, and by the way the list pages to write.
MenuScript GenererMenu(const ShopData &data, const Selection &selection);
