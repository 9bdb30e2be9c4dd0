#include "data/clsSmartSQL.h"

#include "data/LenientDate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString wildCard = u"%"_s;

QString comparisonText(int code)
{
    switch (code) {
    case clsSmartSQL::Contains:
    case clsSmartSQL::StartsWith:
    case clsSmartSQL::EndsWith:
        return u"LIKE"_s;
    case clsSmartSQL::Greater:
        return u">"_s;
    case clsSmartSQL::Less:
        return u"<"_s;
    case clsSmartSQL::AtLeast:
        return u">="_s;
    case clsSmartSQL::AtMost:
        return u"<="_s;
    case clsSmartSQL::Unequal:
        return u"<>"_s;
    default:
        return u"="_s;
    }
}

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

/// What has a text: nothing at all and null pass, objects and lists don't.
bool isValidType(const QVariant &value)
{
    return !value.isValid() || value.isNull() || value.canConvert<QString>();
}

/// The date test comes first: a text such as "12/3" leaves as a date.
QString quoteValue(const QString &text)
{
    if (LenientDate::isDate(text))
        return u'#' + text + u'#';
    return u'\'' + QString(text).replace(u"'"_s, u"''"_s) + u'\'';
}

QVariantList listOf(const QVariant &list)
{
    if (!list.canConvert<QVariantList>() || isText(list))
        throw SmartSQLError(25010, "Invalid argument; array or collection required.");
    return list.toList();
}

QString firstWord(const QString &text)
{
    return text.trimmed().section(u' ', 0, 0);
}

QStringList uniqueNames(const QStringList &names)
{
    QStringList kept;
    for (const QString &name : names)
        if (!kept.contains(name, Qt::CaseInsensitive))
            kept << name;
    return kept;
}

} // namespace

QString clsSmartSQL::BracketName(const QString &name) const
{
    if (!name.contains(u'.')) {
        const QString trimmed = name.trimmed();
        const bool bracket =
            AutoBracket && !trimmed.startsWith(u'[') && !trimmed.contains(u'(') && trimmed.contains(u' ');
        return bracket ? QString(u'[' + trimmed + u']') : trimmed;
    }
    QStringList parts = name.split(u'.');
    for (QString &part : parts) {
        const bool bracket =
            AutoBracket && part.contains(u' ') && !part.contains(u'(') && !part.contains(u')') && !part.contains(u'[');
        part = bracket ? QString(u'[' + part + u']') : part.trimmed();
    }
    return parts.join(u'.');
}

QString clsSmartSQL::qualified(const QString &field, const QString &table) const
{
    return table.isEmpty() ? BracketName(field) : QString(BracketName(table) + u'.' + BracketName(field));
}

QString clsSmartSQL::valueText(const QVariant &value) const
{
    return isText(value) && AutoQuote ? quoteValue(value.toString()) : value.toString();
}

void clsSmartSQL::AddComplexWhereClause(const QString &clause, int logical)
{
    m_wheres.push_back({clause, logical});
}

void clsSmartSQL::AddField(const QString &field, const QString &table)
{
    m_fields << qualified(field, table);
}

void clsSmartSQL::AddFields(const QVariantList &fields)
{
    for (const QVariant &field : fields) {
        if (!isValidType(field))
            throw SmartSQLError(25020, "Invalid argument type");
        m_fields << BracketName(field.toString());
    }
}

void clsSmartSQL::AddOrderClause(const QString &field, bool descending, const QString &table)
{
    m_orders.push_back({qualified(field, table), descending});
}

void clsSmartSQL::AddSimpleWhereClause(const QString &field, const QVariant &value, const QString &table,
                                       int &comparison, int logical)
{
    if (!isValidType(value))
        throw SmartSQLError(25020, "Invalid argument type");
    if (comparison == Contains && !isText(value))
        comparison = Equal;
    QString text = value.toString();
    const bool isLike = comparison == Contains || comparison == StartsWith || comparison == EndsWith;
    if (isLike && AutoLike)
        text =
            (comparison != StartsWith ? wildCard : QString()) + text + (comparison != EndsWith ? wildCard : QString());
    // A number compared by its beginning or its end is quoted like a text.
    if (AutoQuote && (isLike || isText(value)))
        text = quoteValue(text);
    m_wheres.push_back({qualified(field, table) + u' ' + comparisonText(comparison) + u' ' + text, logical});
}

