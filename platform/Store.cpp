#include "platform/Store.h"

#include "platform/Dialect.h"
#include "platform/StoreText.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

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
        return {SQLITE_CANTOPEN, u"no such file"_s};
    if (!info.isFile())
        return {SQLITE_CANTOPEN, u"not a file"_s};
    if (info.size() == 0)
        return {SQLITE_NOTADB, u"file is not a database"_s};
    return {};
}

/// All pages in one step, so that the copy is of one moment.
Result backUp(SQLite::Database &to, SQLite::Database &from)
{
    const int code = SQLite::Backup(to, from).executeStep(-1);
    return code == SQLITE_DONE ? Result() : Result(code, QString::fromUtf8(sqlite3_errstr(code)));
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
    if (result.number() == SQLITE_READONLY || result.number() == SQLITE_CANTOPEN) {
        // Where the library can't put its files beside it; the first failure stays the one to tell.
        Result second;
        if (auto store = openStill(path, second)) {
            result = {};
            return store;
        }
    }
    return nullptr;
}

std::unique_ptr<Store> Store::openStill(const QString &path, Result &result)
{
    result = checkFile(path);
    if (!result)
        return nullptr;
    const QByteArray address = "file:" + QUrl::toPercentEncoding(path, "/") + "?immutable=1";
    try {
        auto database =
            std::make_unique<SQLite::Database>(address.toStdString(), SQLite::OPEN_READONLY | SQLITE_OPEN_URI);
        if (!StoreText::install(database->getHandle()))
            throw SQLite::Exception("collation refused", SQLITE_ERROR);
        SQLite::Statement(*database, "SELECT count(*) FROM sqlite_master").executeStep();
        return std::unique_ptr<Store>(new Store(std::move(database)));
    } catch (const SQLite::Exception &e) {
        result = failure(e);
    }
    return nullptr;
}

std::unique_ptr<Store> Store::create(const QString &path, Result &result)
{
    result = {};
    if (QFileInfo::exists(path)) {
        result = {SQLITE_CANTOPEN, u"file exists already"_s};
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
    if (isBroken())
        return m_broken;
    try {
        m_database->exec(Dialect::toSqlite(statement).toStdString());
        return {};
    } catch (const SQLite::Exception &e) {
        Result failed = failure(e);
        if (isBroken())
            m_broken = failed;
        return failed;
    }
}

bool Store::isBroken() const
{
    return m_inTransaction && sqlite3_get_autocommit(m_database->getHandle()) != 0;
}

Result Store::begin()
{
    Result begun = execute(u"BEGIN IMMEDIATE"_s);
    m_inTransaction = bool(begun);
    m_broken = {};
    return begun;
}

Result Store::commit()
{
    Result committed = execute(u"COMMIT"_s);
    if (!committed)
        rollBack();
    m_inTransaction = false;
    return committed;
}

void Store::rollBack()
{
    if (!isBroken())
        (void)execute(u"ROLLBACK"_s);
    m_inTransaction = false;
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

Result Store::check()
{
    Reader found = read(u"PRAGMA quick_check(1)"_s);
    if (found.next() && found.text(0) == u"ok"_s)
        return {};
    return found.result() ? Result(SQLITE_CORRUPT, found.text(0)) : found.result();
}

Result Store::copyTo(const QString &path)
{
    if (QFileInfo::exists(path))
        return {SQLITE_CANTOPEN, u"File exists"_s};
    Result result;
    try {
        SQLite::Database copy(QFile::encodeName(path).toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        copy.exec("PRAGMA journal_mode=MEMORY"); // a copy that is cut off leaves no second file
        result = backUp(copy, *m_database);
    } catch (const SQLite::Exception &e) {
        result = failure(e);
    }
    if (!result)
        QFile::remove(path);
    return result;
}

Result Store::takeFrom(const QString &path)
{
    Result result;
    const auto source = openStill(path, result);
    if (!source)
        return result;
    m_kept.clear();
    try {
        return backUp(*m_database, *source->m_database);
    } catch (const SQLite::Exception &e) {
        return failure(e);
    }
}

std::shared_ptr<SQLite::Statement> Store::take(const QString &statement)
{
    if (auto prepared = m_kept.take(statement))
        return prepared;
    return std::make_shared<SQLite::Statement>(*m_database, Dialect::toSqlite(statement).toStdString());
}

void Store::keep(const QString &statement, const std::shared_ptr<SQLite::Statement> &prepared)
{
    if (m_kept.size() >= keptStatements)
        m_kept.clear();
    prepared->tryReset();
    m_kept.insert(statement, prepared);
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
        m_store->keep(m_text, std::exchange(m_statement, nullptr));
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
    m_store->keep(m_text, std::exchange(m_statement, nullptr));
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
