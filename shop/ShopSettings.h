#pragma once
#include "shell/Session.h"
#include "shop/RunReport.h"

#include <QString>
#include <vector>

/// A row of the shipping grid.
struct ShippingMethod {
    QString name;
    QString value; ///< the price as typed, with a point
    int row = 0;   ///< of the grid it was taken from, if any
};

/// The settings of a shop, named after the controls that show them. The defaults are those of a new shop.
struct ShopSettings {
    QString lbTemp = QStringLiteral("1"); ///< theme, 1 to 30
    QString sLangueHtm;
    QString txtTitre;
    QString txtLogo; ///< path of the file the merchant picked
    QString txtFile; ///< its name within `images`
    QString txtKeyword;
    QString txtDescription;
    QString txtmessage;
    QString txtModalite;
    QString txtExpedition;
    QString txtPrivacy;
    bool chTerme = true;
    bool chExpedition = true;
    bool chPrivacy = true;
    bool chAchat = true;
    bool chPhoto = true;
    bool chSearch = true;
    QString txtFrais;
    QString txtlbFrais;
    QString txtTaxe; ///< per cent
    QString txtlbTaxe;
    QString txtForm;
    QString txtDest;
    QString txtExp;
    QString txtSymbol;
    QString txtMin;
    QString txtPPEmail;
    QString txtPPRetour;
    QString txtPPDevise;
    bool chGratuit = false;
    std::vector<ShippingMethod> fpSpread12;
};

/// What stands in the payment fields as long as the merchant has not filled them.
namespace DeliveredPayment {
inline const QString account = QStringLiteral("boutique@zelvantor.example");
inline const QString returnPage = QStringLiteral("https://www.zelvantor.example/");
} // namespace DeliveredPayment

/// Loads all settings: the user's values, the six text files of the application folder, and the defaults for
/// what is empty. A tick whose value is no whole number keeps its default. A text file that can't be read is
/// reported and leaves its setting empty.
ShopSettings AfficherParam(const Session &session, RunReport &report);

/// Stores all settings and rewrites the six text files, each whole or not at all. All are tried; the result is
/// the first failure, and `report`, when given, names each. Shipping rows are packed; only the first six come back.
Result SaveParam(const ShopSettings &settings, Session &session, RunReport *report = nullptr);
