#pragma once
#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

/// A small server for what real ones don't do on demand. It keeps files by path and one listing for all folders.
class ScriptedServer : public QObject {
    Q_OBJECT
public:
    enum Fault {
        None,
        CutConnection, ///< half of the data, then both connections are gone
        CutData,       ///< half of the data, then 426
        Stall,         ///< half of the data, then silence
        NoClosingReply,
        ShortDownload, ///< half of what was announced, then 226
        ForeignAddress,
        ClosedDataPort,
        DiskFull,
        DoubledReply, ///< each closing reply comes twice
        EndlessReply  ///< in the place of a closing one
    };
    Q_ENUM(Fault)

    ScriptedServer();

    int port() const { return m_server.serverPort(); }
    /// Closes the session from the server's side.
    void hangUp();

    QMap<QByteArray, QByteArray> replies; ///< by command word, in the place of what it would do
    QByteArray listing;
    QMap<QByteArray, QByteArray> files;
    Fault fault = None;
    QStringList commands; ///< all that came
    int logins = 0;
    int strangers = 0; ///< connections to the foreign address

private:
    void readLines();
    void command(const QByteArray &word, const QByteArray &argument);
    void passive();
    void transfer(const QByteArray &word, const QByteArray &argument);
    void send(const QByteArray &data, bool announced);
    void finish();
    void reply(const QByteArray &line) { m_control->write(line + "\r\n"); }

    QTcpServer m_server;
    QTcpServer m_foreign;
    QTcpServer m_dataServer;
    QPointer<QTcpSocket> m_control;
    QPointer<QTcpSocket> m_data;
    QByteArray m_directory = "/";
    qsizetype m_offset = 0;
};
