#include "platform/Spread.h"
#include "tests/catalogue/ArticleDesk.h"

using namespace Qt::StringLiterals;

/// The two grids of the product screen: prices by quantity and attributes.
class ArticleGridsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void bandsOpenAndFollow()
    {
        ArticleDesk desk;
        desk.sql(u"DELETE FROM T_PRODUIT_PRIX WHERE idProduit = 5"_s);
        auto window = desk.open(2, 5);
        control<QCheckBox>(*window, "chPrix").setChecked(false);
        control<QCheckBox>(*window, "chPrix").click();
        auto &grid = control<Spread>(*window, "fpSpread2");
        QVERIFY(grid.isVisibleTo(window.get()));
        control<QComboBox>(*window, "cbTvaV").setCurrentIndex(control<QComboBox>(*window, "cbTvaV").findText(u"21"_s));
        const int position = control<QComboBox>(*window, "cbTvaV").currentIndex();
        const auto leave = [&](int column, int row, const QString &text) {
            grid.setActiveCell(column, row);
            grid.setText(column, row, text);
            grid.setActiveCell(4, row);
        };
        grid.cells().setChoiceIndex(2, 1, 0);
        QCoreApplication::processEvents();
        Q_EMIT control<QComboBox>(*window, "cbTvaV").activated(position); // picked though it is chosen already
        leave(1, 1, u"100"_s);
        QCOMPARE(grid.text(3, 1), u"121.00"_s);
        leave(3, 2, u"60.5"_s);
        QCOMPARE(grid.text(1, 2), u"50.00"_s);
        grid.setText(4, 1, u"1"_s);
        grid.setText(5, 1, u"9"_s);
        QCOMPARE(grid.text(4, 2) + u'-' + grid.text(5, 2), u"10-999999"_s);
        QCOMPARE(grid.text(4, 3), QString()); // the next band opens no further one
        grid.setText(5, 5, u"50"_s);
        QCOMPARE(grid.text(4, 6), QString());
        leave(1, 3, u"10"_s); // no quantities: lost with a box; the others go in
        grid.setText(4, 3, {});
        grid.setText(5, 3, {});
        grid.setText(4, 4, u"7"_s); // no price: left out
        control<QLineEdit>(*window, "txtNom_0").setText(u"Nom"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.size(), 1);
        QVERIFY(desk.messages.boxes.first().startsWith(u"AjouterPrix|"_s));
        const auto bands = [&] {
            return desk.value(u"SELECT group_concat(iQte1 || '-' || iQte2 || ':' || idTva || ':' || sPrixHT || ':' || "
                              "sPrixTTC, ' ') FROM T_PRODUIT_PRIX WHERE idProduit = 5"_s);
        };
        const QString expected = u"1-9:%1:100:121.00 10-999999:%1:50.00:60.5"_s.arg(position);
        QCOMPARE(bands(), expected);
        // More rows than the grid has at first, and a rate that is no more.
        desk.sql(u"UPDATE T_PRODUIT_PRIX SET idTva = 77 WHERE iQte1 = 1"_s);
        for (int more = 0; more < 30; ++more)
            desk.sql(u"INSERT INTO T_PRODUIT_PRIX VALUES (5, %1, %1, 0, '1', '1', NULL)"_s.arg(1000 + more));
        {
            auto many = desk.open(2, 5);
            control<QPushButton>(*many, "cmdValider0").click();
        }
        QCOMPARE(desk.value(u"SELECT count(*) FROM T_PRODUIT_PRIX WHERE idProduit = 5"_s), u"32"_s);
        desk.sql(u"DELETE FROM T_PRODUIT_PRIX WHERE iQte1 >= 1000"_s);
        desk.sql(u"UPDATE T_PRODUIT_PRIX SET idTva = %1"_s.arg(position));
        // Without the tick the rows stay.
        desk.messages.boxes.clear();
        auto again = desk.open(2, 5);
        QCOMPARE(control<Spread>(*again, "fpSpread2").cells().choiceIndex(2, 1), position);
        control<QCheckBox>(*again, "chPrix").click();
        QVERIFY(!control<Spread>(*again, "fpSpread2").isVisibleTo(again.get()));
        control<QPushButton>(*again, "cmdValider0").click();
        QCOMPARE(bands(), expected);
        QCOMPARE(desk.column(u"bPrixQte"_s, 5), u"0"_s);
    }

    void attributesBelongToTheFamily()
    {
        ArticleDesk desk;
        desk.sql(u"INSERT INTO REF_CATEGORIE_P VALUES (9001, 1, 'G', 'Essai', 1, NULL, NULL)"_s);
        desk.sql(u"INSERT INTO REF_CATEGORIE_P VALUES (9002, 9001, 'F', 'Avec', 2, NULL, NULL)"_s);
        desk.sql(u"INSERT INTO REF_CATEGORIE_P VALUES (9003, 9001, 'F', 'Sans', 2, NULL, NULL)"_s);
        desk.sql(u"INSERT INTO REF_LISTE VALUES (9004, 1, 'L', 'Couleurs'), (9005, 9004, 'L', 'Rouge'), "
                 "(9006, 9004, 'L', 'Bleu'), (9007, 1, 'L', 'Vide')"_s);
        desk.sql(u"INSERT INTO REF_CATEGORIE_P VALUES (9011, 9002, 'A', 'Couleur', 3, 'Couleurs', 9004), "
                 "(9012, 9002, 'A', 'Matière', 3, 'Vide', 9007), (9013, 9002, 'A', NULL, 3, NULL, NULL)"_s);
        auto window = desk.open(2, 5);
        auto &category = control<QComboBox>(*window, "cbCategory");
        auto &family = control<QComboBox>(*window, "cbFamille");
        category.setCurrentIndex(category.findText(u"Essai"_s));
        QCOMPARE(family.currentIndex(), -1);
        family.setCurrentIndex(0);
        auto &grid = control<Spread>(*window, "fpSpread1");
        QCOMPARE(grid.MaxRows(), 3);
        QVERIFY(grid.isColumnHidden(3) && grid.isColumnHidden(4));
        QCOMPARE(grid.cells().cellType(2, 1), SpreadModel::CellType::Combo);
        QCOMPARE(grid.cells().choices(2, 1), (QStringList{u"Rouge"_s, u"Bleu"_s}));
        QCOMPARE(grid.cells().cellType(2, 2), SpreadModel::CellType::Text);
        // A typed beginning of a listed value stays what it is; Escape takes a pick back.
        const auto editor = [&] {
            grid.setActiveCell(2, 1);
            grid.edit(grid.currentIndex());
            return grid.findChild<QComboBox *>();
        };
        QComboBox *combo = editor();
        combo->setEditText({});
        QTest::keyClicks(combo->lineEdit(), u"rou"_s);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
        QCOMPARE(grid.text(2, 1), u"rou"_s);
        QTRY_VERIFY(!grid.findChild<QComboBox *>());
        combo = editor();
        combo->setCurrentIndex(1);
        Q_EMIT combo->activated(1);
        QCOMPARE(grid.text(2, 1), u"Bleu"_s);
        QTest::keyClick(combo, Qt::Key_Escape);
        QCOMPARE(grid.text(2, 1), u"rou"_s);
        grid.setText(2, 1, u"Vert d'eau"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        const QString count = u"SELECT count(*) FROM REF_EXTENSION WHERE idRef_Produit = 5"_s;
        QCOMPARE(desk.value(count), u"3"_s);
        QCOMPARE(desk.value(u"SELECT sValeur FROM REF_EXTENSION WHERE idRef_Categorie = 9011"_s), u"Vert d'eau"_s);
        auto again = desk.open(2, 5);
        QCOMPARE(control<Spread>(*again, "fpSpread1").text(2, 1), u"Vert d'eau"_s);
        control<QComboBox>(*again, "cbFamille").setCurrentIndex(1);
        QCOMPARE(control<Spread>(*again, "fpSpread1").MaxRows(), 0);
        control<QPushButton>(*again, "cmdValider0").click();
        QCOMPARE(desk.value(count), u"0"_s);
    }

    void enterAndDeleteStayInTheGrid()
    {
        ArticleDesk desk;
        desk.sql(u"UPDATE T_PRODUIT SET bPrixQte = 1 WHERE idProduit = 1"_s);
        auto window = desk.open(2, 1);
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        auto &grid = control<Spread>(*window, "fpSpread2");
        grid.setFocus();
        grid.setActiveCell(4, 1);
        QTest::keyClicks(&grid, u"7"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(grid.activeRow(), 2);
        QCOMPARE(grid.text(4, 1), u"7"_s);
        QTest::keyClick(&grid, Qt::Key_Return);
        QCOMPARE(grid.activeRow(), 3);
        grid.setActiveCell(4, 1);
        QTest::keyClick(&grid, Qt::Key_Delete);
        QCOMPARE(grid.text(4, 1), QString());
        auto &pictures = control<QListWidget>(*window, "lstPicture");
        pictures.setFocus();
        QTest::keyClick(&pictures, Qt::Key_Return);
        QCOMPARE(desk.desktop.opened.size(), 1);
        auto &groups = control<QComboBox>(*window, "cbCategory");
        groups.setFocus();
        QTest::keyClick(&groups, Qt::Key_Return);
        QVERIFY(control<QPushButton>(*window, "cmdValider0").isEnabled()); // a save would have disabled it
    }
};

ZELVANTOR_SUITE(ArticleGridsTest)
#include "ArticleGridsTest.moc"
