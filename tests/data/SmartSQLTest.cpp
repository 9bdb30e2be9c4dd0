#include "data/clsSmartSQL.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

namespace {

/// The number of the error that an action raises, 0 when it raises none.
template <typename Action>
int errorOf(Action action)
{
    try {
        action();
    } catch (const SmartSQLError &e) {
        return e.number();
    }
    return 0;
}

} // namespace

class SmartSQLTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void searchClause()
    {
        clsSmartSQL sql;
        QCOMPARE(sql.SQLWHERE(), u");"_s);
        sql.AddSimpleWhereClause(u"sRef"_s, u"AB'1"_s, u"T_PRODUIT"_s, clsSmartSQL::StartsWith, clsSmartSQL::And);
        sql.AddSimpleWhereClause(u"idFamille"_s, 12, u"T_PRODUIT"_s, clsSmartSQL::Equal, clsSmartSQL::Or);
        QCOMPARE(sql.SQLWHERE(), u" AND (T_PRODUIT.sRef LIKE 'AB''1%') OR (T_PRODUIT.idFamille = 12));"_s);
    }

    void comparisons()
    {
        const Rows<QVariant, int, QString, int> rows = {{"contains", QVariant(u"x"_s), 1, u"f LIKE '%x%'"_s, 1},
                                                        {"contains a number", QVariant(5), 1, u"f = 5"_s, 0},
                                                        {"starts with a number", QVariant(5), 7, u"f LIKE '5%'"_s, 7},
                                                        {"ends", QVariant(u"x"_s), 8, u"f LIKE '%x'"_s, 8},
                                                        {"unequal", QVariant(u"x"_s), 6, u"f <> 'x'"_s, 6},
                                                        {"unknown code", QVariant(1.5), 99, u"f = 1.5"_s, 99}};
        for (auto [row, value, comparison, clause, after] : rows) {
            const Row named(row);
            clsSmartSQL sql;
            sql.AddSimpleWhereClause(u"f"_s, value, {}, comparison, clsSmartSQL::And);
            QCOMPARE(sql.SQLWHERE(), QString(u" AND ("_s + clause + u"));"_s));
            QCOMPARE(comparison, after);
        }
    }

    void namesAreBracketed()
    {
        const Rows<QString, QString> rows = {{"space", u" a b "_s, u"[a b]"_s},
                                             {"qualified", u"t.a b"_s, u"t.[a b]"_s},
                                             {"function", u"count(a b)"_s, u"count(a b)"_s},
                                             {"bracketed", u"[a b]"_s, u"[a b]"_s},
                                             {"plain part is trimmed", u"t.ab"_s, u"t.ab"_s}};
        for (const auto &[row, name, bracketed] : rows) {
            const Row named(row);
            clsSmartSQL sql;
            sql.AddTable(u"t"_s);
            sql.AddOrderClause(name, true);
            sql.AddOrderClause(u"z"_s, false, u"t"_s);
            QCOMPARE(sql.SQL(), QString(u"SELECT * FROM t ORDER BY "_s + bracketed + u" DESC, t.z"_s));
        }
    }

    void valuesAreQuoted()
    {
        const Rows<QVariant, QString> rows = {
            {"quote", QVariant(u"L'ami"_s), u"'L''ami'"_s},
            {"date first", QVariant(u"1/2"_s), u"#1/2#"_s},
            {"full date", QVariant(u"31/12/2025"_s), u"#31/12/2025#"_s},
            {"no date", QVariant(u"45/13"_s), u"'45/13'"_s},
            {"price is no date", QVariant(u"12.50"_s), u"'12.50'"_s},
            {"reference is no date", QVariant(u"00042/202603"_s), u"'00042/202603'"_s},
            {"number", QVariant(3), u"3"_s}};
        for (const auto &[row, value, text] : rows) {
            const Row named(row);
            clsSmartSQL sql;
            sql.setStatementType(clsSmartSQL::Insert);
            sql.AddTable(u"T"_s);
            sql.AddValue(value);
            QCOMPARE(sql.SQL(), QString(u"INSERT INTO T VALUES ("_s + text + u")"_s));
        }
    }

    void fourStatements()
    {
        clsSmartSQL sql;
        QCOMPARE(sql.SQL(), QString());
        sql.AddTable(u"T"_s);
        sql.AddTable(u"U"_s);
        sql.AddFields({u"a"_s, u"b c"_s});
        sql.AddField(u"d"_s, u"U"_s);
        sql.AddValues({1, u"x"_s});
        sql.AddComplexWhereClause(u"a=1"_s, clsSmartSQL::Or);
        sql.AddComplexWhereClause(u"b=2"_s, clsSmartSQL::Or);
        const QString where = u" WHERE (a=1) OR (b=2)"_s;
        QCOMPARE(sql.SQL(), QString(u"SELECT a, [b c], U.d FROM T, U"_s + where));
        QCOMPARE(sql.SQL(), QString(u"SELECT a, [b c], U.d FROM T, U"_s + where));
        sql.setStatementType(clsSmartSQL::Update);
        QCOMPARE(sql.SQL(), QString(u"UPDATE T SET a = 1, [b c] = 'x'"_s + where));
        sql.setStatementType(clsSmartSQL::Delete);
        sql.setStatementType(4);
        QCOMPARE(sql.SQL(), QString(u"DELETE FROM T"_s + where));
        sql.setStatementType(clsSmartSQL::Insert);
        QCOMPARE(sql.SQL(), u"INSERT INTO T (a, [b c], U.d) VALUES (1, 'x')"_s);
        sql.Reset();
        QCOMPARE(sql.SQL(), QString());
        sql.setComplexFromClause(u" from T LEFT JOIN U ON T.a = U.a"_s);
        QCOMPARE(sql.SQL(), u"SELECT * FROM T LEFT JOIN U ON T.a = U.a"_s);
    }

    void joins()
    {
        clsSmartSQL sql;
        const auto joined = [&sql](int sqlType, int joinType) {
            sql.Reset();
            sql.setSQLType(sqlType);
            sql.SetupJoin(u"T"_s, u"a"_s, u"U"_s, u"V.b c"_s, clsSmartSQL::AtLeast, joinType);
            return sql.SQL();
        };
        const QString on = u"JOIN U ON T.a >= V.[b c]"_s;
        QCOMPARE(joined(1, clsSmartSQL::Inner), QString(u"SELECT * FROM T "_s + on));
        QCOMPARE(joined(0, clsSmartSQL::Inner), QString(u"SELECT * FROM T INNER "_s + on));
        QCOMPARE(joined(1, clsSmartSQL::Left), QString(u"SELECT * FROM T  LEFT "_s + on));
        QCOMPARE(joined(1, clsSmartSQL::Full), QString(u"SELECT * FROM T  FULL "_s + on));
        QCOMPARE(joined(0, clsSmartSQL::Full), QString(u"SELECT * FROM T INNER "_s + on));
        QCOMPARE(joined(1, 7), QString(u"SELECT * FROM T "_s + on));
        sql.AddTable(u"W"_s);
        QCOMPARE(sql.SQL(), u"SELECT * FROM W"_s);
    }

    void tablesAreCountedOnce()
    {
        clsSmartSQL sql;
        QCOMPARE(sql.TableCount(), 0);
        sql.AddTable(u"T"_s);
        sql.AddTable(u"t"_s);
        QCOMPARE(sql.TableCount(), 1);
        sql.SetupJoin(u"T"_s, u"a"_s, u"U"_s, u"b"_s, 0, 1);
        QCOMPARE(sql.TableCount(), 2);
        sql.setComplexFromClause(u"T x LEFT JOIN U ON 1 INNER JOIN t y ON 2"_s);
        QCOMPARE(sql.TableCount(), 2);
    }

    void misuse()
    {
        clsSmartSQL sql;
        const QVariant object = QVariant::fromValue(static_cast<QObject *>(this));
        QCOMPARE(errorOf([&] { sql.ListAddValues(5); }), 25010);
        QCOMPARE(errorOf([&] { sql.ListAddFields(QVariantList{u"a"_s, object}); }), 25030);
        QCOMPARE(errorOf([&] { sql.AddValues({1, object}); }), 25020);
        QCOMPARE(errorOf([&] { sql.AddSimpleWhereClause(u"a"_s, object); }), 25020);
        QCOMPARE(errorOf([&] { sql.AddValue(QVariant()); }), 0);
        sql.setStatementType(clsSmartSQL::Insert);
        QCOMPARE(errorOf([&] { (void)sql.SQL(); }), 25000);
        sql.AddTable(u"T"_s);
        // Of the failed lists the first field stands, and no value of the refused run.
        QCOMPARE(sql.SQL(), u"INSERT INTO T (a) VALUES ()"_s);
    }
};

ZELVANTOR_SUITE(SmartSQLTest)
#include "SmartSQLTest.moc"
