#include "catalogue/ProductSearch.h"
#include "catalogue/frmListProduct.h"
#include "platform/Spread.h"
#include "shell/frmMain.h"
#include "tests/desk/Desk.h"

#include <QMdiArea>
#include <QMdiSubWindow>

using namespace Qt::StringLiterals;

namespace {

/// The list over the sample shop, small enough to count by hand: five products.
class ListDesk : public Desk {
public:
    ListDesk()
    {
        openSample();
        sql(u"DELETE FROM T_PRODUIT WHERE idProduit > 5"_s);
        sql(u"UPDATE T_PRODUIT SET idCategorie = 9101, idFamille = 9102, sMarque = 'ZED' WHERE idProduit = 2"_s);
        sql(u"INSERT INTO REF_CATEGORIE_P VALUES (9101, 1, 'G', 'Essai', 1, NULL, NULL), "
            "(9102, 9101, 'F', 'Sous', 2, NULL, NULL), (9103, 9101, 'F', 'Vide', 2, NULL, NULL)"_s);
        sql(u"UPDATE T_PRODUIT SET sRef = 'AB''1' WHERE idProduit = 3"_s);
        sql(u"UPDATE T_PRODUIT SET sRef = 'XAB' WHERE idProduit = 4"_s);
    }
    std::unique_ptr<frmListProduct> open()
    {
        auto window = std::make_unique<frmListProduct>(session, nullptr);
        window->show();
        return window;
    }
};

Spread &grid(QWidget &window)
{
    return control<Spread>(window, "fpSpread1");
}

QPushButton &button(QWidget &window, const char *name)
{
    return control<QPushButton>(window, name);
}

QString keys(QWidget &window)
{
    QStringList found;
    for (int row = 1; row <= grid(window).MaxRows(); ++row)
        found << grid(window).text(1, row);
    return found.join(u' ');
}

QString enabled(QWidget &window)
{
    QString names;
    for (const char *name : {"cmdAjouter", "cmdModifier", "cmdSupprimer", "cmdConsulter", "cmdDupliquer"})
        names += button(window, name).isEnabled() ? u'1' : u'0';
    return names;
}

} // namespace

class ListTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void filters()
    {
        using Filters = ProductSearch::Filters;
        const Rows<ProductSearch::Filters, QString> rows = {
            {"none", Filters{u" "_s, {}, {}, {}, {}}, QString()},
            {"reference", Filters{u" ab "_s, {}, {}, {}, {}}, u"WHERE ( (T_PRODUIT.sRef LIKE 'AB%'));"_s},
            {"brand with a quote", Filters{{}, u"l'é"_s, {}, {}, {}}, u"WHERE ( (T_PRODUIT.sMarque LIKE 'L''É%'));"_s},
            {"one letter stays one", Filters{u"straß"_s, {}, {}, {}, {}},
             u"WHERE ( (T_PRODUIT.sRef LIKE 'STRAß%'));"_s},
            {"all", Filters{u"1"_s, u"b"_s, 7, 8, 9},
             u"WHERE ( (T_PRODUIT.sRef LIKE '1%') AND (T_PRODUIT.sMarque LIKE 'B%') AND "
             "(T_PRODUIT.idFamille = 7) AND (T_PRODUIT.idCategorie = 8) AND (T_PRODUIT.idFournisseur = 9));"_s}};
        for (const auto &[row, filters, tail] : rows) {
            const Row named(row);
            QCOMPARE(ProductSearch::statement(filters).section(u"FROM  T_PRODUIT "_s, 1), tail);
        }
    }

    void filtersOfTheWindow()
    {
        ListDesk desk;
        auto window = desk.open();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCOMPARE(keys(*window), u"1 2 3 4 5"_s);
        auto &reference = control<QLineEdit>(*window, "txtRef_Article");
        reference.setText(u"ab"_s);
        QTest::keyClick(&reference, Qt::Key_Return);
        QCOMPARE(keys(*window), u"3"_s);
        reference.setText(u"AB'"_s);
        button(*window, "CmdRechPort").click();
        QCOMPARE(keys(*window), u"3"_s);
        button(*window, "Cmdinitialiser").click();
        QCOMPARE(keys(*window), u"3"_s); // empties the filters and doesn't search
        control<QLineEdit>(*window, "txtMarque").setText(u"ze"_s);
        button(*window, "CmdRechPort").click();
        QCOMPARE(keys(*window), u"2"_s);
        button(*window, "Cmdinitialiser").click();
        auto &category = control<QComboBox>(*window, "cbCategory");
        auto &family = control<QComboBox>(*window, "cbFamille");
        category.setCurrentText(u"Essai"_s);
        QCOMPARE(family.count(), 2);
        button(*window, "CmdRechPort").click();
        QCOMPARE(keys(*window), u"2"_s);
        family.setCurrentText(u"Vide"_s);
        button(*window, "CmdRechPort").click();
        QCOMPARE(keys(*window), QString());
        QCOMPARE(control<QLineEdit>(*window, "txtAchat").text() + control<QLineEdit>(*window, "txtVente").text(),
                 u"00"_s);
        QCOMPARE(enabled(*window), u"10000"_s);
        QCOMPARE(desk.messages.boxes, QStringList());
    }

    void totalsTakeNullsAsTold()
    {
        ListDesk desk;
        desk.sql(u"UPDATE T_PRODUIT SET nQuantity = 2, sPrixAchatTTC = '10', sPrixVenteTTC = '0.1'"_s);
        desk.sql(u"UPDATE T_PRODUIT SET nQuantity = NULL WHERE idProduit = 2"_s);
        desk.sql(u"UPDATE T_PRODUIT SET nQuantity = 5, sPrixAchatTTC = '' WHERE idProduit = 3"_s);
        desk.sql(u"UPDATE T_PRODUIT SET nQuantity = NULL, sPrixVenteTTC = NULL WHERE idProduit = 4"_s);
        auto window = desk.open();
        // 20, then the quantity of row 1 again, nothing, the quantity of row 3, 20
        QCOMPARE(control<QLineEdit>(*window, "txtAchat").text(), u"110"_s);
        QCOMPARE(control<QLineEdit>(*window, "txtVente").text(), u"1.1"_s);
        QCOMPARE(grid(*window).text(4, 2), QString());
        QCOMPARE(ProductSearch::totalText(12345678.F), u"1.234568E+07"_s);
    }

    void rowsGiveTheCommands()
    {
        ListDesk desk;
        auto window = desk.open();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCOMPARE(enabled(*window), u"10000"_s);
        Spread &table = grid(*window);
        const auto click = [&table](int row) {
            const QRect cell = table.visualRect(table.cells().index(row - 1, 2));
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
        };
        click(2);
        QCOMPARE(enabled(*window), u"11111"_s);
        QCOMPARE(desk.session.glIdProduit, 2);
        QTest::keyClick(&table, Qt::Key_Down);
        QCOMPARE(desk.session.glIdProduit, 3);
        QTest::keyClick(&table, Qt::Key_End);
        QCOMPARE(desk.session.glIdProduit, 5);
        button(*window, "CmdRechPort").click();
        QCOMPARE(enabled(*window), u"10000"_s);
        for (const int hidden : {1, 8, 11, 12, 14, 15})
            QVERIFY(table.isColumnHidden(hidden - 1));
    }

    void rightsTakeCommandsAway()
    {
        ListDesk desk;
        desk.session.gsLogin = u"marie"_s;
        desk.session.gsDroits = u"S1:/0010/"_s;
        auto window = desk.open();
        grid(*window).setActiveCell(2, 1);
        QCOMPARE(enabled(*window), u"00101"_s);
        desk.session.gsLogin = u"Admin"_s;
        auto all = desk.open();
        grid(*all).setActiveCell(2, 1);
        QCOMPARE(enabled(*all), u"11111"_s);
    }

    void productsAreOpenedFromTheirRow()
    {
        ListDesk desk;
        auto window = desk.open();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        Spread &table = grid(*window);
        table.setFocus();
        table.setActiveCell(2, 4);
        Visitor visitor;
        visitor.whenShown(u"frmArticle"_s, [&desk](QWidget &article) {
            QCOMPARE(desk.session.giModeProduit, 2);
            QCOMPARE(control<QLineEdit>(article, "txtRef_Article").text(), u"XAB"_s);
            control<QLineEdit>(article, "txtNom_0").setText(u"Changé"_s);
            control<QPushButton>(article, "cmdValider0").click();
            control<QPushButton>(article, "cmdFermer").click();
        });
        QTest::keyClick(&table, Qt::Key_Return);
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(table.text(3, 4), u"Changé"_s);
        QCOMPARE(table.activeRow(), 4);
        QCOMPARE(window->focusWidget(), &table);
        QCOMPARE(enabled(*window), u"11111"_s);
        // A new product that is left takes a number and changes neither the list nor the row.
        visitor.whenShown(u"frmArticle"_s,
                          [](QWidget &article) { control<QPushButton>(article, "cmdFermer").click(); });
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(&table, Qt::Key_Insert);
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(keys(*window), u"1 2 3 4 5"_s);
        QCOMPARE(desk.session.glIdProduit, 4);
        visitor.whenShown(u"frmArticle"_s, [&desk](QWidget &article) {
            QCOMPARE(desk.session.giModeProduit, 3);
            control<QPushButton>(article, "cmdFermer").click();
        });
        button(*window, "cmdConsulter").click();
        QCOMPARE(visitor.waiting(), QStringList());
    }

    void whatIsGoneIsTold()
    {
        ListDesk desk;
        auto window = desk.open();
        const QString counter = desk.value(u"SELECT Ref_Produit FROM PARAM"_s);
        for (const char *command : {"cmdModifier", "cmdDupliquer"}) {
            grid(*window).setActiveCell(2, 1);
            desk.sql(u"DELETE FROM T_PRODUIT WHERE idProduit = "_s + grid(*window).text(1, 1));
            button(*window, command).click();
            QCOMPARE(desk.messages.boxes, QStringList{u"ZELVANTOR|Ce produit a été supprimé ailleurs."_s});
            desk.messages.boxes.clear();
        }
        QCOMPARE(keys(*window), u"3 4 5"_s);
        QCOMPARE(desk.value(u"SELECT Ref_Produit FROM PARAM"_s), counter);
    }

    void duplicatesAreComplete()
    {
        ListDesk desk;
        desk.sql(u"INSERT INTO T_PRODUIT_PRIX VALUES (1, 1, 9, 2, '10', '12', '5')"_s);
        const int next = desk.value(u"SELECT Ref_Produit FROM PARAM"_s).toInt() + 1;
        const auto counts = [&desk](int idProduit) -> QString {
            QStringList found;
            for (const QString &table : {u"T_PRODUIT_DOC"_s, u"T_PRODUIT_IMAGE"_s, u"T_PRODUIT_PRIX"_s})
                found << desk.value(u"SELECT count(*) FROM "_s + table + u" WHERE idProduit = "_s
                                    + QString::number(idProduit));
            return found.join(u' ') + u' '
                   + desk.value(
                       u"SELECT count(*) || ' ' || group_concat(sValeur) FROM REF_EXTENSION WHERE idRef_Produit = "_s
                       + QString::number(idProduit));
        };
        const QString others = u"sNomES || dDate_creation || coalesce(sEan, '') || nQuantity || sPrixVenteTTC"_s;
        const auto of = [&](int idProduit) {
            return desk.value(u"SELECT "_s + others + u" FROM T_PRODUIT WHERE idProduit = "_s
                              + QString::number(idProduit));
        };
        auto window = desk.open();
        grid(*window).setActiveCell(2, 1);
        button(*window, "cmdDupliquer").click();
        QCOMPARE(desk.messages.boxes, QStringList());
        QCOMPARE(keys(*window), u"1 2 3 4 5 "_s + QString::number(next));
        QVERIFY(grid(*window).text(2, 6).endsWith(desk.clock.today().toString(u"/yyyyMM"_s)));
        QCOMPARE(counts(next), counts(1));
        QVERIFY(counts(1) != counts(9999));
        QCOMPARE(of(next), of(1));
        QCOMPARE(desk.value(u"SELECT sPourcent FROM T_PRODUIT_PRIX WHERE idProduit = "_s + QString::number(next)),
                 u"5"_s);
        desk.sql(u"DELETE FROM REF_EXTENSION"_s);
        desk.sql(u"DELETE FROM T_PRODUIT_IMAGE"_s);
        button(*window, "cmdDupliquer").click();
        QCOMPARE(desk.messages.boxes, QStringList());
        QCOMPARE(desk.session.glIdProduit, 1);
    }

    void deletingLeavesPricesBehind()
    {
        ListDesk desk;
        desk.sql(u"INSERT INTO T_PRODUIT_PRIX VALUES (2, 1, 9, 2, '10', '12', '5')"_s);
        auto window = desk.open();
        grid(*window).setActiveCell(2, 2);
        desk.messages.answer = false;
        button(*window, "cmdSupprimer").click();
        QCOMPARE(keys(*window), u"1 2 3 4 5"_s);
        desk.messages.answer = true;
        button(*window, "cmdSupprimer").click();
        QCOMPARE(keys(*window), u"1 3 4 5"_s);
        QCOMPARE(enabled(*window), u"10000"_s);
        QTest::keyClick(&grid(*window), Qt::Key_Down);
        QCOMPARE(desk.session.glIdProduit, 3); // in its place
        QCOMPARE(desk.value(u"SELECT count(*) FROM T_PRODUIT_PRIX WHERE idProduit = 2"_s), u"1"_s);
        QCOMPARE(desk.value(u"SELECT count(*) FROM T_PRODUIT_IMAGE WHERE idProduit = 2"_s), u"0"_s);
    }

    void widthsAreRemembered()
    {
        ListDesk desk;
        {
            auto window = desk.open();
            grid(*window).setColumnWidth(1, 47);
            window->close();
        }
        QCOMPARE(desk.setting(u"frmListProduit.fpSpread1"_s).count(u'|'), 15);
        auto again = desk.open();
        QCOMPARE(grid(*again).columnWidth(1), 47);
        QVERIFY(grid(*again).isColumnHidden(0));
        desk.setSetting(u"frmListProduit.fpSpread1"_s, u"60|-1|33|"_s);
        button(*again, "CmdRechPort").click();
        QCOMPARE(grid(*again).columnWidth(1), 47);
        QCOMPARE(grid(*again).columnWidth(2), 33);
    }

    void exportsWhatTheGridShows()
    {
        ListDesk desk;
        desk.sql(u"UPDATE T_PRODUIT SET sNomFR = '<b>名 & \"x\"' WHERE idProduit = 1"_s);
        auto window = desk.open();
        const auto exportTo = [&](const QString &name) {
            desk.files.path = desk.path(name);
            desk.messages.boxes.clear();
            button(*window, "cmdExporter").click();
            return desk.messages.boxes.value(0).section(u'\n', 0, 0);
        };
        const auto told = [&desk](const QString &key) -> QString {
            return u"ZELVANTOR|"_s + desk.session.localisation.Traduire(u"MESSAGES"_s, key);
        };
        QCOMPARE(exportTo(u"liste.TXT"_s), told(u"120"_s));
        const QStringList lines = QString::fromUtf8(Files::read(desk.files.path)).split(u"\r\n"_s);
        QCOMPARE(lines.size(), 1 + 5 + 1);
        QCOMPARE(lines[1].split(u'\t').size(), 9);
        QCOMPARE(lines[1].section(u'\t', 1, 1), u"<b>名 & \"x\""_s);
        QCOMPARE(exportTo(u"liste.html"_s), told(u"120"_s));
        const QByteArray html = Files::read(desk.files.path);
        QVERIFY(html.contains(u"&lt;b&gt;名 &amp; &quot;x&quot;"_s.toUtf8()) && html.contains("XAB"));
        QCOMPARE(exportTo(u"liste.xls"_s), told(u"120"_s));
        QCOMPARE(Files::read(desk.files.path), html);
        QCOMPARE(exportTo(u"liste.htm"_s), told(u"121"_s));
        QVERIFY(!QFile::exists(desk.files.path));
        QCOMPARE(exportTo(u"nulle/part.txt"_s), told(u"121"_s));
        desk.files.path.clear();
        desk.messages.boxes.clear();
        button(*window, "cmdExporter").click();
        QCOMPARE(desk.messages.boxes, QStringList());
        control<QLineEdit>(*window, "txtRef_Article").setText(u"nothing like it"_s);
        button(*window, "CmdRechPort").click();
        desk.files.asked = 0;
        button(*window, "cmdExporter").click();
        button(*window, "cmdImprimer").click();
        QCOMPARE(desk.files.asked, 0);
    }

    void opensOnceInTheFrame()
    {
        ListDesk desk;
        frmMain main(desk.session);
        main.show();
        auto &frame = control<QMdiArea>(main, "mdi");
        desk.screens.showProducts(&frame);
        desk.screens.showProducts(&frame);
        QCOMPARE(frame.subWindowList().size(), 1);
        QWidget *list = frame.subWindowList().first()->widget();
        QCOMPARE(list->objectName(), u"frmListProduct"_s);
        button(*list, "cmdFermer").click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(frame.subWindowList().size(), 0);
        QVERIFY(!desk.setting(u"frmListProduit.fpSpread1"_s).isEmpty());
        // Leaving the program closes the list in order too.
        desk.setSetting(u"frmListProduit.fpSpread1"_s, QString());
        control<QToolButton>(main, "produit").click();
        QCOMPARE(frame.subWindowList().size(), 1);
        main.close();
        QVERIFY(!desk.setting(u"frmListProduit.fpSpread1"_s).isEmpty());
    }
};

ZELVANTOR_SUITE(ListTest)
#include "ListTest.moc"
