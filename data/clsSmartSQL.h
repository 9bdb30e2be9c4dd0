#pragma once
#include <QString>
#include <QStringList>
#include <QVariant>
#include <stdexcept>
#include <vector>

/// A misuse of the statement builder, by its number.
class SmartSQLError : public std::runtime_error {
public:
    SmartSQLError(int number, const char *text) : std::runtime_error(text), m_number(number) {}
    int number() const { return m_number; }

private:
    int m_number;
};

/// Composes the text of one statement from parts: tables or a join, fields, values, where and order clauses. It
/// never touches a connection; one instance serves one caller.
class clsSmartSQL {
public:
    enum Statement { Select = 0, Insert, Update, Delete };
    enum Join { Inner = 1, Left, Right, Full };
    /// Words between field and value. `Contains`, `StartsWith` and `EndsWith` are a LIKE with wild cards.
    enum Comparison { Equal = 0, Contains, Greater, Less, AtLeast, AtMost, Unequal, StartsWith, EndsWith };
    enum Logic { And = 0, Or };

    void AddComplexWhereClause(const QString &clause, int logical);
    void AddField(const QString &field, const QString &table = {});
    /// Fields of any kind of value; one that can't be text raises 25020 and none of the later ones goes in.
    void AddFields(const QVariantList &fields);
    void AddOrderClause(const QString &field, bool descending, const QString &table = {});
    /// A value that is no text turns `Contains` into `Equal`, also for the caller.
    void AddSimpleWhereClause(const QString &field, const QVariant &value, const QString &table, int &comparison,
                              int logical = And);
    void AddSimpleWhereClause(const QString &field, const QVariant &value, const QString &table = {},
                              int &&comparison = Equal, int logical = And);
    /// Cancels a join and a complex from clause.
    void AddTable(const QString &table);
    void AddValue(const QVariant &value);
    /// All values are checked before the first goes in.
    void AddValues(const QVariantList &values);
    void ClearFromClause();
    void ClearWhereClause();
    void ClearOrderClause();
    void ClearFields() { m_fields.clear(); }
    void ClearValues() { m_values.clear(); }
    /// A list or nothing: anything else raises 25010, an element that can't be text 25030.
    void ListAddFields(const QVariant &list, const QString &table = {});
    void ListAddValues(const QVariant &list);
    void Reset();
    void SetupJoin(const QString &table1, const QString &field1, const QString &table2, const QString &field2,
                   int comparison, int joinType);

    bool AutoBracket = true;
    bool AutoLike = true;
    bool AutoQuote = true;

    const QString &ComplexFromClause() const { return m_from; }
    void setComplexFromClause(const QString &text);
    int JoinType() const { return m_joinType; }
    void setJoinType(int type);
    int StatementType() const { return m_statementType; }
    void setStatementType(int type);
    int SQLType() const { return m_sqlType; }
    void setSQLType(int type);

    /// The whole statement, without a closing semicolon; empty where a part is missing. An INSERT without a
    /// table raises 25000.
    QString SQL() const;
    /// The tail of a statement that ends in an open bracket: every clause with its word, the first too, then ");".
    QString SQLWHERE() const;
    int TableCount() const;

private:
    struct Where {
        QString clause;
        int logical;
    };
    struct Order {
        QString name;
        bool descending;
    };

    QString BracketName(const QString &name) const;
    QString qualified(const QString &field, const QString &table) const;
    QString valueText(const QVariant &value) const;
    void dropJoin();
    QString fromText() const;
    QString joinText() const;
    QString selectText() const;
    QString insertText() const;
    QString updateText() const;
    int CountFromTables() const;

    std::vector<Order> m_orders;
    QStringList m_fields;
    QStringList m_values;
    std::vector<Where> m_wheres;
    QString m_from;
    QStringList m_tables;
    QStringList m_joinTables; ///< two, or none
    QStringList m_joinFields;
    int m_joinCompare = Equal;
    int m_joinType = Inner;
    int m_statementType = Select;
    int m_sqlType = 1;
};
