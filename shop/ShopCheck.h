#pragma once
#include "shell/Session.h"
#include "shop/Selection.h"
#include "shop/ShopData.h"

#include <vector>

/// Something that the formats of the shop can't carry, or that a visitor would stumble on.
struct Finding {
    enum Kind {
        NoMinimumOrder = 1,
        CommaInShippingPrice,
        ApostropheInGroup,
        QuoteInName,
        BarInName,
        SignInReference,
        ReferencesMeet,
        PicturesOfOneName,
        PictureGone,
        CharactersLost,
        NoName,
        NoPrice,
        EmptyCompanyLine,
        NoPaymentAccount,
        DeliveredPaymentAccount,
        CatalogueNotRead,
        QuoteInText,
        NotANumber,
        QuoteInSetting,
        BadReference,
        NoGroup,
        BadFileName,
        ControlCharacter,
        NegativeMinimum,
        ShippingWithoutName,
        CharactersInReference,
        CharactersInPictureName,
        NoReference,
        LongReference,
        NegativePrice,
    };
    Kind kind;
    QString subject; ///< the product, the name or the field it is about
    QString control; ///< the control of the shop screen that mends it; empty when it is elsewhere
    int row = 0;     ///< in that control, where it is a grid
};

/// Looks over the settings, the company data and the products of the ticked groups. Changes nothing.
std::vector<Finding> checkShop(const ShopData &data, const Selection &selection, Session &session);

/// One line in plain words, in the language of the windows: section "CHECK" of the language file.
QString describe(const Finding &finding, const Localisation &localisation);
