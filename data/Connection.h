#pragma once
#include "platform/Store.h"

#include <QStringList>
#include <functional>
#include <memory>

/// An open, or never opened, connection to the store. Copies share the same store.
class Connection {
public:
    Connection() = default;

    /// Opens the store that the "DBQ" entry of a connection text names.
    Result open(const QString &connectionText);
    bool isOpen() const { return bool(m_store); }
    /// Whether the store may be read but not written.
    bool isReadOnly() const { return m_store && m_store->isReadOnly(); }
    /// Path of the store, as the connection text names it.
    const QString &path() const { return m_path; }

    /// Run a statement on the store; on a connection that is not open every one fails.
    Result execute(const QString &statement);
    /// Runs statements one after the other; one that fails leaves the others running. Gives the failures.
    std::vector<Result> executeAll(const QStringList &statements);
    Reader read(const QString &statement, const std::vector<qint64> &values = {});

    /// See Store.
    Result begin();
    Result commit();
    void rollBack();
    /// Called in front of every statement that `execute` runs by itself, and of a transaction.
    void setBeforeChange(std::function<void()> beforeChange) { m_beforeChange = std::move(beforeChange); }
    /// See Store.
    Result check();
    Result copyTo(const QString &path);
    Result takeFrom(const QString &path);

private:
    std::shared_ptr<Store> m_store;
    QString m_path;
    std::function<void()> m_beforeChange;
};

/// Several statements as one: they reach the store together when the object ends, and a statement that fails among
/// them leaves the others done. A pulled plug or a full disk leaves either all of them or none.
class StoreAction {
public:
    explicit StoreAction(Connection &connection);
    ~StoreAction();
    Q_DISABLE_COPY_MOVE(StoreAction)

    /// Whether the action could begin; over a locked or read-only store it can't, and nothing may be tried.
    const Result &begun() const { return m_begun; }
    /// Ends the action early, and tells whether the store has it.
    Result end();
    /// Ends the action with nothing done.
    void abandon();

private:
    Connection &m_connection;
    Result m_begun;
    bool m_open = false;
};

/// The connection text for the store at a path. The password opens the file, whoever the user is.
QString connectionText(const QString &gsDbPath);
