#include "platform/Dialect.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class DialectTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void statement()
    {
        // Without a second text nothing changes.
        const Rows<QString, QString> rows = {
            {"delete with table", u"DELETE REF_INFO.* FROM REF_INFO;"_s, u"DELETE FROM REF_INFO"_s},
            {"delete in lower case", u"delete t.* from t where id = 1 ; "_s, u"delete from t where id = 1"_s},
            {"delete with star", u"DELETE * FROM T"_s, u"DELETE FROM T"_s},
            {"delete with brackets", u"DELETE [T].* FROM [T]"_s, u"DELETE FROM [T]"_s},
            {"plain delete", u"DELETE FROM T WHERE a = 2 * 3"_s, {}},
            {"delete as a value", u"INSERT INTO T VALUES ('DELETE T.* FROM T;')"_s, {}},
            {"flags", u"UPDATE T SET b = True, c=FALSE WHERE d = true"_s, u"UPDATE T SET b = 1, c=0 WHERE d = 1"_s},
            {"words that hold a flag", u"SELECT bTrue, Falsehood, sTrue1 FROM T"_s, {}},
            {"flags in literals and names", u"SELECT 'True', \"False\", [True] FROM T"_s, {}},
            {"date", u"WHERE d = #01/02/2026# AND e = #x#"_s, u"WHERE d = '01/02/2026' AND e = 'x'"_s},
            {"quote in a date", u"WHERE d = #a'b#"_s, u"WHERE d = 'a''b'"_s},
            {"hash in a literal", u"SELECT 'n° #1 et #2'"_s, {}},
            {"lone hash", u"SELECT 1 # 2"_s, {}},
            {"doubled quotes", u"SELECT 'l''été; True #1#', 2"_s, {}},
            {"semicolon and blank inside", u"SELECT ';  '"_s, {}},
            {"closing semicolons", u"SELECT 1 ; ;\r\n "_s, u"SELECT 1"_s},
            {"brackets of parentheses", u"SELECT a FROM T WHERE (((T.a)=12))"_s, {}},
            {"open literal", u"SELECT 'abc True"_s, u"SELECT 'abc True"_s},
            {"nothing", u" ; "_s, u""_s}};
        for (const auto &[row, written, sqlite] : rows) {
            const Row named(row);
            QCOMPARE(Dialect::toSqlite(written), sqlite.isNull() ? written : sqlite);
        }
    }
};

ZELVANTOR_SUITE(DialectTest)
#include "DialectTest.moc"
