#include "platform/Spread.h"
#include "reference/frmMaterial.h"
#include "reference/frmRMParamDetail.h"
#include "reference/frmRefDetail.h"
#include "tests/desk/Desk.h"

#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

/// Both tables small enough to know by heart: a group with a sub-group and its attribute, and a list with a value.
class TreeDesk : public Desk {
public:
    TreeDesk()
    {
        openSample();
        sql(u"DELETE FROM REF_CATEGORIE_P"_s);
        sql(u"DELETE FROM REF_LISTE"_s);
        sql(u"INSERT INTO REF_CATEGORIE_P VALUES (1, NULL, 'R', 'Racine', 0, NULL, NULL), "
            "(10, 1, 'G', 'Groupe', 1, NULL, NULL), (11, 10, 'S', 'Sous', 2, NULL, NULL), "
            "(12, 11, 'A', 'Attribut', 3, NULL, NULL), (13, 0, 'Z', 'De parent 0', 1, NULL, NULL), "
            "(14, 99, 'O', 'Orphelin', 2, NULL, NULL), (15, 12, 'P', 'Profond', 4, NULL, NULL)"_s);
        sql(u"INSERT INTO REF_LISTE VALUES (1, NULL, 'R', 'Racine'), (20, 1, 'L', 'Couleurs'), (21, 20, 'V', 'Rouge')"_s);
    }
};

QTreeWidgetItem *find(QTreeWidget &tree, const QString &text)
{
    return tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

/// "text<parent" of every node, in the order of the tree.
QStringList nodes(QTreeWidget &tree)
{
    QStringList texts;
    for (QTreeWidgetItemIterator it(&tree); *it; ++it)
        texts << (*it)->text(0) + u'<' + ((*it)->parent() ? (*it)->parent()->text(0) : QString());
    return texts;
}

void type(QWidget &window, const QString &code, const QString &label)
{
    control<QLineEdit>(window, "txtCode").setText(code);
    control<QLineEdit>(window, "txtLibelle").setText(label);
}

void press(QWidget &window, const char *button)
{
    control<QPushButton>(window, button).click();
}

} // namespace

class TreesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void rowsHangFromTheirParents()
    {
        TreeDesk desk;
        frmMaterial groups(desk.session, true, nullptr);
        QCOMPARE(nodes(control<QTreeWidget>(groups, "tvTools")),
                 (QStringList{u"Racine<"_s, u"De parent 0<Racine"_s, u"Groupe<Racine"_s, u"Sous<Groupe"_s,
                              u"Attribut<Sous"_s, u"Profond<Attribut"_s}));
        frmMaterial lists(desk.session, false, nullptr);
        QCOMPARE(nodes(control<QTreeWidget>(lists, "tvTools")),
                 (QStringList{u"Racine<"_s, u"Couleurs<Racine"_s, u"Rouge<Couleurs"_s}));
        QCOMPARE(desk.messages.boxes, QStringList());
    }

    void levelsDecideWhatCanBeAdded()
    {
        const Rows<bool, QString, QString, bool> rows = {
            {"groups", true, u"Racine"_s, u"Catégories"_s, true},
            {"group", true, u"Groupe"_s, u"Catégorie: Groupe"_s, true},
            {"sub-group", true, u"Sous"_s, u"Famille: Sous"_s, true},
            {"attribute", true, u"Attribut"_s, u"Groupes de produits"_s, false},
            {"below", true, u"Profond"_s, u"Groupes de produits"_s, false},
            {"lists", false, u"Racine"_s, u"Listes"_s, true},
            {"list", false, u"Couleurs"_s, u"Liste: Couleurs"_s, true},
            {"value", false, u"Rouge"_s, u"Famille: Rouge"_s, false}};
        for (const auto &[row, bCategorie, node, title, mayAdd] : rows) {
            const Row named(row);
            TreeDesk desk;
            frmMaterial window(desk.session, bCategorie, nullptr);
            auto &tree = control<QTreeWidget>(window, "tvTools");
            QVERIFY(tree.topLevelItem(0)->isExpanded());
            const QString first = control<QLabel>(window, "lbTitre").text();
            tree.setCurrentItem(find(tree, node));
            // A node that has no title of its own leaves the one before.
            QCOMPARE(control<QLabel>(window, "lbTitre").text(), title == u"Groupes de produits"_s ? first : title);
            QCOMPARE(control<QAction>(window, "Nouveau").isEnabled(), mayAdd);
        }
    }

    void emptyTableOpens()
    {
        TreeDesk desk;
        desk.sql(u"DELETE FROM REF_LISTE"_s);
        frmMaterial window(desk.session, false, nullptr);
        QCOMPARE(control<QTreeWidget>(window, "tvTools").topLevelItemCount(), 0);
        control<QAction>(window, "Nouveau").trigger();
        desk.sql(u"DROP TABLE REF_LISTE"_s);
        frmMaterial broken(desk.session, false, nullptr);
        QCOMPARE(desk.messages.boxes.size(), 1);
        QVERIFY(desk.messages.boxes.first().startsWith(u"AfficherMaterial|1: "_s));
    }

    void childrenGatherInTheGrid()
    {
        TreeDesk desk;
        ReferenceSelection list;
        list.sLibelleSel = u"Couleurs"_s;
        list.idParent = 20;
        frmRMParamDetail window(desk.session, list, nullptr);
        window.show();
        QCOMPARE(window.windowTitle(), u"Couleurs/Éléments de la liste"_s);
        auto &grid = control<Spread>(window, "fpSpread4");
        QCOMPARE(grid.MaxRows(), 1);
        for (int hidden = 3; hidden <= 6; ++hidden)
            QVERIFY(grid.isColumnHidden(hidden - 1));
        type(window, u"  "_s, u"Bleu"_s);
        press(window, "cmdAjouter6");
        type(window, u"c"_s, u"  "_s);
        press(window, "cmdAjouter6");
        QCOMPARE(desk.messages.boxes, QStringList{u"Stilvendra|Remplir la zone Libellé "_s});
        type(window, u"V"_s, u"  Vert d'eau "_s);
        press(window, "cmdAjouter6");
        QCOMPARE(grid.MaxRows(), 3);
        grid.setActiveCell(1, 2); // a new row that is changed stays a new one
        type(window, u"B"_s, u"Bleu nuit"_s);
        press(window, "cmdModifier6");
        QVERIFY(!control<QPushButton>(window, "cmdModifier6").isEnabled());
        grid.setActiveCell(1, 1);
        QCOMPARE(control<QLineEdit>(window, "txtLibelle").text(), u"Rouge"_s);
        type(window, u"V"_s, u"Rouge vif"_s);
        press(window, "cmdModifier6");
        QCOMPARE(desk.value(u"SELECT count(*) FROM REF_LISTE"_s), u"3"_s); // nothing yet
        grid.setActiveCell(1, 3);
        press(window, "cmdSupprimer6");
        QCOMPARE(grid.MaxRows(), 2);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.cells().index(1, 0)).center());
        QCOMPARE(control<QLineEdit>(window, "txtLibelle").text(), u"Bleu nuit"_s);
        press(window, "cmdValider");
        QCOMPARE(window.result(), int(QDialog::Accepted));
        QCOMPARE(desk.value(u"SELECT group_concat(sCode || '=' || sLibelle) FROM REF_LISTE WHERE idRef_parent = 20"_s),
                 u"V=Rouge vif,B=Bleu nuit"_s);
        frmRMParamDetail again(desk.session, list, nullptr);
        control<Spread>(again, "fpSpread4").setActiveCell(1, 1);
        desk.messages.answer = false;
        press(again, "cmdSupprimer6");
        QCOMPARE(desk.value(u"SELECT count(*) FROM REF_LISTE WHERE idRef_parent = 20"_s), u"2"_s);
        desk.messages.answer = true;
        press(again, "cmdSupprimer6");
        press(again, "cmdFermer");
        QCOMPARE(desk.value(u"SELECT group_concat(sLibelle) FROM REF_LISTE"_s), u"Racine,Couleurs,Bleu nuit"_s);
    }

    void attributesCarryAList()
    {
        TreeDesk desk;
        ReferenceSelection family;
        family.bCategorie = true;
        family.idParent = 11;
        family.iNiveau = 3;
        {
            frmRefDetail window(desk.session, family, nullptr);
            auto &lists = control<QComboBox>(window, "cbList");
            QCOMPARE(lists.count(), 1);
            QCOMPARE(lists.currentIndex(), -1);
            type(window, u"T"_s, u"Taille"_s);
            press(window, "cmdAjouter6");
            lists.setCurrentIndex(0);
            type(window, u"C"_s, u"Couleur"_s);
            press(window, "cmdAjouter6");
            QCOMPARE(lists.currentIndex(), -1); // the next one doesn't get it unasked
            control<Spread>(window, "fpSpread4").setActiveCell(1, 1);
            QCOMPARE(lists.currentIndex(), -1); // as the row has none
            lists.setCurrentIndex(0);
            press(window, "cmdModifier6");
            press(window, "cmdValider");
        }
        QCOMPARE(desk.messages.boxes, QStringList());
        QCOMPARE(
            desk.value(u"SELECT group_concat(sLibelle || iNiveau || coalesce(sListe, '-') || coalesce(idListe, '-')) "
                       "FROM REF_CATEGORIE_P WHERE idRef_parent = 11"_s),
            u"Attribut3Couleurs20,Taille3--,Couleur3Couleurs20"_s);
    }

    void failuresKeepTheirRows()
    {
        TreeDesk desk;
        ReferenceSelection list;
        list.idParent = 20;
        frmRMParamDetail window(desk.session, list, nullptr);
        window.show();
        type(window, u"z', sLibelle = 'tout' --"_s, u"Jaune"_s);
        press(window, "cmdAjouter6");
        type(window, u"N"_s, u"Noir"_s);
        press(window, "cmdAjouter6");
        Result opened;
        const auto other = Store::open(desk.session.gsDbPath, opened);
        QVERIFY(opened && other->execute(u"BEGIN IMMEDIATE"_s));
        press(window, "cmdValider");
        QVERIFY(desk.messages.boxes.value(0).startsWith(u"AjouterFParam|5: "_s));
        QVERIFY(other->execute(u"COMMIT"_s));
        press(window, "cmdValider");
        QVERIFY(desk.messages.boxes.value(1).startsWith(u"AjouterFParam|1: "_s));
        QVERIFY(window.isVisible());
        auto &grid = control<Spread>(window, "fpSpread4");
        QCOMPARE(grid.text(1, 2), u"z', sLibelle = 'tout' --"_s);
        grid.setActiveCell(1, 2);
        type(window, u"ete"_s, u"Jaune"_s);
        press(window, "cmdModifier6");
        press(window, "cmdValider");
        QCOMPARE(desk.value(u"SELECT group_concat(sLibelle) FROM REF_LISTE WHERE idRef_parent = 20"_s),
                 u"Rouge,Noir,Jaune"_s); // each went in once
        frmRMParamDetail late(desk.session, list, nullptr);
        late.show();
        for (int row = 1; row <= 2; ++row) {
            control<Spread>(late, "fpSpread4").setActiveCell(1, row);
            type(late, u"R"_s, u"Rose%1"_s.arg(row));
            press(late, "cmdModifier6");
        }
        desk.sql(u"DELETE FROM REF_LISTE WHERE idRef_parent = 20"_s);
        desk.messages.boxes.clear();
        press(late, "cmdValider");
        QCOMPARE(desk.messages.boxes, QStringList{u"AjouterFParam|1: cette ligne a été supprimée ailleurs : Rose1\n"
                                                  "1: cette ligne a été supprimée ailleurs : Rose2"_s});
        QVERIFY(late.isVisible());
    }

    void treeFollowsItsEditor()
    {
        TreeDesk desk;
        frmMaterial window(desk.session, true, nullptr);
        auto &tree = control<QTreeWidget>(window, "tvTools");
        tree.setCurrentItem(find(tree, u"Groupe"_s));
        Visitor visitor;
        visitor.whenShown(u"frmRMParamDetail"_s, [](QWidget &editor) {
            type(editor, u"S2"_s, u"Second"_s);
            press(editor, "cmdAjouter6");
            press(editor, "cmdValider");
        });
        control<QAction>(window, "Nouveau").trigger();
        QCOMPARE(visitor.waiting(), QStringList());
        QVERIFY(find(tree, u"Second"_s));
        QCOMPARE(tree.currentItem()->text(0), u"Groupe"_s);
        QCOMPARE(desk.value(u"SELECT iNiveau FROM REF_CATEGORIE_P WHERE sLibelle = 'Second'"_s), u"2"_s);
        tree.setCurrentItem(find(tree, u"Sous"_s));
        visitor.whenShown(u"frmRefDetail"_s, [](QWidget &editor) { press(editor, "cmdFermer"); });
        control<QAction>(window, "Nouveau").trigger();
        QCOMPARE(visitor.waiting(), QStringList());
        control<QAction>(window, "Ouvrir").trigger();
        QVERIFY(find(tree, u"Sous"_s)->isExpanded());
        control<QAction>(window, "Fermer").trigger();
        QVERIFY(!find(tree, u"Sous"_s)->isExpanded() && tree.topLevelItem(0)->isExpanded());
    }
};

ZELVANTOR_SUITE(TreesTest)
#include "TreesTest.moc"
