#pragma once
#include "platform/Result.h"
#include "reference/ReferenceTree.h"

#include <QString>
#include <vector>

class Connection;

/// A child of a node as its editor holds it.
struct DetailRow {
    QString sCode;
    QString sLibelle;
    QString sListe;  ///< the list that an attribute takes its values from
    QString idListe; ///< empty for none
    QString id;      ///< empty while the row is not stored
};

/// The children of one node in their table.
class DetailTable {
public:
    /// With lists it is the third level of the groups, whose rows may carry one.
    DetailTable(ReferenceSelection parent, bool withLists) : m_parent(std::move(parent)), m_withLists(withLists) {}

    /// Begins the text of the failure of a code that holds an apostrophe; the code follows.
    static const QString apostropheInCode;
    /// Begins that of a row that is no longer in the store; its label follows.
    static const QString deletedElsewhere;

    std::vector<DetailRow> read(Connection &gCnn, Result &result) const;
    /// Stores a new row and gives it its id. The code goes between plain quotes: one with an apostrophe is refused.
    Result insert(Connection &gCnn, DetailRow &row) const;
    /// A row that somebody else has deleted fails.
    Result update(Connection &gCnn, const DetailRow &row) const;
    /// The children of the row stay, without a parent.
    Result remove(Connection &gCnn, const QString &id) const;

    /// The lists to choose from: ids and names in the order of the store.
    static std::vector<DetailRow> readLists(Connection &gCnn, Result &result);

private:
    QString table() const;
    QString key() const;
    bool hasList(const DetailRow &row) const { return m_withLists && !row.idListe.isEmpty(); }

    ReferenceSelection m_parent;
    bool m_withLists;
};
