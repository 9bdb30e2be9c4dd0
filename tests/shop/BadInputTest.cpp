#include "platform/CodePage.h"
#include "tests/shop/ShopCommand.h"
#include "tests/support/Suite.h"

#include <QRegularExpression>

#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace Spoiling;

/// The command over a sample shop that something is wrong with. Whatever it is: a line names the piece and the
/// cause, and the rest of the shop is made.
class BadInputTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyLanguage_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("name");
        QTest::newRow("FR") << u"language-fr.js"_s << u"français"_s;
        QTest::newRow("EN") << u"language-en.js"_s << u"english"_s;
        QTest::newRow("NL") << u"language-nl.js"_s << u"nederlands"_s;
        QTest::newRow("DE") << u"language-ge.js"_s << u"deutsch"_s;
        QTest::newRow("IT") << u"language-it.js"_s << u"italiano"_s;
        QTest::newRow("ES") << u"language-sp.js"_s << u"español"_s;
    }

    /// The unspoilt sample gives a whole shop, in any of its languages.
    void everyLanguage()
    {
        QFETCH(QString, script);
        QFETCH(QString, name);
        const ShopCommand shop(ShopCommand::WholeSample);
        const QString code = QString::fromLatin1(QTest::currentDataTag());
        const ShopCommand::Run run = shop.run({u"--language"_s, code.toLower()});
        QCOMPARE(run.err, QString());
        QCOMPARE(run.status, 0);
        const auto files = Files::tree(shop.output());
        QVERIFY(CodePage::decode(files[u"index.htm"_s]).contains(u"CONTENT=\"%1, %2\""_s.arg(name, code)));
        QVERIFY(files[u"managecart.html"_s].contains(script.toUtf8()) && files.contains(script));
        // What no step fills stays, and only that.
        static const QRegularExpression left(
            u"\\[([A-Z]{2,}|titre|titrecart|nom|prix|devis|produit|description|contact|"
            "tcontact|bienvenue|generated|reference|refprod|language|attribut|"
            "imageprod|imagesmall|messageaccueil|transport|company)\\]"_s);
        QSet<QString> found;
        for (auto it = files.begin(); it != files.end(); ++it)
            if (it.key().contains(u".htm"_s) || it.key() == u"nopcart.js"_s || it.key() == u"exmplmenu_var.js"_s)
                for (auto match = left.globalMatch(CodePage::decode(it.value())); match.hasNext();)
                    found << (it.key().startsWith(u'0') ? u"product"_s : it.key()) + match.next().captured();
        QSet<QString> expected = {u"product[TAGEMAIL]"_s, u"nopcart.js[MTAXE]"_s};
        for (const QString &page : {u"checkout_cc.htm"_s, u"checkout_mf.htm"_s}) {
            if (code == u"FR"_s)
                expected << page + u"[RECEPIENT]"_s;
            else
                expected << page + u"[PPEMAIL]"_s << page + u"[PPRETOUR]"_s << page + u"[PPDEVISE]"_s;
        }
        QCOMPARE(found, expected);
        // The same again changes nothing.
        QCOMPARE(shop.run({u"--language"_s, code}).status, 0);
        QVERIFY(Files::tree(shop.output()) == files);
    }

    void unusableStore_data()
    {
        QTest::addColumn<Spoil>("spoil");
        QTest::addColumn<QString>("cause");
        const QString store = u"zelvantor.mdb"_s;
        QTest::newRow("missing") << remove(store) << u" 14: "_s;
        QTest::newRow("not a store") << change(store, [](auto) { return QByteArray(9999, 'x'); }) << u" 26: "_s;
        QTest::newRow("cut in half") << change(store, [](auto bytes) { return bytes.left(bytes.size() / 2); })
                                     << u" 11: "_s;
        QTest::newRow("schema overwritten")
            << change(store, [](auto bytes) { return QByteArray(bytes).replace(100, 3000, QByteArray(3000, '\xFF')); })
            << u" 11: "_s;
    }

    void unusableStore()
    {
        const ShopCommand shop;
        QFETCH(Spoil, spoil);
        QFETCH(QString, cause);
        spoil(shop.application());
        const ShopCommand::Run run = shop.run();
        QCOMPARE(run.status, 2);
        QVERIFY2(run.tells(u"zelvantor.mdb"_s, cause), qPrintable(run.err));
        QVERIFY(!QFile::exists(shop.output()));
    }

    void lockedStore()
    {
        const ShopCommand shop;
        const auto before = Files::tree(shop.application());
        sqlite3 *other = nullptr;
        sqlite3_open((shop.application() + u"/zelvantor.mdb"_s).toUtf8().constData(), &other);
        QCOMPARE(sqlite3_exec(other, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE;", nullptr, nullptr, nullptr),
                 SQLITE_OK);
        // Nothing of this process may read the store meanwhile: closing it would let go of the lock.
        const ShopCommand::Run run = shop.start(shop.folders());
        sqlite3_close(other);
        QCOMPARE(run.status, 2);
        QVERIFY2(run.tells(u"zelvantor.mdb"_s, u" 5: "_s), qPrintable(run.err));
        QVERIFY(!QFile::exists(shop.output()));
        QVERIFY(Files::tree(shop.application()) == before);
    }

    void missingPieces_data()
    {
        QTest::addColumn<Spoil>("spoil");
        QTest::addColumn<QString>("piece");
        QTest::addColumn<QString>("cause");
        const auto row = [](const char *name, const Spoil &spoil, const QString &piece, const QString &cause) {
            QTest::newRow(name) << spoil << piece << cause;
        };
        row("table of products", sql(u"DROP TABLE T_PRODUIT"_s), u"AfficherFamille"_s, u"T_PRODUIT"_s);
        row("table of pictures", sql(u"DROP TABLE T_PRODUIT_IMAGE"_s), u"ChercherImage"_s, u"T_PRODUIT_IMAGE"_s);
        row("table of attributes", sql(u"DROP TABLE REF_CATEGORIE_P"_s), u"AfficherFParam"_s, u"REF_CATEGORIE_P"_s);
        row("table of values", sql(u"DROP TABLE REF_EXTENSION"_s), u"ChercherValeur"_s, u"REF_EXTENSION"_s);
        row("table of the company", sql(u"DROP TABLE REF_INFO"_s), u"AfficherInfo"_s, u"REF_I"_s);
        row("table of languages", sql(u"DROP TABLE REF_LANGUE_U"_s), u"RemplirCB"_s, u"REF_LANGUE_U"_s);
        row("column of names", sql(u"ALTER TABLE T_PRODUIT DROP COLUMN sNomFR"_s), u"GenererPages"_s, u"sNomFR"_s);
        row("column of language codes", sql(u"ALTER TABLE REF_LANGUE_U DROP COLUMN CODE"_s), u"RemplirCB"_s, u""_s);

        const QString french = u"FR.cda"_s;
        row("language file", remove(french), french, u"introuvable"_s);
        row("folder for a language file", folderInsteadOf(french), french, u" : "_s);
        row("broken line", change(french, [](auto bytes) -> QByteArray { return "[CATALOG]\nno value\n" + bytes; }),
            french, u"2"_s);
        row("other code page", change(french, [](auto bytes) { return CodePage::encode(QString::fromUtf8(bytes)); }),
            french, u"windows-1252"_s);
        row("other encoding",
            change(french,
                   [](auto bytes) {
                       const QString text = QChar(0xFEFF) + QString::fromUtf8(bytes);
                       return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
                   }),
            french, u"UTF-16"_s);

        const QString settings = u"settings/DORNELIQUE.ini"_s;
        row("settings of words", change(settings, [](auto) { return QByteArray("nothing of use\nat all"); }),
            u"DORNELIQUE.ini"_s, u" : "_s);
        row("folder for settings", folderInsteadOf(settings), u"DORNELIQUE.ini"_s, u" : "_s);
        row("folder for a text", folderInsteadOf(u"accueil.txt"_s), u"accueil.txt"_s, u" : "_s);

        const auto shows = [](int id, const QString &name) {
            return sql(
                u"UPDATE T_PRODUIT_IMAGE SET sImage = 'pictures/%2' WHERE idProduit = %1 AND iSmall = 0"_s.arg(id).arg(
                    name));
        };
        row("picture gone", shows(1, u"gone.jpg"_s), u"gone.jpg"_s, u"introuvable"_s);
        row(
            "picture is a folder",
            [=](const QString &application) {
                shows(1, u"folder.jpg"_s)(application);
                QVERIFY(QDir().mkpath(application + u"/pictures/folder.jpg"_s));
            },
            u"folder.jpg"_s, u"dossier"_s);
        row(
            "picture can't be read",
            [=](const QString &application) {
                shows(1, u"below/a file/x.jpg"_s)(application);
                Files::write(application + u"/pictures/below/a file"_s, "a file");
            },
            u"x.jpg"_s, u" : "_s);
        row(
            "two pictures of one name",
            [=](const QString &application) {
                shows(1, u"a/x.jpg"_s)(application);
                shows(2, u"b/x.jpg"_s)(application);
                Files::write(application + u"/pictures/a/x.jpg"_s, "one");
                Files::write(application + u"/pictures/b/x.jpg"_s, "two");
            },
            u"x.jpg"_s, u"b/x.jpg"_s);
        row("logo gone", sql(u"UPDATE REF_INFO SET sValeur = 'pictures/enseigne.gif' WHERE idInfo = 13"_s),
            u"enseigne.gif"_s, u"introuvable"_s);
        row("fixed file gone", remove(u"img/menu_com.js"_s), u"menu_com.js"_s, u"introuvable"_s);
        row(
            "fixed files gone",
            [](const QString &application) { QVERIFY(QDir(application + u"/img"_s).removeRecursively()); }, u"img"_s,
            u"introuvable"_s);
        row("characters outside the code page", sql(u"UPDATE T_PRODUIT SET sNomFR = 'Thé Ω' WHERE idProduit = 1"_s),
            u"00001202501.htm"_s, u"windows-1252"_s);
        row("references that collide", sql(u"UPDATE T_PRODUIT SET sRef = '0000/1202501' WHERE idProduit = 2"_s),
            u"00001202501.htm"_s, u"0000/1202501"_s);
        row("reference of a fixed page", sql(u"UPDATE T_PRODUIT SET sRef = 'index' WHERE idProduit = 2"_s),
            u"index.htm"_s, u"index (2)"_s);
        row("reference of a fixed file", sql(u"UPDATE T_PRODUIT SET sRef = 'blank' WHERE idProduit = 2"_s),
            u"blank.htm"_s, u"blank (2)"_s);
    }

    void missingPieces()
    {
        const ShopCommand shop;
        QFETCH(Spoil, spoil);
        QFETCH(QString, piece);
        QFETCH(QString, cause);
        spoil(shop.application());
        const ShopCommand::Run run = shop.run();
        QVERIFY2(run.tells(piece, cause), qPrintable(run.err.left(2000)));
        QCOMPARE(run.status, 1);
        // The rest of the shop is there.
        for (const QString &name : {u"index.htm"_s, u"exmplmenu_var.js"_s, u"searchdb.js"_s, u"checkout.htm"_s})
            QVERIFY2(shop.written(name), qPrintable(name));
    }
};

ZELVANTOR_SUITE(BadInputTest)
#include "BadInputTest.moc"
