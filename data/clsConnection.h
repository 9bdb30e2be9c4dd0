#pragma once
#include "data/Connection.h"
#include "platform/Messages.h"

/// One attempt to open the store. A caller sets the properties, calls `Init_connect`, reads `bLogin`, takes
/// `connectdb`, and drops the object; the connection outlives it.
class clsConnection {
public:
    clsConnection(Messages &messages, QString gsDbPath);

    bool bErreur() const { return m_bErreur; }
    bool bLogin() const { return m_bLogin; }
    /// Why the connection was not made.
    const Result &failure() const { return m_failure; }

    // Stored for the callers; none of them becomes part of the connection text.
    QString sLogin;
    QString sPassWord;
    QString Chaineconnect;
    QString sDSN;
    QString Modeconnect;

    /// Opens the connection and shows each failure in a box.
    void Init_connect();
    const Connection &connectdb() const { return m_connection; }
    void setConnectdb(const Connection &connection) { m_connection = connection; }

private:
    void showErrors(const Result &failure);

    Messages &m_messages;
    QString m_gsDbPath;
    Connection m_connection;
    Result m_failure;
    bool m_bErreur = false;
    bool m_bLogin = false;
};

/// The second connection of the main window. `sDb` is stored and never used: both classes reach the same file.
class clsConnectionL : public clsConnection {
public:
    using clsConnection::clsConnection;
    QString sDb;
};
