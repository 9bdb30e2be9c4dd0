#include "platform/Store.h"

#include "platform/Dialect.h"
#include "platform/StoreText.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace {

constexpr qsizetype keptStatements = 64;

Result failure(const SQLite::Exception &e)
{
    return {e.getErrorCode() != 0 ? e.getErrorCode() : SQLITE_ERROR, QString::fromUtf8(e.what())};
}

/// What can be told of a file without opening it: a file that is opened and closed beside the library takes the
/// locks of every connection of this process with it (POSIX, fcntl). The library itself finds what is not a store
/// (26) and what has been cut short (11) at its first read.
Result checkFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {SQLITE_CANTOPEN, QStringLiteral("no such file")};
    if (!info.isFile())
        return {SQLITE_CANTOPEN, QStringLiteral("not a file")};
    if (info.size() == 0)
        return {SQLITE_NOTADB, QStringLiteral("file is not a database")};
    return {};
}

} // namespace

Store::Store(std::unique_ptr<SQLite::Database> database) : m_database(std::move(database)) {}

Store::~Store()
{
    m_kept.clear();
}

std::unique_ptr<Store> Store::open(const QString &path, Result &result, int patience)
{
    result = checkFile(path);
    if (!result)
        return nullptr;
    try {
        auto database =
            std::make_unique<SQLite::Database>(QFile::encodeName(path).toStdString(), SQLite::OPEN_READWRITE, patience);
        if (!StoreText::install(database->getHandle()))
            throw SQLite::Exception("collation refused", SQLITE_ERROR);
        database->exec("PRAGMA synchronous=FULL");
        SQLite::Statement(*database, "SELECT count(*) FROM sqlite_master").executeStep();
        return std::unique_ptr<Store>(new Store(std::move(database)));
    } catch (const SQLite::Exception &e) {
        result = failure(e);
    }
    if (result.number() == SQLITE_READONLY || result.number() == SQLITE_CANTOPEN)
        return openUnwritable(path, result);
    return nullptr;
}

/// A store that may only be read, in a folder where the library can't put its files beside it.
std::unique_ptr<Store> Store::openUnwritable(const QString &path, Result &result)
{
    const QByteArray address = "file:" + QUrl::toPercentEncoding(path, "/") + "?immutable=1";
    try {
        auto database =
            std::make_unique<SQLite::Database>(address.toStdString(), SQLite::OPEN_READONLY | SQLITE_OPEN_URI);
        if (!StoreText::install(database->getHandle()))
            return nullptr;
        SQLite::Statement(*database, "SELECT count(*) FROM sqlite_master").executeStep();
        result = {};
        return std::unique_ptr<Store>(new Store(std::move(database)));
    } catch (const SQLite::Exception &) {
        return nullptr; // the first failure stays the one to tell
    }
}

std::unique_ptr<Store> Store::create(const QString &path, Result &result)
{
    result = {};
    if (QFileInfo::exists(path)) {
        result = {SQLITE_CANTOPEN, QStringLiteral("file exists already")};
        return nullptr;
    }
    try {
        auto database = std::make_unique<SQLite::Database>(QFile::encodeName(path).toStdString(),
                                                           SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        if (!StoreText::install(database->getHandle()))
            throw SQLite::Exception("collation refused", SQLITE_ERROR);
        database->exec("PRAGMA journal_mode=WAL");
        return std::unique_ptr<Store>(new Store(std::move(database)));
    } catch (const SQLite::Exception &e) {
        result = failure(e);
    }
    return nullptr;
}

bool Store::isReadOnly() const
{
    return sqlite3_db_readonly(m_database->getHandle(), "main") == 1;
}

Result Store::execute(const QString &statement)
{
    try {
        m_database->exec(Dialect::toSqlite(statement).toStdString());
        return {};
    } catch (const SQLite::Exception &e) {
        return failure(e);
    }
}

Result Store::executeScript(const QString &script)
{
    try {
        m_database->exec(script.toStdString());
        return {};
    } catch (const SQLite::Exception &e) {
        return failure(e);
    }
}

Reader Store::read(const QString &statement, const std::vector<qint64> &values)
{
    Reader reader(this, statement);
    try {
        reader.m_statement = take(statement);
        for (size_t i = 0; i < values.size(); ++i)
            reader.m_statement->bind(int(i) + 1, int64_t(values[i]));
    } catch (const SQLite::Exception &e) {
        reader.m_statement.reset();
        reader.m_result = failure(e);
    }
    return reader;
}

std::shared_ptr<SQLite::Statement> Store::take(const QString &statement)
{
    if (auto prepared = m_kept.take(statement))
        return prepared;
    return std::make_shared<SQLite::Statement>(*m_database, Dialect::toSqlite(statement).toStdString());
}

void Store::keep(const QString &statement, std::shared_ptr<SQLite::Statement> prepared)
{
    if (m_kept.size() >= keptStatements)
        m_kept.clear();
    prepared->tryReset();
    m_kept.insert(statement, std::move(prepared));
}

Reader::Reader(Store *store, QString statement) : m_store(store), m_text(std::move(statement)) {}

Reader Reader::failed(Result result)
{
    Reader reader(nullptr, {});
    reader.m_result = std::move(result);
    return reader;
}

Reader::Reader(Reader &&other) noexcept = default;

Reader::~Reader()
{
    if (m_statement)
        m_store->keep(m_text, std::move(m_statement));
}

bool Reader::next()
{
    if (!m_statement)
        return false;
    const int code = m_statement->tryExecuteStep();
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        m_result = {code, QString::fromUtf8(m_statement->getErrorMsg())};
    m_store->keep(m_text, std::move(m_statement));
    return false;
}

/// Behind the last row, and for a column that the table lacks, everything reads as null.
bool Reader::isNull(int column) const
{
    return column < 0 || column >= columnCount() || m_statement->isColumnNull(column);
}

QString Reader::text(int column) const
{
    if (isNull(column))
        return {};
    const SQLite::Column value = m_statement->getColumn(column);
    const char *bytes = value.getText("");
    return QString::fromUtf8(bytes, value.getBytes());
}

qint64 Reader::integer(int column) const
{
    return isNull(column) ? 0 : m_statement->getColumn(column).getInt64();
}

int Reader::columnCount() const
{
    return m_statement ? m_statement->getColumnCount() : 0;
}

int Reader::column(QStringView name) const
{
    for (int i = 0; i < columnCount(); ++i)
        if (name.compare(QString::fromUtf8(m_statement->getColumnName(i)), Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}
