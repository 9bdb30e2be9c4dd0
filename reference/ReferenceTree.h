#pragma once
#include "platform/Result.h"

#include <QString>
#include <vector>

class Connection;

/// A row of a reference table in its tree. Nodes stand in the order in which they came, a parent before its children.
struct ReferenceNode {
    int id = 0; ///< the row
    QString sLibelle;
    int parent = -1; ///< position of the parent among the nodes, -1 for a root
};
using ReferenceNodes = std::vector<ReferenceNode>;

/// The rows of REF_CATEGORIE_P or of REF_LISTE. A row whose parent is not there yet when it comes is passed over; what
/// was read before a failure stays.
ReferenceNodes readReferenceTree(Connection &gCnn, bool bCategorie, Result &result);

/// The node at hand, and what follows from it for its children.
struct ReferenceSelection {
    bool bCategorie = false; ///< the groups, else the free lists
    QString sLibelleSel;
    int idParent = 0;   ///< the chosen row, parent of what is added
    int iNiveau = 1;    ///< 1 for the root; a child carries the number of its parent
    int iTagParent = 1; ///< row of the node's parent; 1 at the root
    bool mayAdd = false;
    /// Message of the section MESSAGES that titles the node: 131 to 133 for groups, 134 and 135 for lists.
    QString titleKey;

    /// The title of the tree window for the node, from the text of `titleKey`.
    QString title(const QString &message) const;
};

/// The choice of the node at a position.
ReferenceSelection chooseNode(const ReferenceNodes &nodes, int position, bool bCategorie);
