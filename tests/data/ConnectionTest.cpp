#include "data/DataSource.h"
#include "data/clsConnection.h"
#include "tests/support/RecordingMessages.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

using namespace Qt::StringLiterals;

class ConnectionTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void connectionTextOfThePath()
    {
        QCOMPARE(connectionText(u"C:\\a b\\zelvantor.mdb"_s),
                 u"DSN=MS Access Database;DBQ=C:\\a b\\zelvantor.mdb;PWD=731526;UID=Admin;"_s);
        // A semicolon is a fair character in the name of a folder.
        const QString odd = m_shop.path(u"a;b=c/zelvantor.mdb"_s);
        Files::write(odd, Files::read(m_shop.path(u"zelvantor.mdb"_s)));
        Connection connection;
        QVERIFY(connection.open(connectionText(odd)));
        QCOMPARE(connection.path(), odd);
    }

    void opensOrTells()
    {
        RecordingMessages messages;
        const QString path = m_shop.path(u"later.mdb"_s);
        Connection kept;
        {
            clsConnection connection(messages, path);
            connection.Init_connect();
            QVERIFY(!connection.bLogin() && connection.bErreur() && !connection.connectdb().isOpen());
            QCOMPARE(messages.boxes.size(), 2);
            QVERIFY2(messages.boxes[0].startsWith(u"ZELVANTOR|14: abc "_s), qPrintable(messages.boxes[0]));
            QCOMPARE(QString(messages.boxes[0]).remove(u" abc"_s), messages.boxes[1]);
            // The next attempt starts afresh, whichever way it ends.
            Files::write(path, Files::read(m_shop.path(u"zelvantor.mdb"_s)));
            connection.Init_connect();
            QVERIFY(connection.bLogin() && !connection.bErreur());
            QCOMPARE(connection.Chaineconnect, QString());
            kept = connection.connectdb();
            QFile::rename(path, path + u'2');
            connection.Init_connect();
            QVERIFY(!connection.bLogin() && connection.bErreur() && !connection.connectdb().isOpen());
            QCOMPARE(messages.boxes.size(), 4);
        }
        QVERIFY(kept.execute(u"INSERT INTO PARAM (Ref_Produit) VALUES (41)"_s));
        Reader row = kept.read(u"SELECT Ref_Produit FROM PARAM; "_s);
        QVERIFY(row.next());
        QCOMPARE(row.integer(0), 41);
    }

    void secondClassReachesTheSameFile()
    {
        RecordingMessages messages;
        clsConnectionL connection(messages, m_shop.path(u"zelvantor.mdb"_s));
        connection.sDb = m_shop.path(u"dbcopy.mdb"_s);
        connection.Init_connect();
        QVERIFY(connection.bLogin());
        QCOMPARE(connection.connectdb().path(), m_shop.path(u"zelvantor.mdb"_s));
    }

    void notOpen()
    {
        Connection connection;
        QVERIFY(!connection.isOpen());
        const Result executed = connection.execute(u"DELETE FROM PARAM"_s);
        Reader rows = connection.read(u"SELECT * FROM PARAM"_s);
        QVERIFY(!executed && !rows.next() && !rows.result());
        QCOMPARE(rows.result().message(), executed.message());
        QVERIFY(!executed.text().isEmpty());
    }

    void aFullDiskEndsTheWholeAction()
    {
        Connection connection;
        QVERIFY(connection.open(connectionText(m_shop.path(u"zelvantor.mdb"_s))));
        QVERIFY(connection.execute(u"DELETE FROM REF_REMARQUE"_s));
        const auto count = [&connection] {
            Reader row = connection.read(u"SELECT Count(*) FROM REF_REMARQUE"_s);
            return row.next() ? row.integer(0) : -1;
        };
        Reader pages = connection.read(u"PRAGMA page_count"_s);
        QVERIFY(pages.next());
        QVERIFY(connection.execute(u"PRAGMA max_page_count = %1"_s.arg(pages.integer(0))));
        {
            StoreAction action(connection);
            QVERIFY(action.begun());
            QVERIFY(connection.execute(u"INSERT INTO REF_REMARQUE (idInfo) VALUES (1)"_s));
            const Result full =
                connection.execute(u"INSERT INTO REF_REMARQUE (sValeur) VALUES ('%1')"_s.arg(QString(100000, u'x')));
            QCOMPARE(full.number(), 13);
            QCOMPARE(connection.execute(u"INSERT INTO REF_REMARQUE (idInfo) VALUES (2)"_s).number(), 13);
            QCOMPARE(action.end().number(), 13);
        }
        QCOMPARE(count(), 0);
        StoreAction next(connection);
        QVERIFY(connection.execute(u"INSERT INTO REF_REMARQUE (idInfo) VALUES (3)"_s));
        QVERIFY(next.end());
        QCOMPARE(count(), 1);
    }

    void dataSource()
    {
        SettingsStore settings(m_shop.path(u"registry"_s));
        QVERIFY(registerDataSource(settings, u"C:\\Windows\\System32"_s));
        const auto value = [&](const QString &section, const QString &name) {
            return settings.value(u"ODBC"_s, section, name, u"absent"_s);
        };
        const QString name = u"MS Access Database"_s;
        QCOMPARE(value(name, u"Driver"_s), u"C:\\Windows\\System32\\odbcjt32.dll"_s);
        QCOMPARE(value(name, u"DriverID"_s), u"25"_s);
        QCOMPARE(value(name, u"FIL"_s), u"MS Access"_s);
        QCOMPARE(value(name, u"SafeTransactions"_s), u"0"_s);
        QCOMPARE(value(name, u"UID"_s), u"admin"_s);
        QCOMPARE(value(name, u"DBQ"_s), u"absent"_s);
        QCOMPARE(value(u"ODBC Data Sources"_s, name), u"MIcrosoft Access Driver (*.mdb)"_s);
        SettingsStore unwritable(m_shop.path(u"zelvantor.mdb/below"_s));
        QVERIFY(!registerDataSource(unwritable, u"x"_s));
    }

private:
    TestShop m_shop;
};

ZELVANTOR_SUITE(ConnectionTest)
#include "ConnectionTest.moc"
