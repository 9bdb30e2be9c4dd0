#pragma once
#include "platform/Result.h"

#include <QString>
#include <QStringList>
#include <vector>

class Connection;

/// The rows of a reference table as a combo box shows them: the keys lie beside the texts, in the same order. A null
/// key adds none and a null text adds none.
struct ReferenceRows {
    std::vector<int> keys;
    QStringList texts;

    /// Key of the item at a position; nothing where there is none.
    bool hasKey(int position) const { return position >= 0 && position < int(keys.size()); }
    /// Position of a key, -1 when it is not among them.
    int position(int key) const;

    /// Reads "REF_CATEGORIE_P" (the groups), "REF_FAMILLE" (the sub-groups of `glIdCategorie`), "REF_SHIPPER" or
    /// "REF_TVA" (in the order of its second column).
    static ReferenceRows read(Connection &gCnn, const QString &table, int glIdCategorie, Result &result);
};
