#pragma once
#include "reference/ReferenceTree.h"
#include "shell/Screen.h"

#include <memory>

class QTreeWidgetItem;
namespace Ui {
class frmMaterial;
}

/// One of the two reference tables as a tree: the product groups with their sub-groups and attributes, or the free
/// lists. Writes nothing itself; the children of a node are changed in the editors that it opens.
class frmMaterial : public Screen {
    Q_OBJECT
public:
    frmMaterial(Session &session, bool bCategorie, QWidget *parent);
    ~frmMaterial() override;

    void textsLoaded() override;

private:
    /// Rebuild the tree from their table.
    void AfficherMaterial() { showTree(false, QStringLiteral("AfficherMaterial")); }
    void AfficherCategorie() { showTree(true, QStringLiteral("AfficherCategorie")); }
    void showTree(bool bCategorie, const QString &method);
    void rebuild() { m_bCategorie ? AfficherCategorie() : AfficherMaterial(); }
    void showTitle();
    void ExpandRacine();
    void CloseTV();
    void select(int position);
    void nodeChosen(const QTreeWidgetItem *item);
    void openEditor();

    std::unique_ptr<Ui::frmMaterial> m_ui;
    ReferenceNodes m_nodes;
    std::vector<QTreeWidgetItem *> m_items; ///< beside the nodes
    ReferenceSelection m_selection;
    bool m_bCategorie;
    int m_nNodeSel = 0;
};
