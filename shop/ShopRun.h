#pragma once
#include "shell/Session.h"
#include "shop/RunReport.h"
#include "shop/Selection.h"
#include "shop/ShopData.h"
#include "shop/ShopFolder.h"

#include <optional>

/// Reads everything a run needs besides the products: settings, company data, language and its words.
/// `language`, when given, stands for the stored language of the shop. Sets the language of the catalogue in
/// the session's localisation.
ShopData readShopData(Session &session, const std::optional<QString> &language, RunReport &report);

/// Reports what is wrong with the language file of the shop.
void checkShopLanguage(const ShopData &data, const Session &session, RunReport &report);

/// Runs all generators in their order and writes the shop into the prepared folder. Nothing stops it: what fails
/// is reported and the next piece follows.
void genererBoutique(const ShopData &data, const Selection &selection, Session &session, ShopFolder &folder,
                     RunReport &report);
