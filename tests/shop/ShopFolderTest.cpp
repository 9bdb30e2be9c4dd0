#include "platform/CodePage.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList fixedPages = {u"checkout.htm"_s,     u"checkout_cc.htm"_s, u"checkout_mf.htm"_s, u"contact.htm"_s,
                                u"exmplmenu_var.js"_s, u"expedition.htm"_s,  u"index.htm"_s,       u"managecart.html"_s,
                                u"nopcart.js"_s,       u"privacy.htm"_s,     u"searchdb.js"_s,     u"searchfunc.html"_s,
                                u"terme.htm"_s};

} // namespace

class ShopFolderTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void encodingsAndLineEnds()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"Théière «œ» € Ω"_s);
        shop.data.settings.txtSymbol = u"€"_s;
        shop.data.settings.txtTitre = u"L’été"_s;
        shop.data.settings.fpSpread12 = {{u"À domicile"_s, u"6.90"_s}};
        shop.run(shop.data);
        const auto files = Files::tree(shop.path(u"out"_s));
        for (auto it = files.begin(); it != files.end(); ++it) {
            QByteArray bytes = it.value();
            QVERIFY2(!bytes.contains("\xC3") && !bytes.contains("\xE2\x82\xAC"), qPrintable(it.key()));
            if (it.key() == u"contact.htm"_s)
                bytes.replace("P8\n\n", "P8\r\n\r\n");
            bytes.replace("\r\n", "");
            QVERIFY2(!bytes.contains('\n') && !bytes.contains('\r'), qPrintable(it.key()));
            QVERIFY2(it.value().endsWith("\r\n"), qPrintable(it.key()));
        }
        for (const QString &name : {u"R1.htm"_s, u"g2_s11.htm"_s, u"searchdb.js"_s})
            QVERIFY2(files[name].contains("Th\xE9i\xE8re \xAB\x9C\xBB \x80 ?"), qPrintable(name));
        QVERIFY(files[u"index.htm"_s].contains("<TITLE>L\x92\xE9t\xE9</TITLE>"));
        QVERIFY(files[u"nopcart.js"_s].contains("'\x80'"));
        QVERIFY(files[u"checkout.htm"_s].contains("\xC0 domicile"));
        // What the code page lacks is told, page by page.
        QStringList told;
        for (const Incident &incident : shop.report.incidents())
            if (incident.kind == Incident::CharactersLost)
                told << incident.piece + u' ' + incident.cause;
        QVERIFY2(told.contains(u"R1.htm 1"_s), qPrintable(told.join(u", "_s)));
        QVERIFY(told.filter(u"g2_s11.htm"_s).size() == 1);
    }

    void storeFullOfNulls()
    {
        TestShop shop;
        for (const QString &table : {u"T_PRODUIT"_s, u"T_PRODUIT_IMAGE"_s, u"REF_EXTENSION"_s, u"REF_CATEGORIE_P"_s,
                                     u"REF_INFO"_s, u"REF_LANGUE_U"_s, u"REF_REMARQUE"_s, u"PARAM"_s})
            shop.sql(u"INSERT INTO %1 DEFAULT VALUES"_s.arg(table));
        shop.sql(u"INSERT INTO T_PRODUIT (idCategorie, idFamille) VALUES (2, 11)"_s);
        shop.sql(u"INSERT INTO REF_CATEGORIE_P (idRef_parent) VALUES (11)"_s);
        shop.sql(u"INSERT INTO T_PRODUIT_IMAGE (idProduit, iSmall) VALUES (2, 0)"_s);
        shop.sql(u"INSERT INTO REF_EXTENSION (idRef_Produit) VALUES (2)"_s);
        const ShopData data = shop.dataFromStore();
        QCOMPARE(data.gInfo, QStringList(u" "_s));
        shop.run(data);
        const auto files = Files::tree(shop.path(u"out"_s));
        QStringList names = fixedPages;
        names << u".htm"_s << u"g2_s11.htm"_s;
        names.sort();
        QCOMPARE(files.keys(), names);
        QVERIFY(files[u"g2_s11.htm"_s].contains("> / <"));
        // No text of a language is missing from the store's side: only the language file is.
        for (const Incident &incident : shop.report.incidents())
            QCOMPARE(incident.kind, Incident::LanguageFile);
    }

    void secondRun()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"Bol"_s);
        shop.product(2, u"R2"_s, u"Tasse"_s);
        Files::write(shop.outFile(u"R9.htm"_s), "of an earlier run");
        Files::write(shop.outFile(u".zelvantor-part-1"_s), "half a page");
        Files::write(shop.outFile(u"images/.zelvantor-part-1"_s), "half a picture");
        Files::write(shop.outFile(u"images/old.jpg"_s), "picture");
        Files::write(shop.outFile(u"sub/page.htm"_s), "not ours");
        shop.run(shop.data);
        QStringList names = Files::tree(shop.path(u"out"_s)).keys();
        QVERIFY(!names.contains(u"R9.htm"_s) && names.filter(u"part"_s).isEmpty());
        QVERIFY(names.contains(u"images/old.jpg"_s) && names.contains(u"sub/page.htm"_s)
                && names.contains(u"R2.htm"_s));
        shop.sql(u"DELETE T_PRODUIT.* FROM T_PRODUIT WHERE idProduit = 2;"_s);
        shop.run(shop.data);
        names = Files::tree(shop.path(u"out"_s)).keys();
        QVERIFY(names.contains(u"R1.htm"_s) && !names.contains(u"R2.htm"_s));
        QVERIFY(!Files::read(shop.outFile(u"g2_s11.htm"_s)).contains("Tasse"));
    }

    void preparing()
    {
        TestShop shop;
        for (const QString &name : {u"a.gif"_s, u"tri.gif"_s, u"tridown.gif"_s, u"buy.gif"_s, u"buy.png"_s,
                                    u"menu_com.js"_s, u"store.css"_s, u"blank.htm"_s, u"notes.txt"_s, u"photo.jpg"_s})
            Files::write(shop.path(u"img/"_s + name), name.toUtf8());
        Files::write(shop.path(u"logo.png"_s), "logo");
        ShopFolder folder(shop.path(u"out"_s), shop.report);
        QVERIFY(folder.prepare(shop.path(u"img"_s)));
        folder.copyLogo(shop.path(u"logo.png"_s));
        const auto files = Files::tree(shop.path(u"out"_s));
        QCOMPARE(files.keys(), QStringList({u"blank.htm"_s, u"images/a.gif"_s, u"images/buy.gif"_s, u"images/buy.png"_s,
                                            u"images/logo.gif"_s, u"images/tri.gif"_s, u"images/tridown.gif"_s,
                                            u"menu_com.js"_s, u"store.css"_s, u"tri.gif"_s, u"tridown.gif"_s}));
        QCOMPARE(files[u"images/logo.gif"_s], "logo");
        QVERIFY(shop.report.incidents().empty());
        folder.copyLogo(u"  "_s);
        QVERIFY(shop.report.incidents().empty());
        folder.copyLogo(shop.path(u"none.png"_s));
        QCOMPARE(shop.report.incidents().back().kind, Incident::LogoNotCopied);
    }

    void copies()
    {
        TestShop shop;
        const auto path = [&shop](const QString &name) { return shop.path(name); };
        Files::write(path(u"a/x.jpg"_s), "one");
        Files::write(path(u"b/x.jpg"_s), "two");
        Files::write(path(u"c/x.jpg"_s), "two");
        QVERIFY(QDir().mkpath(path(u"d/x.jpg"_s)));
        ShopFolder folder(path(u"out"_s), shop.report);
        QVERIFY(folder.prepare(path(u"a"_s)));
        folder.picture(path(u"a/x.jpg"_s), u"x.jpg"_s);
        folder.picture(path(u"a/x.jpg"_s), u"x.jpg"_s);
        QVERIFY(shop.report.incidents().empty());
        QCOMPARE(folder.pictures(), 1);
        folder.picture(path(u"b/x.jpg"_s), u"x.jpg"_s);
        QCOMPARE(shop.report.incidents().back().kind, Incident::PicturesOfOneName);
        QCOMPARE(Files::read(shop.outFile(u"images/x.jpg"_s)), "two");
        const size_t told = shop.report.incidents().size();
        folder.picture(path(u"c/x.jpg"_s), u"x.jpg"_s); // the same picture in another folder
        QCOMPARE(shop.report.incidents().size(), told);
        folder.picture(path(u"a/x.jpg"_s), u"x.jpg"_s); // the later one wins, also when it was there before
        QCOMPARE(Files::read(shop.outFile(u"images/x.jpg"_s)), "one");
        for (const QString &name : {u"d/x.jpg"_s, u"none.jpg"_s}) {
            folder.picture(path(name), u"y.jpg"_s);
            QCOMPARE(shop.report.incidents().back().kind, Incident::PictureNotCopied);
            QCOMPARE(shop.report.incidents().back().piece, path(name));
        }
        QVERIFY(!QFile::exists(shop.outFile(u"images/y.jpg"_s)));
        for (const QString &name : {u""_s, u".."_s, u"../x.jpg"_s, u"a\\b.jpg"_s, u"C:x.jpg"_s}) {
            folder.picture(path(u"a/x.jpg"_s), name);
            folder.page({name, u"x"_s});
        }
        QCOMPARE(Files::tree(path(u"out"_s)).keys(), QStringList(u"images/x.jpg"_s));
        QVERIFY(QDir().mkpath(shop.outFile(u"blocked.htm"_s)));
        folder.page({u"blocked.htm"_s, u"x"_s});
        QCOMPARE(folder.pages(), 0);
        folder.page({u"index.htm"_s, u"x"_s});
        QCOMPARE(folder.pages(), 1);
        QCOMPARE(folder.pictures(), 1);
    }
};

ZELVANTOR_SUITE(ShopFolderTest)
#include "ShopFolderTest.moc"