void clsSmartSQL::AddSimpleWhereClause(const QString &field, const QVariant &value, const QString &table,
                                       int &&comparison, int logical)
{
    AddSimpleWhereClause(field, value, table, comparison, logical);
}

void clsSmartSQL::AddTable(const QString &table)
{
    const QString name = BracketName(table);
    if (!m_tables.contains(name, Qt::CaseInsensitive))
        m_tables << name;
    m_from.clear();
    dropJoin();
}

void clsSmartSQL::dropJoin()
{
    m_joinTables.clear();
    m_joinFields.clear();
    m_joinCompare = Equal;
    m_joinType = Inner;
}

void clsSmartSQL::AddValue(const QVariant &value)
{
    if (!isValidType(value))
        throw SmartSQLError(25020, "Invalid argument type");
    m_values << valueText(value);
}

void clsSmartSQL::AddValues(const QVariantList &values)
{
    if (!std::all_of(values.begin(), values.end(), isValidType))
        throw SmartSQLError(25020, "Invalid argument type");
    for (const QVariant &value : values)
        AddValue(value);
}

void clsSmartSQL::ClearFromClause()
{
    m_from.clear();
    m_tables.clear();
    dropJoin();
}

void clsSmartSQL::ClearWhereClause()
{
    m_wheres.clear();
}

void clsSmartSQL::ClearOrderClause()
{
    m_orders.clear();
}

void clsSmartSQL::ListAddFields(const QVariant &list, const QString &table)
{
    for (const QVariant &field : listOf(list)) {
        if (!isValidType(field))
            throw SmartSQLError(25030, "At least one element in the argument list is invalid");
        AddField(field.toString(), table);
    }
}

void clsSmartSQL::ListAddValues(const QVariant &list)
{
    for (const QVariant &value : listOf(list)) {
        if (!isValidType(value))
            throw SmartSQLError(25030, "At least one element in the argument list is invalid");
        AddValue(value);
    }
}

void clsSmartSQL::Reset()
{
    ClearFromClause();
    ClearWhereClause();
    ClearOrderClause();
    ClearFields();
    ClearValues();
    m_statementType = Select;
}

void clsSmartSQL::SetupJoin(const QString &table1, const QString &field1, const QString &table2, const QString &field2,
                            int comparison, int joinType)
{
    m_joinTables = {BracketName(table1), BracketName(table2)};
    m_joinFields = {BracketName(field1), BracketName(field2)};
    m_joinCompare = comparison;
    if (joinType >= Inner && joinType <= Right)
        m_joinType = joinType;
    else if (joinType == Full && m_sqlType == 1)
        m_joinType = Full;
    m_tables.clear();
    m_from.clear();
}

void clsSmartSQL::setComplexFromClause(const QString &text)
{
    m_from = text.trimmed();
    if (m_from.left(4).toUpper() == u"FROM"_s)
        m_from = m_from.mid(4).trimmed();
    m_tables.clear();
    dropJoin();
}

void clsSmartSQL::setJoinType(int type)
{
    if (type >= Inner && type <= Full)
        m_joinType = type;
}

void clsSmartSQL::setStatementType(int type)
{
    if (type <= Delete)
        m_statementType = type;
}

void clsSmartSQL::setSQLType(int type)
{
    if (type == 0 || type == 1)
        m_sqlType = type;
}

