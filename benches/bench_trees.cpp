// The trees of the reference data: 5,000 nodes shown, and an editor on 2,000 children.
#include "benches/DeskBench.h"
#include "benches/Figure.h"
#include "reference/frmMaterial.h"
#include "reference/frmRefDetail.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int nodes = 5000;
constexpr int children = 2000;
constexpr int rounds = 5;
constexpr int groupOfChildren = 900000;

void fillTree(DeskBench &desk)
{
    const StoreAction action(desk.session.gCnn);
    const auto add = [&desk](int key, int parent, int level) {
        (void)desk.session.gCnn.execute(
            u"INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES (%1, %2, "
            "'C%1', 'Groupe %1', %3)"_s.arg(key)
                .arg(parent)
                .arg(level));
    };
    (void)desk.session.gCnn.execute(u"DELETE FROM REF_CATEGORIE_P"_s);
    (void)desk.session.gCnn.execute(
        u"INSERT INTO REF_CATEGORIE_P (idRef_Categorie, sLibelle, iNiveau) VALUES (1, 'Racine', 0)"_s);
    constexpr int groups = 50;
    for (int group = 0; group < groups; ++group)
        add(10 + group, 1, 1);
    for (int node = groups + 1; node < nodes; ++node)
        add(1000 + node, 10 + node % groups, 2);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Skin::apply(application);
    DeskBench desk(1);
    fillTree(desk);
    const double tree = fastest(rounds, [&] {
        frmMaterial window(desk.session, true, nullptr);
        window.show();
        window.grab();
    });
    {
        const StoreAction action(desk.session.gCnn);
        for (int child = 0; child < children; ++child)
            (void)desk.session.gCnn.execute(u"INSERT INTO REF_CATEGORIE_P (idRef_parent, sCode, sLibelle, iNiveau) "
                                            u"VALUES (%1, 'C%2', 'Élément %2', "
                                            "3)"_s.arg(groupOfChildren)
                                                .arg(child));
    }
    ReferenceSelection parent;
    parent.bCategorie = true;
    parent.idParent = groupOfChildren;
    const double editor = fastest(rounds, [&] {
        frmRefDetail window(desk.session, parent, nullptr);
        window.show();
        window.grab();
    });
    Figure("tree of " + std::to_string(nodes) + " nodes", tree, "ms").atMost(200);
    Figure("editor on " + std::to_string(children) + " children", editor, "ms").atMost(200);
    return 0;
}
