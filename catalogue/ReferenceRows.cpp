#include "catalogue/ReferenceRows.h"

#include "data/Connection.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Source {
    QString statement;
    int textColumn;
};

Source sourceOf(const QString &table, int glIdCategorie)
{
    if (table == u"REF_FAMILLE"_s)
        return {u"SELECT idRef_Categorie, sLibelle FROM REF_CATEGORIE_P WHERE idRef_Parent = "_s
                    + QString::number(glIdCategorie),
                1};
    if (table == u"REF_CATEGORIE_P"_s)
        return {u"SELECT idRef_Categorie, sLibelle FROM REF_CATEGORIE_P WHERE idRef_parent = 1 ; "_s, 1};
    if (table == u"REF_SHIPPER"_s)
        return {u"SELECT idShipper, sReference, sRaisonSociale FROM REF_SHIPPER"_s, 2};
    return {u"SELECT * FROM REF_TVA ORDER BY 2 "_s, 2};
}

} // namespace

int ReferenceRows::position(int key) const
{
    const auto found = std::find(keys.begin(), keys.end(), key);
    return found == keys.end() ? -1 : int(found - keys.begin());
}

ReferenceRows ReferenceRows::read(Connection &gCnn, const QString &table, int glIdCategorie, Result &result)
{
    const Source source = sourceOf(table, glIdCategorie);
    ReferenceRows rows;
    Reader reader = gCnn.read(source.statement);
    while (reader.next()) {
        if (!reader.isNull(0))
            rows.keys.push_back(int(reader.integer(0)));
        if (!reader.isNull(source.textColumn))
            rows.texts << reader.text(source.textColumn);
    }
    result = reader.result();
    return rows;
}
