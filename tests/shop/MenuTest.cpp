#include "shop/GenererMenu.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Two groups, "Table" with Bols and Tasses, "Jardin" with Pots.
Selection twoGroups()
{
    Selection selection;
    selection.rows = {{2, {}, u" Table "_s, true, 1, 2},
                      {{}, 11, u"Bols "_s},
                      {{}, 12, u"Tasses"_s},
                      {3, {}, u"Jardin"_s, true, 4, 4},
                      {{}, 21, u"Pots"_s}};
    selection.groups = 2;
    return selection;
}

ShopData menuData(bool chTerme = false, bool chExpedition = false, bool chPrivacy = false)
{
    ShopData data = TestShop().data;
    data.settings.chTerme = chTerme;
    data.settings.chExpedition = chExpedition;
    data.settings.chPrivacy = chPrivacy;
    return data;
}

/// The statements of the arrays, in their order.
QStringList arrays(const MenuScript &script)
{
    return script.page.text.split(u"\r\n"_s).filter(QRegularExpression(u"^Menu\\d[\\d_]*=new Array"_s));
}

int firstLevel(const MenuScript &script)
{
    static const QRegularExpression setting(u"NoOffFirstLineMenus\\s*=\\s*(\\d+)"_s);
    return setting.match(script.page.text).captured(1).toInt();
}

QStringList files(const MenuScript &script)
{
    QStringList names;
    for (const ListPage &page : script.listPages)
        names << page.fileName;
    return names;
}

} // namespace

class MenuTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everythingTicked()
    {
        const MenuScript script = GenererMenu(menuData(true, true, true), twoGroups());
        QCOMPARE(script.page.fileName, u"exmplmenu_var.js"_s);
        QCOMPARE(arrays(script), QStringList({
                                     u"Menu1=new Array(\"Tm1\",\"index.htm\",\"\",0,20,138);"_s,
                                     u"Menu2=new Array(\"Tm2\",\"\",\"\",2);"_s,
                                     u"Menu2_1=new Array(\"Table\",\"blank.htm\",\"\",2,20,150);"_s,
                                     u"Menu2_1_1=new Array(\"Bols\",\"g2_s11.htm\",\"\",0,20,150);"_s,
                                     u"Menu2_1_2=new Array(\"Tasses\",\"g2_s12.htm\",\"\",0);"_s,
                                     u"Menu2_2=new Array(\"Jardin\",\"blank.htm\",\"\",1);"_s,
                                     u"Menu2_2_1=new Array(\"Pots\",\"g3_s21.htm\",\"\",0,20,150);"_s,
                                     u"Menu3=new Array(\"Tm3\",\"contact.htm\",\"\",0);"_s,
                                     u"Menu4=new Array(\"Tm4\",\"managecart.html\",\"\",0);"_s,
                                     u"Menu5=new Array(\"Tm5\",\"checkout.htm\",\"\",0);"_s,
                                     u"Menu6=new Array(\"Tm6\",\"terme.htm\",\"\",0);"_s,
                                     u"Menu7=new Array(\"Tm7\",\"expedition.htm\",\"\",0);"_s,
                                     u"Menu8=new Array(\"Tm8\",\"privacy.htm\",\"\",0);"_s,
                                 }));
        QCOMPARE(firstLevel(script), 8);
        QCOMPARE(files(script), QStringList({u"g2_s11.htm"_s, u"g2_s12.htm"_s, u"g3_s21.htm"_s}));
        QCOMPARE(script.listPages[1].category + u'/' + script.listPages[1].family, u"Table/Tasses"_s);
    }

    void nothingTicked()
    {
        Selection selection = twoGroups();
        selection.tickAll(false);
        const MenuScript script = GenererMenu(menuData(), selection);
        QCOMPARE(arrays(script).size(), 5);
        QCOMPARE(arrays(script)[1], u"Menu2=new Array(\"Tm2\",\"\",\"\",2);"_s);
        QCOMPARE(firstLevel(script), 5);
        QVERIFY(script.listPages.empty());
        // The same menu, but for the count, as that of a store without products.
        QVERIFY(arrays(GenererMenu(menuData(), {})).contains(u"Menu2=new Array(\"Tm2\",\"\",\"\",0);"_s));
        selection.tickAll(true);
        QCOMPARE(files(GenererMenu(menuData(), selection)).size(), 3);
    }

    void untickedGroupsAndSubGroups()
    {
        Selection selection = twoGroups();
        selection.rows[1].ticked = false; // Bols
        MenuScript script = GenererMenu(menuData(), selection);
        // The count of the group stays that of all its sub-groups.
        QVERIFY(arrays(script).contains(u"Menu2_1=new Array(\"Table\",\"blank.htm\",\"\",2,20,150);"_s));
        QVERIFY(arrays(script).contains(u"Menu2_1_1=new Array(\"Tasses\",\"g2_s12.htm\",\"\",0,20,150);"_s));
        QCOMPARE(files(script), QStringList({u"g2_s12.htm"_s, u"g3_s21.htm"_s}));

        selection.rows[4].ticked = false; // Pots, all there is under Jardin
        script = GenererMenu(menuData(), selection);
        QVERIFY(arrays(script).contains(u"Menu2_2=new Array(\"Jardin\",\"blank.htm\",\"\",1);"_s));
        QCOMPARE(arrays(script).filter(u"Menu2_2_"_s), QStringList());

        selection = twoGroups();
        selection.rows[0].ticked = false; // Table: its ticked sub-groups don't count without it
        script = GenererMenu(menuData(), selection);
        QVERIFY(arrays(script).contains(u"Menu2=new Array(\"Tm2\",\"\",\"\",2);"_s));
        QVERIFY(arrays(script).contains(u"Menu2_1=new Array(\"Jardin\",\"blank.htm\",\"\",1,20,150);"_s));
        QCOMPARE(arrays(script).filter(u"Menu2_2"_s), QStringList());
        QCOMPARE(files(script), QStringList(u"g3_s21.htm"_s));
    }

    void options()
    {
        // The ticks of terms, delivery, privacy.
        const Rows<QString, QStringList> rows = {
            {"none", u"000"_s, QStringList()},
            {"terms", u"100"_s, QStringList(u"Menu6 Tm6 terme.htm"_s)},
            {"delivery", u"010"_s, QStringList(u"Menu6 Tm7 expedition.htm"_s)},
            {"privacy", u"001"_s, QStringList(u"Menu6 Tm8 privacy.htm"_s)},
            {"terms and privacy", u"101"_s, QStringList({u"Menu6 Tm6 terme.htm"_s, u"Menu7 Tm8 privacy.htm"_s})}};
        for (const auto &[row, ticks, entries] : rows) {
            const Row named(row);
            const MenuScript script =
                GenererMenu(menuData(ticks[0] == u'1', ticks[1] == u'1', ticks[2] == u'1'), twoGroups());
            QStringList found;
            static const QRegularExpression entry(u"^(Menu[6-9])=new Array\\(\"(.*)\",\"(.*)\",\"\",0\\);$"_s);
            for (const QString &line : arrays(script))
                if (const auto match = entry.match(line); match.hasMatch())
                    found << match.captured(1) + u' ' + match.captured(2) + u' ' + match.captured(3);
            QCOMPARE(found, entries);
            QCOMPARE(firstLevel(script), 5 + int(entries.size()));
        }
    }

    void namesGoInUnescaped()
    {
        Selection selection = twoGroups();
        selection.rows[1].name = u"Bols d'hiver @ 2"_s;
        QVERIFY(arrays(GenererMenu(menuData(), selection))
                    .contains(u"Menu2_1_1=new Array(\"Bols d\"hiver ' 2\",\"g2_s11.htm\",\"\",0,20,150);"_s));
    }

    void selectionFromTheStore()
    {
        TestShop shop;
        const auto add = [&shop](int id, int category, int family, const QString &names) {
            shop.product(id, u"R%1"_s.arg(id), u"N"_s);
            shop.sql(
                u"UPDATE T_PRODUIT SET idCategorie=%1, idFamille=%2, sCategorie='%3', sFamille='%4' WHERE idProduit=%5"_s
                    .arg(category)
                    .arg(family)
                    .arg(names.section(u'/', 0, 0), names.section(u'/', 1))
                    .arg(id));
        };
        add(1, 3, 21, u"Jardin/Pots"_s);
        add(2, 2, 12, u"Table/Tasses"_s);
        add(3, 2, 11, u"Table/Bols"_s);
        add(4, 2, 12, u"TABLE/tasses "_s); // the same names, since case and trailing blanks don't count
        add(5, 3, 22, u"Autre/Outils"_s);  // one group breaks only where its number changes
        const Selection selection = shop.selection();
        QStringList seen;
        for (const SelectionRow &row : selection.rows)
            seen << (row.idCategorie ? u"+%1 %2-%3"_s.arg(row.name).arg(row.first).arg(row.last)
                                     : u"%1 %2"_s.arg(row.name.trimmed().toLower()).arg(row.idFamille.value_or(-1)));
        QCOMPARE(seen, QStringList({u"+Table 1-2"_s, u"bols 11"_s, u"tasses 12"_s, u"+Jardin 4-5"_s, u"pots 21"_s,
                                    u"outils 22"_s}));
        QCOMPARE(selection.groups, 2);
        QCOMPARE(shop.pages().order.filter(u"g"_s),
                 QStringList({u"g2_s11.htm"_s, u"g2_s12.htm"_s, u"g3_s21.htm"_s, u"g3_s22.htm"_s}));
    }

    void selectionWithNulls()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"N"_s);
        shop.product(2, u"R2"_s, u"N"_s);
        shop.sql(u"UPDATE T_PRODUIT SET idFamille = NULL, sFamille = NULL WHERE idProduit = 1"_s);
        shop.sql(u"INSERT INTO T_PRODUIT (idProduit) VALUES (3)"_s); // no group before it to count to
        const Selection selection = shop.selection();
        QCOMPARE(selection.groups, 1);
        const MenuScript script = GenererMenu(shop.data, selection);
        QCOMPARE(files(script), QStringList(u"g2_s11.htm"_s));
        QVERIFY(arrays(script).contains(u"Menu2_1=new Array(\"Table\",\"blank.htm\",\"\",2,20,150);"_s));
        QCOMPARE(arrays(script).filter(u"Menu2_1_"_s).size(), 1);
    }
};

ZELVANTOR_SUITE(MenuTest)
#include "MenuTest.moc"
