#include "catalogue/ProductSearch.h"

#include "data/Connection.h"
#include "data/clsSmartSQL.h"
#include "platform/NumberLocale.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { Quantity = 3, PurchasePrice = 10, SalePrice = 12, Read = 13 };

/// Letter by letter: a "ß" stays one, as it does where the store compares.
QString upperCase(QString text)
{
    for (QChar &letter : text)
        letter = letter.toUpper();
    return text;
}

} // namespace

QString ProductSearch::ConstruireWhereSql(const Filters &filters)
{
    clsSmartSQL builder;
    const QString table = u"T_PRODUIT"_s;
    const auto startsWith = [&](const QString &field, const QString &typed) {
        if (!typed.trimmed().isEmpty())
            builder.AddSimpleWhereClause(field, upperCase(typed.trimmed()), table, clsSmartSQL::StartsWith);
    };
    const auto equals = [&](const QString &field, const std::optional<int> &key) {
        if (key)
            builder.AddSimpleWhereClause(field, *key, table, clsSmartSQL::Equal);
    };
    startsWith(u"sRef"_s, filters.reference);
    startsWith(u"sMarque"_s, filters.brand);
    equals(u"idFamille"_s, filters.idFamille);
    equals(u"idCategorie"_s, filters.idCategorie);
    equals(u"idFournisseur"_s, filters.idFournisseur);
    return builder.SQLWHERE();
}

QString ProductSearch::statement(const Filters &filters)
{
    const QString select =
        u"SELECT T_PRODUIT.idProduit, T_PRODUIT.sRef, T_PRODUIT.sNomFR, T_PRODUIT.nQuantity, "
        "T_PRODUIT.dDate_creation , T_PRODUIT.sFamille, T_PRODUIT.sCategorie, 'A', "
        "T_PRODUIT.sMarque, T_PRODUIT.sModele, "
        "T_PRODUIT.sPrixAchatTTC, T_PRODUIT.sMarge, T_PRODUIT.sPrixVenteTTC, sSeuil, T_PRODUIT.bQteStock "
        "FROM  T_PRODUIT "_s;
    const QString clause = ConstruireWhereSql(filters);
    constexpr int firstWord = 4; // " AND"
    return clause.isEmpty() || clause == u");"_s ? select : select + u"WHERE ("_s + clause.mid(firstWord);
}

ProductSearch::Found ProductSearch::search(Connection &gCnn, const Filters &filters)
{
    Found found;
    const NumberLocale numbers;
    double quantity = 0; // a null one leaves that of the row before in force
    Reader rows = gCnn.read(statement(filters));
    while (rows.next()) {
        const size_t first = found.cells.size();
        found.cells.resize(first + columns);
        for (size_t column = 0; column < Read; ++column)
            found.cells[first + column] = rows.text(int(column));
        if (!rows.isNull(Quantity))
            quantity = numbers.toNumber(found.cells[first + Quantity]);
        const auto add = [&](float &total, Column price) {
            if (const QString &text = found.cells[first + price]; !text.isEmpty())
                total = float(double(total) + quantity * numbers.toNumber(text));
        };
        add(found.purchase, PurchasePrice);
        add(found.sale, SalePrice);
    }
    found.result = rows.result();
    return found;
}

QString ProductSearch::totalText(float total)
{
    return QString::number(double(total), 'G', 7);
}
