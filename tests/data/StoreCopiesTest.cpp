#include "data/StoreCopies.h"
#include "data/SchemaSteps.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class StoreCopiesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_store = Connection();
        m_folder = std::make_unique<QTemporaryDir>();
        Files::write(path(), Files::read(QStringLiteral(ZELVANTOR_SHARE "/sample/zelvantor.mdb")));
        QVERIFY(m_store.open(connectionText(path())));
        setNumber(1);
    }

    void theLastTenStay()
    {
        const StoreCopies copies(path());
        Files::write(path(u"zelvantor-2026-03.mdb"_s), "the merchant's own");
        for (int day = 1; day <= 12; ++day)
            QVERIFY(copies.keepDay(m_store, {2026, 3, day}));
        QVERIFY(copies.keepMoment(m_store, QDateTime(QDate(2026, 3, 12), QTime(9, 30))));
        const std::vector<StoreCopy> list = copies.list();
        QCOMPARE(list.size(), size_t(10));
        QVERIFY(list[0].path.endsWith(u"zelvantor-2026-03-12-093000.mdb"_s));
        QVERIFY(!list[0].isOfDay && list[1].isOfDay);
        QCOMPARE(list[9].taken.date(), QDate(2026, 3, 4));
        QVERIFY(QFile::exists(path(u"zelvantor-2026-03.mdb"_s)));
        // A clock that runs behind takes nothing away from the day at hand.
        QVERIFY(copies.keepDay(m_store, {2020, 1, 1}));
        QVERIFY(QFile::exists(path(u"zelvantor-2020-01-01.mdb"_s)));
        QCOMPARE(copies.list().size(), size_t(10));
    }

    void aDamagedStoreTakesNoCopyAway()
    {
        const StoreCopies copies(path());
        for (int day = 1; day <= 10; ++day)
            QVERIFY(copies.keepDay(m_store, {2026, 3, day}));
        m_store = Connection();
        damage(path());
        QVERIFY(m_store.open(connectionText(path())));
        QVERIFY(isDamage(m_store.check()));
        QVERIFY(!copies.keepDay(m_store, {2026, 3, 11}));
        QCOMPARE(copies.list().size(), size_t(10));
        QVERIFY(names().filter(u".part"_s).isEmpty());
        damage(path(u"zelvantor-2026-03-10.mdb"_s));
        QCOMPARE(copies.newestSound()->taken.date(), QDate(2026, 3, 9));
    }

    void aCopyComesBack()
    {
        const StoreCopies copies(path());
        QVERIFY(copies.keepDay(m_store, {2026, 3, 1}));
        setNumber(2);
        Connection other; // the second connection of the program
        QVERIFY(other.open(connectionText(path())));
        const QDateTime moment(QDate(2026, 3, 1), QTime(14, 30));
        QVERIFY(copies.restore(copies.list().front(), m_store, moment));
        QCOMPARE(number(), u"1"_s);
        Reader row = other.read(u"SELECT Ref_Produit FROM PARAM"_s);
        QVERIFY(row.next());
        QCOMPARE(row.text(0), u"1"_s);
        setNumber(3);
        QVERIFY(copies.restore(copies.list().front(), m_store, moment.addSecs(1)));
        QCOMPARE(number(), u"2"_s);
        QVERIFY(m_store.check());
        // Neither a copy of a newer version nor another store takes its place.
        Files::write(path(u"zelvantor-2026-03-05.mdb"_s), Files::read(path()));
        Connection newer;
        QVERIFY(newer.open(connectionText(path(u"zelvantor-2026-03-05.mdb"_s))));
        QVERIFY(newer.execute(u"PRAGMA user_version = 99"_s));
        newer = Connection();
        QVERIFY(!copies.restore(copies.list().front(), m_store, moment));
        QCOMPARE(number(), u"2"_s);
    }

    void theOldestCopyComesBackToo()
    {
        const StoreCopies copies(path());
        for (int day = 1; day <= 10; ++day)
            QVERIFY(copies.keepDay(m_store, {2026, 3, day}));
        setNumber(2);
        QVERIFY(copies.restore(copies.list().back(), m_store, QDateTime(QDate(2026, 3, 11), QTime(8, 0))));
        QCOMPARE(number(), u"1"_s);
        QCOMPARE(copies.list().size(), size_t(10));
    }

    void anOlderStoreIsCarriedForward()
    {
        QCOMPARE(SchemaSteps::of(m_store), SchemaSteps::current());
        for (const QString &statement :
             {u"PRAGMA user_version = 0"_s, u"UPDATE REF_LISTE SET idRef_parent = 0 WHERE idRef_liste = 1"_s})
            QVERIFY(m_store.execute(statement));
        QVERIFY(SchemaSteps::carryForward(m_store));
        QCOMPARE(SchemaSteps::of(m_store), SchemaSteps::current());
        Reader root = m_store.read(u"SELECT idRef_parent FROM REF_LISTE WHERE idRef_liste = 1"_s);
        QVERIFY(root.next());
        QVERIFY(root.isNull(0));
        QCOMPARE(number(), u"1"_s);
    }

private:
    QString path(const QString &name = u"zelvantor.mdb"_s) const { return m_folder->filePath(name); }
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files, QDir::Name); }

    void setNumber(int number) { QVERIFY(m_store.execute(u"UPDATE PARAM SET Ref_Produit = %1"_s.arg(number))); }

    QString number()
    {
        Reader row = m_store.read(u"SELECT Ref_Produit FROM PARAM"_s);
        return row.next() ? row.text(0) : row.result().message();
    }
    /// Zeroes in the middle of the file, where the library looks only when it reads the rows.
    void damage(const QString &file)
    {
        QByteArray bytes = Files::read(file);
        const qsizetype half = bytes.size() / 2;
        bytes.replace(half, 3 * 4096, QByteArray(3 * 4096, '\x5a'));
        Files::write(file, bytes);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    Connection m_store;
};

ZELVANTOR_SUITE(StoreCopiesTest)
#include "StoreCopiesTest.moc"
