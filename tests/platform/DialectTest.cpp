#include "platform/Dialect.h"
#include "tests/support/Suite.h"

#include <QTest>

using namespace Qt::StringLiterals;

class DialectTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void statement_data();
    void statement();
};

void DialectTest::statement_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("sqlite");
    const auto unchanged = [](const char *name, const QString &text) { QTest::newRow(name) << text << text; };
    QTest::newRow("delete with table") << u"DELETE REF_INFO.* FROM REF_INFO;"_s << u"DELETE FROM REF_INFO"_s;
    QTest::newRow("delete in lower case") << u"delete t.* from t where id = 1 ; "_s << u"delete from t where id = 1"_s;
    QTest::newRow("delete with star") << u"DELETE * FROM T"_s << u"DELETE FROM T"_s;
    QTest::newRow("delete with brackets") << u"DELETE [T].* FROM [T]"_s << u"DELETE FROM [T]"_s;
    unchanged("plain delete", u"DELETE FROM T WHERE a = 2 * 3"_s);
    unchanged("delete as a value", u"INSERT INTO T VALUES ('DELETE T.* FROM T;')"_s);
    QTest::newRow("flags") << u"UPDATE T SET b = True, c=FALSE WHERE d = true"_s
                           << u"UPDATE T SET b = 1, c=0 WHERE d = 1"_s;
    unchanged("words that hold a flag", u"SELECT bTrue, Falsehood, sTrue1 FROM T"_s);
    unchanged("flags in literals and names", u"SELECT 'True', \"False\", [True] FROM T"_s);
    QTest::newRow("date") << u"WHERE d = #01/02/2026# AND e = #x#"_s << u"WHERE d = '01/02/2026' AND e = 'x'"_s;
    QTest::newRow("quote in a date") << u"WHERE d = #a'b#"_s << u"WHERE d = 'a''b'"_s;
    unchanged("hash in a literal", u"SELECT 'n° #1 et #2'"_s);
    unchanged("lone hash", u"SELECT 1 # 2"_s);
    unchanged("doubled quotes", u"SELECT 'l''été; True #1#', 2"_s);
    unchanged("semicolon and blank inside", u"SELECT ';  '"_s);
    QTest::newRow("closing semicolons") << u"SELECT 1 ; ;\r\n "_s << u"SELECT 1"_s;
    unchanged("brackets of parentheses", u"SELECT a FROM T WHERE (((T.a)=12))"_s);
    QTest::newRow("open literal") << u"SELECT 'abc True"_s << u"SELECT 'abc True"_s;
    QTest::newRow("nothing") << u" ; "_s << u""_s;
}

void DialectTest::statement()
{
    QFETCH(QString, written);
    QTEST(Dialect::toSqlite(written), "sqlite");
}

ZELVANTOR_SUITE(DialectTest)
#include "DialectTest.moc"
