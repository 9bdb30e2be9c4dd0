#pragma once
#include "platform/Store.h"

#include <memory>

/// An open, or never opened, connection to the store. Copies share the same store.
class Connection {
public:
    Connection() = default;

    /// Opens the store that the "DBQ" entry of a connection text names.
    Result open(const QString &connectionText);
    bool isOpen() const { return bool(m_store); }
    /// Path of the store, as the connection text names it.
    const QString &path() const { return m_path; }

    /// Run a statement on the store; on a connection that is not open every one fails.
    Result execute(const QString &statement);
    Reader read(const QString &statement, const std::vector<qint64> &values = {});

private:
    std::shared_ptr<Store> m_store;
    QString m_path;
};

/// The connection text for the store at a path. The password opens the file, whoever the user is.
QString connectionText(const QString &gsDbPath);
