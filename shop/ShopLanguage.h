#pragma once
#include "data/Connection.h"

#include <QString>
#include <vector>

struct Language {
    QString code;
    QString name;
};

/// The languages of the list `cbLangue`, in its order. Rows without a code are skipped.
std::vector<Language> readLanguages(Connection &connection, Result &result);

/// The language of a shop as the settings screen ends up with it.
struct ShopLanguage {
    QString sLangueHtm;        ///< names the columns, the language script, "[LNG]"
    QString gsLangueCatalogue; ///< whose language file the words come from
    QString name;              ///< the entry selected in the list

    /// The fourth entry is selected first, then the one of the stored code. A code that no entry has keeps
    /// the fourth entry selected, and so its words. Without a stored code the session's language counts.
    static ShopLanguage choose(const std::vector<Language> &languages, const QString &storedCode,
                               const QString &sessionLanguage);
};

/// File name of the language script of a code; empty for a code that has none.
QString languageScript(const QString &code);
