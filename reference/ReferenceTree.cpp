#include "reference/ReferenceTree.h"

#include "data/Connection.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

constexpr int mainRoot = 1; // the row that rows of parent 0 hang from
constexpr int deepest = 4;

int distanceToRoot(const ReferenceNodes &nodes, int position)
{
    int level = 1;
    for (int node = nodes[size_t(position)].parent; node >= 0; node = nodes[size_t(node)].parent)
        ++level;
    return level;
}

} // namespace

ReferenceNodes readReferenceTree(Connection &gCnn, bool bCategorie, Result &result)
{
    const QString table = bCategorie ? u"REF_CATEGORIE_P"_s : u"REF_LISTE"_s;
    const QString columns = table + u".idRef_parent, "_s + table
                            + (bCategorie ? u".idRef_Categorie, "_s : u".idRef_liste, "_s) + table + u".sCode, "_s
                            + table + u".sLibelle"_s + (bCategorie ? u", REF_CATEGORIE_P.iNiveau"_s : QString());
    // Parents come before their children; without the order the store gives the rows by their keys.
    Reader rows =
        gCnn.read(u"SELECT "_s + columns + u" From "_s + table + u" GROUP BY "_s + columns + u" ORDER BY 1, 2;"_s);
    ReferenceNodes nodes;
    QHash<int, int> positions;
    while (rows.next()) {
        if (rows.isNull(1))
            continue;
        ReferenceNode node{int(rows.integer(1)), rows.text(3), -1};
        if (!rows.isNull(0)) {
            const int parent = int(rows.integer(0));
            node.parent = positions.value(parent == 0 ? mainRoot : parent, -1);
            const bool isMainRoot = parent == 0 && node.id == mainRoot && nodes.empty();
            if (node.parent < 0 && !isMainRoot)
                continue;
        }
        positions.insert(node.id, int(nodes.size()));
        nodes.push_back(std::move(node));
    }
    result = rows.result();
    return nodes;
}

QString ReferenceSelection::title(const QString &message) const
{
    return iNiveau == 1 ? message : message + u": "_s + sLibelleSel;
}

ReferenceSelection chooseNode(const ReferenceNodes &nodes, int position, bool bCategorie)
{
    const ReferenceNode &node = nodes[size_t(position)];
    ReferenceSelection chosen;
    chosen.bCategorie = bCategorie;
    chosen.sLibelleSel = node.sLibelle;
    chosen.idParent = node.id;
    chosen.iNiveau = distanceToRoot(nodes, position);
    if (node.parent >= 0)
        chosen.iTagParent = nodes[size_t(node.parent)].id;
    chosen.mayAdd = bCategorie ? chosen.iNiveau < deepest : chosen.iTagParent == mainRoot;
    if (chosen.iNiveau == 1)
        chosen.titleKey = bCategorie ? u"131"_s : u"134"_s;
    else if (chosen.iNiveau == 2)
        chosen.titleKey = bCategorie ? u"132"_s : u"135"_s;
    else if (chosen.iNiveau == 3)
        chosen.titleKey = u"133"_s;
    return chosen;
}