QString clsSmartSQL::joinText() const
{
    const auto operand = [this](int side) {
        const QString &field = m_joinFields[side];
        return field.contains(u'.') ? field : QString(m_joinTables[side] + u'.' + field);
    };
    QString text = m_joinTables[0] + u' ';
    if (m_joinType == Inner && m_sqlType == 0)
        text += u"INNER "_s;
    else if (m_joinType == Left)
        text += u" LEFT "_s;
    else if (m_joinType == Right)
        text += u" RIGHT "_s;
    else if (m_joinType == Full)
        text += m_sqlType == 0 ? u" INNER "_s : u" FULL "_s;
    return text + u"JOIN "_s + m_joinTables[1] + u" ON "_s + operand(0) + u' ' + comparisonText(m_joinCompare) + u' '
           + operand(1);
}

QString clsSmartSQL::fromText() const
{
    if (!m_from.isEmpty())
        return m_from;
    return m_tables.isEmpty() ? joinText() : m_tables.join(u", "_s);
}

QString clsSmartSQL::selectText() const
{
    if (m_tables.isEmpty() && m_joinTables.isEmpty() && m_from.isEmpty())
        return {};
    return u"SELECT "_s + (m_fields.isEmpty() ? u"*"_s : m_fields.join(u", "_s)) + u" FROM "_s + fromText();
}

QString clsSmartSQL::insertText() const
{
    const QString table = m_tables.value(0).trimmed();
    if (table.isEmpty())
        throw SmartSQLError(25000, "Table Name property must be set");
    QString text = u"INSERT INTO "_s + table;
    if (!m_fields.isEmpty())
        text += u" ("_s + m_fields.join(u", "_s) + u')';
    if (!m_values.isEmpty())
        text += u" VALUES ("_s + m_values.join(u", "_s) + u')';
    return text;
}

QString clsSmartSQL::updateText() const
{
    const qsizetype pairs = std::min(m_fields.size(), m_values.size());
    if (pairs == 0 || m_tables.isEmpty())
        return {};
    QStringList assignments;
    for (qsizetype i = 0; i < pairs; ++i)
        assignments << m_fields[i] + u" = "_s + m_values[i];
    return u"UPDATE "_s + m_tables[0] + u" SET "_s + assignments.join(u", "_s);
}

QString clsSmartSQL::SQL() const
{
    QString text;
    if (m_statementType == Select)
        text = selectText();
    else if (m_statementType == Insert)
        text = insertText();
    else if (m_statementType == Update)
        text = updateText();
    else if (m_statementType == Delete && !m_tables.isEmpty())
        text = u"DELETE FROM "_s + m_tables[0];
    if (text.isEmpty())
        return text;
    if (m_statementType != Insert) {
        QString where;
        for (const Where &part : m_wheres)
            where += (where.isEmpty()       ? u"WHERE"_s
                      : part.logical == And ? u" AND"_s
                                            : u" OR"_s)
                     + u" ("_s + part.clause + u')';
        if (!where.isEmpty())
            text += u' ' + where;
    }
    if (m_statementType == Select && !m_orders.empty()) {
        QStringList orders;
        for (const Order &order : m_orders)
            orders << order.name + (order.descending ? u" DESC"_s : QString());
        text += u" ORDER BY "_s + orders.join(u", "_s);
    }
    return text;
}

QString clsSmartSQL::SQLWHERE() const
{
    // The first clause carries its word too, and the last bracket has no partner here: the caller's statement ends
    // in an open one.
    QString where;
    for (const Where &part : m_wheres)
        where += (part.logical == And ? u" AND ("_s : u" OR ("_s) + part.clause + u')';
    return where + u");"_s;
}

int clsSmartSQL::TableCount() const
{
    return m_tables.isEmpty() ? CountFromTables() : int(m_tables.size());
}

int clsSmartSQL::CountFromTables() const
{
    if (m_from.isEmpty())
        return int(uniqueNames(m_joinTables).size());
    QStringList names = {firstWord(m_from)};
    const QStringList pieces = m_from.split(u"JOIN"_s);
    for (const QString &piece : pieces.mid(1))
        names << firstWord(piece);
    return int(uniqueNames(names).size());
}
