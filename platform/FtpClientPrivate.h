#pragma once
#include "platform/FtpClient.h"
#include "platform/FtpWire.h"

#include <QObject>

/// The session behind `FtpClient`: when it logs in again, when it is over, and how a request is judged.
class FtpClient::Private {
public:
    explicit Private(FtpClient &client);

    FtpOutcome run(FtpRequest &request);
    void tell(FtpProgress event); ///< from the transfer thread
    void deliver();
    /// Runs a request of the session; `word` is the command that it stands or falls with.
    Result perform(FtpRequest &request, const char *word);
    Result command(std::vector<QByteArray> commands, const char *word);
    QString replyTo(const char *word) const;
    /// A reply for log and messages, without the password.
    QString shown(const FtpExchange &exchange) const;
    void takeDirectory(const QString &otherwise);
    Result login();
    Result comeBack();
    Result failure(const FtpOutcome &outcome, const FtpExchange *judged) const;
    void settle(const FtpRequest &request, const FtpOutcome &outcome);
    Result transfer(FtpRequest &request, const QString &remoteFile);
    void setState(int value);
    void close();
    QByteArray encode(const QString &text) const;
    QByteArray named(const char *word, const QString &name) const { return word + (' ' + encode(name)); }

    FtpClient &q;
    QObject relay; ///< receives the events of the transfer thread in the caller's
    FtpWire wire;
    int state = Closed;
    bool busy = false;
    bool closing = false;
    bool eightBit = false;       ///< the server's names are in the code page
    bool serverIsEbcdic = false; ///< what libcurl doesn't know of
    QString directory;
    FtpOutcome lastOutcome;
    std::mutex eventMutex;
    std::vector<FtpProgress> events; ///< not yet delivered
};
