#include "shop/Selection.h"

using namespace Qt::StringLiterals;

void Selection::tickAll(bool ticked)
{
    for (SelectionRow &row : rows)
        if (row.idCategorie || row.idFamille)
            row.ticked = ticked;
}

Selection AfficherFamille(Connection &connection, Result &result)
{
    Selection selection;
    std::optional<qint64> current;
    size_t group = 0;
    Reader rows =
        connection.read(u"SELECT T_PRODUIT.idCategorie, T_PRODUIT.idFamille, T_PRODUIT.sCategorie, T_PRODUIT.sFamille "
                        "FROM T_PRODUIT GROUP BY T_PRODUIT.idCategorie, T_PRODUIT.idFamille, T_PRODUIT.sCategorie, "
                        "T_PRODUIT.sFamille;"_s);
    while (rows.next()) {
        if (!rows.isNull(0) && current != rows.integer(0)) {
            current = rows.integer(0);
            group = selection.rows.size();
            ++selection.groups;
            SelectionRow row;
            row.idCategorie = current;
            row.name = rows.text(2);
            row.first = int(group) + 1;
            selection.rows.push_back(row);
        }
        SelectionRow row;
        if (!rows.isNull(1))
            row.idFamille = rows.integer(1);
        row.name = rows.text(3);
        selection.rows.push_back(row);
        if (selection.groups > 0)
            selection.rows[group].last = int(selection.rows.size()) - 1;
    }
    result = rows.result();
    return selection;
}
