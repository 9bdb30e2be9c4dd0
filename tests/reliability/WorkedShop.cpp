#include "tests/reliability/WorkedShop.h"

#include "data/Connection.h"
#include "platform/SettingsStore.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString value(Connection &store, const QString &statement)
{
    Reader row = store.read(statement);
    const QString text = row.next() ? row.text(0) : QString();
    if (!row.result())
        QTest::qFail(qPrintable(statement + u": "_s + row.result().message()), __FILE__, __LINE__);
    return text;
}

} // namespace

WorkedShop::WorkedShop()
{
    Files::write(path(u"zelvantor.mdb"_s), Files::read(QStringLiteral(ZELVANTOR_SHARE "/sample/zelvantor.mdb")));
    Files::write(path(u"accueil.txt"_s), "0end");
    SettingsStore settings(path(u"settings"_s));
    QVERIFY(settings.save(SettingsKey::application, SettingsKey::section, u"ESSAI"_s, u"0"_s));
    Connection store;
    QVERIFY(store.open(connectionText(path(u"zelvantor.mdb"_s))));
    for (int product = 1; product <= 10; ++product) {
        const QString id = QString::number(product);
        for (const QString &statement :
             QStringList{u"UPDATE T_PRODUIT SET sNomFR = '0' WHERE idProduit = "_s + id,
                         u"DELETE FROM REF_EXTENSION WHERE idRef_Produit = "_s + id,
                         u"DELETE FROM T_PRODUIT_PRIX WHERE idProduit = "_s + id,
                         u"INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES (101, "_s + id
                             + u", '0')"_s,
                         u"INSERT INTO T_PRODUIT_PRIX (idProduit, sPrixHT) VALUES ("_s + id + u", '0')"_s})
            QVERIFY(store.execute(statement));
    }
}

QStringList WorkedShop::arguments(unsigned seed, int steps)
{
    const QStringList list = {folder(), QString::number(seed), QString::number(m_next), QString::number(steps)};
    m_next += steps;
    return list;
}

void WorkedShop::take(const QByteArray &said)
{
    for (const QByteArray &line : said.left(said.lastIndexOf('\n') + 1).split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        const int number = words.value(1).toInt();
        if (words[0] == "save")
            m_saved[number] = words.value(2).toInt();
        else if (words[0] == "copy")
            m_tried[number] = 1;
        else if (words[0] == "removing")
            m_tried[number] = -1;
        else if (words[0] == "removed")
            m_tried[number] = 0;
        else if (words[0] == "list")
            m_lists << u"L%1"_s.arg(number);
        else if (words[0] == "setting")
            m_setting = number;
        else if (words[0] == "text")
            m_text = number;
    }
}

void WorkedShop::verify() const
{
    Connection store;
    const Result opened = store.open(connectionText(path(u"zelvantor.mdb"_s)));
    QVERIFY2(opened, qPrintable(opened.message()));
    QCOMPARE(value(store, u"PRAGMA integrity_check"_s), u"ok"_s);
    verifyProducts(store);
    verifyCopies(store);
    for (const QString &code : m_lists)
        QCOMPARE(value(store, u"SELECT Count(*) FROM REF_LISTE WHERE sCode = '%1'"_s.arg(code)), u"1"_s);

    const SettingsStore settings(path(u"settings"_s));
    QVERIFY(settings.check(SettingsKey::application));
    const int setting = settings.value(SettingsKey::application, SettingsKey::section, u"ESSAI"_s, u"-1"_s).toInt();
    QVERIFY2(setting >= m_setting, qPrintable(u"setting %1 after %2"_s.arg(setting).arg(m_setting)));
    const QByteArray text = Files::read(path(u"accueil.txt"_s));
    QVERIFY(text.endsWith("end"));
    const int length = m_text == 0 ? 1 : int(text.size() - 3) / 3000;
    QVERIFY2(text.left(length).toInt() >= m_text, text.left(20).constData());
}

void WorkedShop::verifyProducts(Connection &store) const
{
    for (int product = 1; product <= 10; ++product) {
        const QString id = QString::number(product);
        const QString name = value(store, u"SELECT sNomFR FROM T_PRODUIT WHERE idProduit = "_s + id);
        QCOMPARE(value(store, u"SELECT group_concat(sValeur) FROM REF_EXTENSION WHERE idRef_Produit = "_s + id), name);
        QCOMPARE(value(store, u"SELECT group_concat(sPrixHT) FROM T_PRODUIT_PRIX WHERE idProduit = "_s + id), name);
        QVERIFY2(name.toInt() >= m_saved.value(product), qPrintable(name));
    }
}

void WorkedShop::verifyCopies(Connection &store) const
{
    for (auto copy = m_tried.begin(); copy != m_tried.end(); ++copy) {
        const QString id = QString::number(copy.key());
        const bool there = value(store, u"SELECT Count(*) FROM T_PRODUIT WHERE idProduit = "_s + id) == u"1"_s;
        if (copy.value() >= 0)
            QCOMPARE(there, copy.value() == 1);
        if (!there)
            QCOMPARE(value(store, u"SELECT Count(*) FROM T_PRODUIT_IMAGE WHERE idProduit = "_s + id), u"0"_s);
    }
    QCOMPARE(value(store, u"SELECT Count(*) FROM T_PRODUIT WHERE idProduit > 100000 AND idProduit NOT IN "
                          "(SELECT idRef_Produit FROM REF_EXTENSION)"_s),
             u"0"_s);
}

QStringList WorkedShop::strangers() const
{
    static const QRegularExpression known(
        u"^(zelvantor(-\\d{4}-\\d\\d-\\d\\d)?\\.mdb|accueil\\.txt|settings/DORNELIQUE\\.ini)$"_s);
    QStringList names = Files::tree(folder()).keys();
    names.removeIf([](const QString &name) { return known.match(name).hasMatch(); });
    return names;
}
