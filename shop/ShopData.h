#pragma once
#include "platform/NumberLocale.h"
#include "shop/ShopLanguage.h"
#include "shop/ShopSettings.h"
#include "shop/Traduction.h"

/// Everything but the catalogue that the pages are made from, taken once at the start of a run.
struct ShopData {
    ShopSettings settings;
    ShopLanguage language;
    Traduction words;
    QStringList gInfo;
    QString gsLogin;
    QString gsMonnaie;
    int year = 0;
    NumberLocale numbers;

    /// Position `n` of the company data, from 1; empty behind the last.
    QString info(int n) const { return gInfo.value(n - 1); }
    /// Path of the picture for the banner: the chosen one, else that of the company, which always stands in the shop as
    /// "logo.gif"; empty when there is neither.
    QString logoSource() const
    {
        if (!settings.txtLogo.isEmpty())
            return settings.txtLogo;
        return settings.txtFile.compare(u"logo.gif", Qt::CaseInsensitive) == 0 ? info(13).trimmed() : QString();
    }
};
