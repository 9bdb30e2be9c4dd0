#pragma once
#include "data/Connection.h"

#include <QString>
#include <optional>
#include <vector>

/// A row of the selection grid: a group, or a sub-group below it.
struct SelectionRow {
    std::optional<qint64> idCategorie; ///< set on group rows only
    std::optional<qint64> idFamille;   ///< set on sub-group rows, unless the store has none
    QString name;
    bool ticked = true;
    int first = 0; ///< on a group row: index of its first sub-group
    int last = -1; ///< and of its last
};

/// The groups and sub-groups that products really use, in the store's grouping order.
struct Selection {
    std::vector<SelectionRow> rows;
    int groups = 0; ///< number of group rows

    void tickAll(bool ticked);
};

/// Reads the selection anew, everything ticked. The names are those stored with the products; a group breaks
/// where `idCategorie` changes and only there, and a product without one counts to the group before it.
Selection AfficherFamille(Connection &connection, Result &result);
