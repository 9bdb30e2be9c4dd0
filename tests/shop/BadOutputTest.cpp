#include "tests/shop/ShopCommand.h"
#include "tests/support/Suite.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// The command with arguments that can't be right, and with an output folder that can't take the shop: what is
/// another's stays, and no name of the catalogue leads out of the folder.
class BadOutputTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void inTheWay_data()
    {
        QTest::addColumn<QString>("inTheWay"); // a folder in the output folder, or a file instead of one
        QTest::addColumn<QString>("piece");
        QTest::newRow("page") << u"out/index.htm/"_s << u"index.htm"_s;
        QTest::newRow("search data") << u"out/searchdb.js/"_s << u"searchdb.js"_s;
        QTest::newRow("picture") << u"out/images/spacer.gif/"_s << u"spacer.gif"_s;
        QTest::newRow("folder of pictures") << u"out/images"_s << u"images"_s;
        QTest::newRow("output folder") << u"out"_s << u"/out"_s;
    }

    void inTheWay()
    {
        const ShopCommand shop;
        QFETCH(QString, inTheWay);
        QFETCH(QString, piece);
        const QString path = shop.path(inTheWay);
        if (path.endsWith(u'/'))
            QVERIFY(QDir().mkpath(path));
        else
            Files::write(path, "a file");
        if (inTheWay == u"out/images"_s)
            Files::write(shop.output() + u"/nopcart.js"_s, "of an earlier shop");
        const ShopCommand::Run run = shop.run();
        QVERIFY2(run.status == 1 || (run.status == 2 && !QFileInfo(shop.output()).isDir()),
                 qPrintable(run.err.left(2000)));
        // Some words behind the piece say what is the matter with it.
        static const QRegularExpression words(u" : .*\\w{3,}"_s);
        const QStringList lines = run.err.split(u'\n').filter(piece);
        QVERIFY2(!lines.isEmpty(), qPrintable(run.err.left(2000)));
        QVERIFY2(lines.first().mid(lines.first().indexOf(piece)).contains(words), qPrintable(lines.first()));
        if (inTheWay == u"out"_s)
            QCOMPARE(Files::read(shop.output()), "a file");
        else
            QVERIFY(shop.written(u"contact.htm"_s) && shop.written(u"00012202503.htm"_s));
    }

    /// The disk takes the small files and refuses the large one, first in a new folder and then over an old shop.
    void diskFull()
    {
        constexpr quint64 limit = 48 * 1024; // the search data are larger, all pages are smaller
        const ShopCommand shop(ShopCommand::WholeSample);
        ShopCommand::Run run = shop.run({}, limit);
        QCOMPARE(run.status, 1);
        QVERIFY2(run.tells(u"searchdb.js"_s, u"trop grand"_s), qPrintable(run.err.left(2000)));
        QVERIFY(!shop.written(u"searchdb.js"_s) && shop.written(u"index.htm"_s) && shop.written(u"00086202610.htm"_s));

        QCOMPARE(shop.run().status, 0);
        const auto french = Files::tree(shop.output());
        QVERIFY(french[u"searchdb.js"_s].size() > int(limit));
        run = shop.run({u"--language"_s, u"EN"_s}, limit);
        QCOMPARE(run.status, 1);
        const auto english = Files::tree(shop.output());
        QVERIFY(english[u"index.htm"_s] != french[u"index.htm"_s]);
        QCOMPARE(english[u"searchdb.js"_s], french[u"searchdb.js"_s]);
    }

    void references_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("page"); // empty where no file may bear such a name
        QTest::newRow("slash") << u"a/b"_s << u"ab.htm"_s;
        QTest::newRow("parent") << u".."_s << u"...htm"_s;
        QTest::newRow("path upwards") << u"../../x"_s << u"....x.htm"_s;
        QTest::newRow("absolute path") << u"/tmp/x"_s << u"tmpx.htm"_s;
        QTest::newRow("path of another system") << u"..\\..\\x"_s << u""_s;
        QTest::newRow("drive") << u"C:\\x"_s << u""_s;
        QTest::newRow("drive alone") << u"C:x"_s << u""_s;
        QTest::newRow("device") << u"CON"_s << u"CON.htm"_s;
        QTest::newRow("wild card") << u"x*?"_s << u""_s;
        QTest::newRow("blank and accents") << u"é à"_s << u"é à.htm"_s;
        QTest::newRow("very long") << QString(300, u'x') << u""_s;
    }

    void references()
    {
        const ShopCommand shop;
        QFETCH(QString, reference);
        QFETCH(QString, page);
        Spoiling::sql(u"UPDATE T_PRODUIT SET sRef = '%1' WHERE idProduit = 2"_s.arg(reference))(shop.application());
        const ShopCommand::Run run = shop.run();
        QCOMPARE(run.status, page.isEmpty() ? 1 : 0);
        if (page.isEmpty())
            QVERIFY2(run.tells(reference + u".htm"_s, u" : "_s), qPrintable(run.err.left(2000)));
        else
            QVERIFY(shop.written(page));
        QStringList names;
        for (const QString &name : Files::tree(shop.output()).keys())
            if (!name.startsWith(u"images/"_s) && !name.startsWith(u'0') && name.endsWith(u".htm"_s)
                && !QFile::exists(shop.application() + u"/img/"_s + name) && !name.startsWith(u"g"_s))
                names << name;
        QStringList expected = {u"checkout.htm"_s,   u"checkout_cc.htm"_s, u"checkout_mf.htm"_s, u"contact.htm"_s,
                                u"expedition.htm"_s, u"index.htm"_s,       u"privacy.htm"_s,     u"terme.htm"_s};
        if (!page.isEmpty())
            expected << page;
        expected.sort();
        QCOMPARE(names, expected);
    }

    void foreignFolder_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("with a letter") << u"out"_s;
        QTest::newRow("the application's own") << u"app"_s;
        QTest::newRow("the fixed files") << u"app/img"_s;
        QTest::newRow("the merchant's pictures") << u"app/pictures"_s;
    }

    void foreignFolder()
    {
        const ShopCommand shop;
        QFETCH(QString, folder);
        Files::write(shop.output() + u"/letter.odt"_s, "a letter");
        const ShopCommand::Run run = shop.run({u"--out"_s, shop.path(folder)});
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains(shop.path(folder)), qPrintable(run.err));
        QCOMPARE(Files::tree(shop.output()), (QMap<QString, QByteArray>{{u"letter.odt"_s, "a letter"}}));
    }

    void arguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        QTest::newRow("unknown option") << QStringList(u"--fast"_s) << u"fast"_s;
        QTest::newRow("unknown language") << QStringList({u"--language"_s, u"PT"_s}) << u"PT"_s;
        QTest::newRow("empty language") << QStringList({u"--language"_s, u""_s}) << u"angue"_s;
        QTest::newRow("value missing") << QStringList(u"--settings"_s) << u"settings"_s;
        QTest::newRow("argument without an option") << QStringList(u"shop"_s) << u"shop"_s;
        QTest::newRow("no such application folder")
            << QStringList({u"--app-folder"_s, u"/nowhere/app"_s}) << u"/nowhere/app"_s;
    }

    void arguments()
    {
        const ShopCommand shop;
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        const ShopCommand::Run run = shop.run(arguments);
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains(named), qPrintable(run.err));
        QCOMPARE(run.out, QString());
        QVERIFY(!QFile::exists(shop.output()));
    }

    void helpAndVersion()
    {
        const ShopCommand shop;
        const ShopCommand::Run help = shop.start({u"--help"_s});
        QCOMPARE(help.status, 0);
        QCOMPARE(help.err, QString());
        for (const QString &option : {u"--app-folder <DIR>"_s, u"--settings <DIR>"_s, u"--out <DIR>"_s,
                                      u"--language <CODE>"_s, u"--help"_s, u"--version"_s})
            QVERIFY2(help.out.contains(option), qPrintable(option));
        const ShopCommand::Run version = shop.start({u"--version"_s});
        QCOMPARE(version.status, 0);
        QCOMPARE(version.out, QStringLiteral("zelvantor-shop " ZELVANTOR_VERSION "\n"));
        // A check reports and writes nothing.
        const ShopCommand::Run check = shop.run({u"--check"_s});
        QCOMPARE(check.status, 0);
        QVERIFY(!QFile::exists(shop.output()));
    }
};

ZELVANTOR_SUITE(BadOutputTest)
#include "BadOutputTest.moc"
