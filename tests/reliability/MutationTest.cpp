#include "ftp/RemoteListing.h"
#include "platform/Dialect.h"
#include "platform/IniFile.h"
#include "platform/LayoutReader.h"
#include "platform/PrintEngine.h"
#include "shell/HtmlVersTexte.h"
#include "shop/GenererMenu.h"
#include "shop/GenererPages.h"
#include "shop/ShopRun.h"
#include "tests/reliability/Mutator.h"
#include "tests/reliability/Seed.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

#include <QElapsedTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Fuzzed = std::function<bool(const QByteArray &)>;

QByteArray source(const char *name)
{
    return Files::read(QStringLiteral(ZELVANTOR_SOURCE) + u'/' + QString::fromLatin1(name));
}

QByteArrayList corpus(const char *name)
{
    QByteArrayList texts;
    for (const QString &text : QString::fromUtf8(source(name)).split(u"\n%%\n"_s))
        texts << text.toUtf8();
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(Fuzzed) // a column of the texts

/// Files that are damaged in a thousand ways, and texts from outside that nobody would write: no crash, no hang, and
/// a cause where something is refused.
class MutationTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_seed = campaignSeed(); }
    void init() { m_mutator = Mutator(m_seed); } // each part repeats by itself

    void stores()
    {
        TestShop shop;
        for (int product = 1; product <= 30; ++product) {
            shop.product(product, u"A%1"_s.arg(product), u"Bol d’été %1"_s.arg(product));
            shop.picture(product, u"images/%1.jpg"_s.arg(product));
        }
        shop.sql(u"INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES "
                 "(1, NULL, 'R', 'Groupes', 0), (2, 1, 'T', 'Table', 1), (11, 2, 'B', 'Bols', 2)"_s);
        shop.session.gCnn = Connection();
        const QByteArray whole = Files::read(shop.path(u"zelvantor.mdb"_s));
        int refused = 0;
        for (int mutation = 0; mutation < mutations; ++mutation) {
            for (const QString &beside : {u"zelvantor.mdb-wal"_s, u"zelvantor.mdb-shm"_s})
                QFile::remove(shop.path(beside));
            Files::write(shop.path(u"zelvantor.mdb"_s), m_mutator.mutated(whole));
            Connection &store = shop.session.gCnn;
            Result result = store.open(connectionText(shop.session.gsDbPath));
            if (result) {
                const ShopData data = readShopData(shop.session, {}, shop.report);
                RecordingOutput pages;
                CatalogueReader catalogue(shop.session, shop.report);
                GenererPages(data, GenererMenu(data, AfficherFamille(store, result)).listPages, catalogue, pages);
                (void)store.execute(u"UPDATE T_PRODUIT SET sNomFR = 'x' WHERE idProduit = 3"_s);
                result = store.check();
            }
            refused += result ? 0 : 1;
            QVERIFY(result || !result.text().isEmpty());
            store = Connection();
        }
        QVERIFY2(refused > mutations / 10, qPrintable(QString::number(refused)));
        for (const Incident &incident : shop.report.incidents())
            QVERIFY(!incident.cause.isEmpty());
    }

    void settings()
    {
        const QByteArray whole = source("resources/sample/settings/DORNELIQUE.ini");
        const QString application = SettingsKey::application;
        for (int mutation = 0; mutation < mutations; ++mutation) {
            const QTemporaryDir folder;
            SettingsStore settings(folder.path());
            const QByteArray damaged =
                m_mutator.mutated(whole, {"\\x", "%", "@Variant(", "@ByteArray(", ",", "[", "="});
            Files::write(settings.fileName(application), damaged);
            const Result readable = settings.check(application);
            QVERIFY(readable || !readable.text().isEmpty());
            (void)settings.value(application, SettingsKey::section, u"DB"_s);
            const Result saved = settings.save(application, SettingsKey::section, u"ESSAI"_s, u"é;,\"1"_s);
            QVERIFY2(saved, qPrintable(saved.text()));
            QCOMPARE(settings.value(application, SettingsKey::section, u"ESSAI"_s), u"é;,\"1"_s);
            if (!readable)
                QCOMPARE(Files::read(settings.fileName(application) + u".bad"_s), damaged);
        }
    }

    void languageFiles()
    {
        const QByteArray whole = source("resources/language/FR.cda");
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"FR.cda"_s);
        for (int mutation = 0; mutation < mutations; ++mutation) {
            Files::write(path, m_mutator.mutated(whole, {"[", "]", "=", "\r", "\xff\xfe", "\xef\xbb\xbf"}));
            IniFile file;
            QVERIFY(file.load(path));
            const QString before = file.value(u"MAIN"_s, u"0"_s);
            file.setValue(u"ARTICLE"_s, u"neu"_s, u"été"_s);
            QVERIFY(file.save(path));
            IniFile again;
            QVERIFY(again.load(path));
            QCOMPARE(again.value(u"ARTICLE"_s, u"neu"_s), u"été"_s);
            QCOMPARE(again.value(u"MAIN"_s, u"0"_s), before);
        }
    }

    void layouts()
    {
        const QByteArrayList wholes = {source("resources/layouts/etiquette2.tpl"), source("resources/layouts/ft1.tpl")};
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.tpl"_s);
        int printed = 0;
        for (int mutation = 0; mutation < mutations; ++mutation) {
            Files::write(path,
                         m_mutator.mutatedOne(wholes, {"-", "9", "e9", "0.0000001", "\"\"", "[]", "null", "\\u0000"}));
            PrintDocument document;
            const Result read = PrintLayout::read(path, document.layout);
            QVERIFY(read || !read.text().isEmpty());
            if (!read)
                continue;
            document.fields = {{u"Nom"_s, u"Bol"_s}, {u"Ean13"_s, u"4006381333931"_s}, {u"PrixTTC"_s, u"12,50"_s}};
            QVERIFY(PrintEngine::pdf(document).startsWith("%PDF"));
            ++printed;
        }
        QVERIFY(printed > 0);
    }

    void fuzz_data()
    {
        QTest::addColumn<QByteArrayList>("texts");
        QTest::addColumn<QByteArrayList>("dictionary");
        QTest::addColumn<Fuzzed>("fuzzed");
        const Fuzzed listing = [](const QByteArray &text) {
            const RemoteListing::Listing found = RemoteListing::parse(QString::fromUtf8(text));
            return std::none_of(found.entries.begin(), found.entries.end(), [](const RemoteListing::Entry &entry) {
                return entry.Size < 0 || entry.Name.contains(u'\n');
            });
        };
        QTest::newRow("listing") << corpus("tests/reliability/corpus/listing.txt")
                                 << QByteArrayList{" ", "\r\n", "->", "<DIR>", "99999999999999999999", "Jan"}
                                 << listing;
        const Fuzzed html = [](const QByteArray &text) {
            return HtmlVersTexte(QString::fromUtf8(text)).size() <= 8 * text.size();
        };
        QTest::newRow("html") << corpus("tests/reliability/corpus/html.txt")
                              << QByteArrayList{"<", ">", "&", "&#", ";", "<script", "<!--", "<td", "<li>", "<body>"}
                              << html;
        const Fuzzed dialect = [](const QByteArray &text) {
            const QString turned = Dialect::toSqlite(QString::fromUtf8(text));
            return Dialect::toSqlite(turned) == turned || text.contains('#') || text.contains('*')
                   || text.contains(';');
        };
        QTest::newRow("dialect") << corpus("tests/reliability/corpus/dialect.txt")
                                 << QByteArrayList{"'", "\"", "[", "]", "#", ";", "DELETE ", "True", ".*"} << dialect;
        const auto folder = std::make_shared<QTemporaryDir>();
        const Fuzzed language = [folder](const QByteArray &text) {
            const QString path = folder->filePath(u"l.cda"_s);
            Files::write(path, text);
            IniFile file;
            if (!file.load(path))
                return false;
            for (const QString &key : file.keys(u"RUN"_s))
                (void)file.value(u"RUN"_s, key);
            return true;
        };
        QTest::newRow("language file") << QByteArrayList{source("resources/language/FR.cda").mid(4000, 3000)}
                                       << QByteArrayList{"[", "]", "=", ";", "\r", "\n\n", "\xff\xfe"} << language;
        const Fuzzed layout = [](const QByteArray &text) {
            LayoutReader reader;
            reader.read(text);
            return reader.result() || !reader.result().text().isEmpty();
        };
        QTest::newRow("layout") << QByteArrayList{source("resources/layouts/etiquette1.tpl")}
                                << QByteArrayList{"{", "}", "[", "]", ",", "-1", "1e308", "\"box\"", "null"} << layout;
    }

    void fuzz()
    {
        QFETCH(QByteArrayList, texts);
        QFETCH(QByteArrayList, dictionary);
        QFETCH(Fuzzed, fuzzed);
        QElapsedTimer time;
        time.start();
        int runs = 0;
        qint64 slowest = 0;
        while (time.elapsed() < 1000 * fuzzSeconds()) {
            const QByteArray text = m_mutator.mutatedOne(texts, dictionary);
            const qint64 begun = time.elapsed();
            QVERIFY2(fuzzed(text), text.toPercentEncoding(" <>[]{}\"'=;:,").constData());
            slowest = std::max(slowest, time.elapsed() - begun);
            ++runs;
        }
        QVERIFY2(slowest < 5000, qPrintable(u"%1 ms"_s.arg(slowest))); // a hang, on any machine
        qInfo("%d texts", runs);
    }

private:
    static constexpr int mutations = 1000;
    unsigned m_seed = 0;
    Mutator m_mutator = Mutator(0);
};

ZELVANTOR_SUITE(MutationTest)
#include "MutationTest.moc"
