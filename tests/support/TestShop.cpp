#include "tests/support/TestShop.h"

#include "shop/GenererPages.h"
#include "shop/ShopRun.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// An empty store takes a while to make, so one is made for the whole executable and copied.
const QByteArray &emptyStore()
{
    static const QByteArray bytes = [] {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"zelvantor.mdb"_s);
        Result result;
        auto store = Store::create(path, result);
        const QByteArray schema = Files::read(QStringLiteral(ZELVANTOR_SOURCE "/resources/store/schema.sql"));
        if (!store || !store->executeScript(QString::fromUtf8(schema)))
            qFatal("the schema can't be run");
        store.reset();
        return Files::read(path);
    }();
    return bytes;
}

Traduction keysAsWords()
{
    QHash<QString, QString> words;
    for (int key = 1; key < 100; ++key)
        words.insert(QString::number(key), u"T%1"_s.arg(key));
    for (int key = 1; key < 10; ++key)
        words.insert(u"m%1"_s.arg(key), u"Tm%1"_s.arg(key));
    return Traduction(words);
}

QString quoted(const QString &text)
{
    return u'\'' + QString(text).replace(u"'"_s, u"''"_s) + u'\'';
}

} // namespace

TestShop::TestShop() : settings(m_folder.filePath(u"settings"_s)), session(settings, clock, m_folder.path())
{
    Files::write(path(u"zelvantor.mdb"_s), emptyStore());
    QDir().mkpath(path(u"img"_s));
    session.readSettings();
    if (const Result opened = session.gCnn.open(connectionText(session.gsDbPath)); !opened)
        qFatal("%s", qPrintable(opened.message()));
    session.gsMonnaie = u"EUR"_s;
    data.words = keysAsWords();
    data.language = {u"FR"_s, u"FR"_s, u"Français"_s};
    data.settings.sLangueHtm = u"FR"_s;
    data.settings.txtTitre = u"Boutique"_s;
    data.gsMonnaie = u"EUR"_s;
    data.gsLogin = u"vendeur"_s;
    data.year = 2026;
    for (int n = 1; n <= 16; ++n)
        data.gInfo << u"P%1"_s.arg(n);
}

void TestShop::sql(const QString &statement)
{
    const Result done = session.gCnn.execute(statement);
    QVERIFY2(done, qPrintable(statement + u": "_s + done.message()));
}

void TestShop::setting(const QString &name, const QString &value)
{
    QVERIFY(settings.save(SettingsKey::application, SettingsKey::section, name, value));
}

void TestShop::product(int id, const QString &sRef, const QString &name, const QString &price)
{
    sql(u"INSERT INTO T_PRODUIT (idProduit, sRef, sNomFR, sPrixVenteTTC, sObservationFR, idCategorie, sCategorie, "
        "idFamille, sFamille) VALUES (%1, %2, %3, %4, '', 2, 'Table', 11, 'Bols')"_s.arg(
            QString::number(id), quoted(sRef), quoted(name), quoted(price)));
}

void TestShop::picture(int id, const QString &picturePath, int iSmall)
{
    sql(u"INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES (%1, %2, %3)"_s.arg(
        QString::number(id), quoted(picturePath), QString::number(iSmall)));
}

ShopData TestShop::dataFromStore()
{
    return readShopData(session, {}, report);
}

Selection TestShop::selection()
{
    Result result;
    const Selection selection = AfficherFamille(session.gCnn, result);
    if (!result)
        qFatal("%s", qPrintable(result.message()));
    return selection;
}

RecordingOutput TestShop::pages()
{
    RecordingOutput output;
    CatalogueReader catalogue(session, report);
    GenererPages(data, GenererMenu(data, selection()).listPages, catalogue, output);
    return output;
}

void TestShop::run(const ShopData &shopData)
{
    ShopFolder folder(path(u"out"_s), report);
    QVERIFY(folder.prepare(path(u"img"_s)));
    genererBoutique(shopData, selection(), session, folder, report);
    folder.removeOldFiles();
}
