#include "platform/Store.h"
#include "tests/support/Suite.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QStringList column(Store &store, const QString &statement)
{
    QStringList values;
    Reader rows = store.read(statement);
    while (rows.next())
        values << (rows.isNull(0) ? u"<null>"_s : rows.text(0));
    if (!rows.result())
        QTest::qFail(qPrintable(rows.result().message()), __FILE__, __LINE__);
    return values;
}

/// Another program that has the file open.
class OtherProgram {
public:
    explicit OtherProgram(const QString &path) { sqlite3_open(path.toUtf8().constData(), &m_database); }
    ~OtherProgram() { sqlite3_close(m_database); }
    bool run(const char *sql) { return sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr) == SQLITE_OK; }

private:
    sqlite3 *m_database = nullptr;
};

} // namespace

class StoreTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        Result result;
        const auto store = Store::create(path(), result);
        QVERIFY2(store, qPrintable(result.message()));
        QVERIFY(
            store->executeScript(u"CREATE TABLE T (id INTEGER PRIMARY KEY, s TEXT COLLATE ZELVANTOR, n INTEGER);"_s));
    }

    void comparing()
    {
        const std::tuple<QString, QString, bool> rows[] = {
            {u"Admin"_s, u"s = 'aDMIN'"_s, true},      {u"Admin"_s, u"s = 'admin   '"_s, true},
            {u"Admin  "_s, u"s = 'Admin'"_s, true},    {u"Admin"_s, u"s = ' Admin'"_s, false},
            {u"Admin"_s, u"s <> 'ADMIN'"_s, false},    {u"ÉTÉ"_s, u"s = 'été '"_s, true},
            {u"ete"_s, u"s = 'été'"_s, false},         {u"b"_s, u"s > 'A'"_s, true},
            {u"Théière"_s, u"s LIKE '%THÉ%'"_s, true}, {u"THÉIÈRE"_s, u"s LIKE 'théi_re'"_s, true},
            {u"Theiere"_s, u"s LIKE 'thé%'"_s, false}, {u"Ölkanne"_s, u"s LIKE 'ö%'"_s, true},
            {u"abcabd"_s, u"s LIKE '%ab_'"_s, true},   {u"abcabd"_s, u"s LIKE '%ab'"_s, false},
            {u"l'été"_s, u"s LIKE '%l''%'"_s, true},   {u""_s, u"s LIKE '%'"_s, true},
            {u""_s, u"s LIKE '_'"_s, false},           {u"50% de"_s, u"s LIKE '50%%de'"_s, true}};
        for (auto [stored, condition, found] : rows) {
            init();
            const auto store = opened();
            QVERIFY(store->execute(u"INSERT INTO T (s) VALUES ('"_s + stored.replace(u"'"_s, u"''"_s) + u"')"_s));
            QVERIFY2(column(*store, u"SELECT s FROM T WHERE "_s + condition).isEmpty() != found, qPrintable(condition));
        }
    }

    void orderIgnoresCase()
    {
        const auto store = opened();
        QVERIFY(store->execute(u"INSERT INTO T (s) VALUES ('b'), ('C'), ('a'), (NULL), ('B '), ('é')"_s));
        QCOMPARE(column(*store, u"SELECT s FROM T ORDER BY 1, id"_s),
                 QStringList({u"<null>"_s, u"a"_s, u"b"_s, u"B "_s, u"C"_s, u"é"_s}));
        QCOMPARE(column(*store, u"SELECT count(*) FROM T WHERE s IS NOT NULL GROUP BY s"_s),
                 QStringList({u"1"_s, u"2"_s, u"1"_s, u"1"_s}));
    }

    void namesIgnoreCase()
    {
        const auto store = opened();
        QVERIFY(store->execute(u"INSERT INTO t (ID, S) VALUES (7, 'x'); "_s));
        Reader rows = store->read(u"select Id, T.S as Nom from T WHERE (((t.iD)=7));"_s);
        QCOMPARE(rows.columnCount(), 2);
        QCOMPARE(rows.column(u"ID"), 0);
        QCOMPARE(rows.column(u"nom"), 1);
        QCOMPARE(rows.column(u"none"), -1);
        QVERIFY(rows.next());
        QCOMPARE(rows.text(1), u"x"_s);
        QVERIFY(!rows.next());
        QVERIFY(rows.result());
    }

    void nullsAndNumbers()
    {
        const auto store = opened();
        QVERIFY(
            store->execute(u"INSERT INTO T VALUES (1, NULL, True), (2, '', NULL), (3, '12a', -5), (4, 'no', False)"_s));
        Reader rows = store->read(u"SELECT s, n FROM T WHERE id >= ? AND id <= ? ORDER BY id"_s, {1, 4});
        QStringList seen;
        while (rows.next())
            seen << u"%1%2/%3%4"_s.arg(rows.isNull(0) ? u"null"_s : rows.text(0))
                        .arg(rows.integer(0))
                        .arg(rows.isNull(1) ? u"null"_s : rows.text(1))
                        .arg(rows.integer(1));
        QCOMPARE(seen, QStringList({u"null0/11"_s, u"0/null0"_s, u"12a12/-5-5"_s, u"no0/00"_s}));
    }

    void failedStatements()
    {
        const auto store = opened();
        for (const QString &statement : {u"SELECT x FROM T"_s, u"SELECT s FROM None"_s, u"nonsense"_s}) {
            Reader rows = store->read(statement);
            QVERIFY(!rows.next());
            QVERIFY(!rows.result());
            QVERIFY(!rows.result().text().isEmpty());
            QCOMPARE(rows.columnCount(), 0);
        }
        const Result failed = store->execute(u"INSERT INTO T (x) VALUES (1)"_s);
        QVERIFY(!failed);
        QVERIFY(failed.message().contains(u": "_s) && failed.message().startsWith(QString::number(failed.number())));
        // A column behind the last one reads as a null, and must not end the program.
        QVERIFY(store->execute(u"INSERT INTO T (s) VALUES ('x')"_s));
        Reader rows = store->read(u"SELECT s FROM T"_s);
        QVERIFY(rows.next());
        bool isNull = false;
        QString text;
        QVERIFY_THROWS_NO_EXCEPTION(isNull = rows.isNull(1); text = rows.text(1));
        QVERIFY(isNull);
        QCOMPARE(text, QString());
    }

    void statementsUsedWithinEachOther()
    {
        const auto store = opened();
        QVERIFY(store->execute(u"INSERT INTO T (id, n) VALUES (1, 0), (2, 0), (3, 0)"_s));
        const QString statement = u"SELECT id FROM T WHERE n = ? ORDER BY id"_s;
        int pairs = 0;
        Reader outer = store->read(statement, {0});
        while (outer.next()) {
            Reader inner = store->read(statement, {0});
            while (inner.next())
                ++pairs;
            QVERIFY(store->execute(u"UPDATE T SET s = 'x' WHERE id = "_s + outer.text(0)));
        }
        QCOMPARE(pairs, 9);
    }

    void unusableFiles()
    {
        const Rows<QString, long> rows = {{"missing", u"missing"_s, 14L},
                                          {"folder", u"folder"_s, 14L},
                                          {"zero length", u"empty"_s, 26L},
                                          {"not a store", u"text"_s, 26L},
                                          {"head alone", u"head"_s, 11L},
                                          {"cut in half", u"half"_s, 11L},
                                          {"page overwritten", u"overwritten"_s, 11L}};
        for (const auto &[row, kind, number] : rows) {
            const Row named(row);
            init();
            QByteArray bytes = Files::read(path());
            if (kind == u"empty"_s)
                bytes.clear();
            else if (kind == u"text"_s)
                bytes = QByteArray(5000, 'x');
            else if (kind == u"head"_s)
                bytes.truncate(100);
            else if (kind == u"half"_s)
                bytes.truncate(bytes.size() / 2);
            else if (kind == u"overwritten"_s)
                bytes.replace(100, 2000, QByteArray(2000, '\xFF'));
            QFile::remove(path());
            if (kind == u"folder"_s)
                QVERIFY(QDir().mkpath(path()));
            else if (kind != u"missing"_s)
                Files::write(path(), bytes);
            const auto before = Files::tree(m_folder->path());
            Result result;
            QVERIFY(!Store::open(path(), result, 100));
            QCOMPARE(result.number(), number);
            QVERIFY(!result.text().isEmpty());
            QCOMPARE(Files::tree(m_folder->path()), before);
        }
    }

    void lockedByAnotherProgram()
    {
        const Rows<QByteArrayList> rows = {
            {"rollback journal", QByteArrayList({"PRAGMA journal_mode=DELETE", "BEGIN EXCLUSIVE"})},
            {"exclusive use", QByteArrayList({"PRAGMA locking_mode=EXCLUSIVE", "BEGIN EXCLUSIVE"})}};
        for (const auto &[row, lock] : rows) {
            const Row named(row);
            init();
            OtherProgram other(path());
            for (const QByteArray &statement : lock)
                QVERIFY2(other.run(statement.constData()), statement.constData());
            Result result;
            QVERIFY(!Store::open(path(), result, 50));
            QCOMPARE(result.number(), 5L);
            QVERIFY(other.run("COMMIT"));
        }
    }

    void writerBesideAReader()
    {
        OtherProgram other(path());
        QVERIFY(other.run("BEGIN IMMEDIATE"));
        QVERIFY(other.run("INSERT INTO T (n) VALUES (1)"));
        const auto store = opened(50);
        QCOMPARE(column(*store, u"SELECT count(*) FROM T"_s), QStringList(u"0"_s));
        QCOMPARE(store->execute(u"INSERT INTO T (n) VALUES (2)"_s).number(), 5L);
        QVERIFY(other.run("COMMIT"));
        QVERIFY(store->execute(u"INSERT INTO T (n) VALUES (2)"_s));
        QCOMPARE(column(*store, u"SELECT n FROM T ORDER BY 1"_s), QStringList({u"1"_s, u"2"_s}));
    }

    /// The main window opens the store twice. A program in between must still see that it is in use: on closing it
    /// would otherwise throw the journal away that the first connection works with.
    void secondConnectionKeepsTheLocksOfTheFirst()
    {
        const auto isInUse = [this] {
            const pid_t child = fork();
            if (child == 0) {
                // SQLite, "os_unix.c": a reader holds a lock on the 510 bytes behind 0x40000002.
                struct flock lock = {};
                lock.l_type = F_WRLCK;
                lock.l_whence = SEEK_SET;
                lock.l_start = 0x40000002;
                lock.l_len = 510;
                const int file = open(path().toUtf8().constData(), O_RDWR);
                _exit(file >= 0 && fcntl(file, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK ? 1 : 0);
            }
            int status = 0;
            waitpid(child, &status, 0);
            return WIFEXITED(status) && WEXITSTATUS(status) == 1;
        };
        QVERIFY(!isInUse());
        const auto first = opened();
        QVERIFY(isInUse());
        const auto second = opened();
        QVERIFY(isInUse());
    }

    void readingChangesNothing()
    {
        const auto before = Files::tree(m_folder->path());
        QCOMPARE(column(*opened(), u"SELECT s FROM T"_s), QStringList());
        QCOMPARE(Files::tree(m_folder->path()), before);
        Result result;
        QVERIFY(!Store::create(path(), result));
        QCOMPARE(Files::tree(m_folder->path()), before);
    }

private:
    QString path() const { return m_folder->filePath(u"t.mdb"_s); }
    std::unique_ptr<Store> opened(int patience = 100)
    {
        Result result;
        auto store = Store::open(path(), result, patience);
        if (!store)
            QTest::qFail(qPrintable(result.message()), __FILE__, __LINE__);
        return store;
    }
    std::unique_ptr<QTemporaryDir> m_folder;
};

ZELVANTOR_SUITE(StoreTest)
#include "StoreTest.moc"
