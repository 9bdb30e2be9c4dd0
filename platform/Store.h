#pragma once
#include "platform/Result.h"

#include <QHash>
#include <QString>
#include <memory>
#include <vector>

namespace SQLite {
class Database;
class Statement;
} // namespace SQLite

class Store;

/// The rows of a statement, read forward once. A statement that fails gives no row and its `result()`.
/// Must not outlive its store.
class Reader {
public:
    Reader(Reader &&) noexcept;
    Reader &operator=(Reader &&) = delete;
    ~Reader();

    /// Moves to the next row; false behind the last one and on failure.
    bool next();
    const Result &result() const { return m_result; }

    bool isNull(int column) const;
    /// The value as text; a null reads as an empty text.
    QString text(int column) const;
    /// The value as a whole number; a null or a text that is none reads as 0.
    qint64 integer(int column) const;
    int columnCount() const;
    /// Position of the column of that name, whatever its case; -1 when there is none.
    int column(QStringView name) const;

    /// A reader without rows, for a statement that could not even be tried.
    static Reader failed(Result result);

private:
    friend class Store;
    Reader(Store *store, QString statement);

    Store *m_store;
    QString m_text;
    std::shared_ptr<SQLite::Statement> m_statement;
    Result m_result;
};

/// The relational file. Statements are taken in the program's own dialect (see Dialect.h); names count without
/// regard to case, and so do texts in comparisons and LIKE, by the rules of Unicode.
class Store {
public:
    ~Store();

    /// Opens an existing store for reading and writing, or for reading where the user may not write; never creates one.
    /// Null on failure, with the reason in `result`: 14 no such file, 26 not a store, 11 damaged, 5 locked by another
    /// program (after `patience` milliseconds), else the number of the library.
    static std::unique_ptr<Store> open(const QString &path, Result &result, int patience = 5000);
    /// Opens a store that nobody writes for reading, and puts nothing beside it.
    static std::unique_ptr<Store> openStill(const QString &path, Result &result);
    /// Makes a new, empty store at a path where nothing stands yet. For the store builder.
    static std::unique_ptr<Store> create(const QString &path, Result &result);

    bool isReadOnly() const;
    /// Runs one statement that gives no rows.
    Result execute(const QString &statement);
    /// Opens a transaction for the statements that follow. One that fails leaves the others done, but a failure that
    /// ends the transaction by itself, such as that of a full disk, ends them all: what follows is not run, and both
    /// it and the commit give that failure.
    Result begin();
    bool isInTransaction() const { return m_inTransaction; }
    Result commit();
    void rollBack();
    /// Runs a script of several statements, in the dialect of the store itself. For the store builder.
    Result executeScript(const QString &script);
    /// Reads the rows of a statement; `values` fill its "?" in order. Statements stay prepared.
    Reader read(const QString &statement, const std::vector<qint64> &values = {});

    /// Looks through the pages of the store: 11 with what is wrong when it is damaged.
    Result check();
    /// Writes the store as it stands to a path where nothing stands yet. On failure nothing stays there.
    Result copyTo(const QString &path);
    /// Takes the content of another store in the place of its own, all of it or none.
    Result takeFrom(const QString &path);

private:
    friend class Reader;
    explicit Store(std::unique_ptr<SQLite::Database> database);
    std::shared_ptr<SQLite::Statement> take(const QString &statement);
    void keep(const QString &statement, const std::shared_ptr<SQLite::Statement> &prepared);

    bool isBroken() const;

    std::unique_ptr<SQLite::Database> m_database;
    bool m_inTransaction = false;
    Result m_broken; ///< the failure that ended the transaction by itself
    QHash<QString, std::shared_ptr<SQLite::Statement>> m_kept;
};
