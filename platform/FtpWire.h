#pragma once
#include "platform/FtpVerifier.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>

#include <curl/curl.h>

#include <atomic>
#include <mutex>
#include <vector>

/// Where the control connection leads.
struct FtpServer {
    QByteArray host;
    int port = 21;
    QByteArray user;
    QByteArray password;
    QByteArray account;
    FtpTls tls = FtpTls::Automatic;
};

/// A command on the control connection and what the server said to it. The greeting has no command.
struct FtpExchange {
    QByteArray command;
    QByteArray reply;   ///< all lines of the last reply
    int code = 0;       ///< of the last reply; 0 before one came
    QByteArray opening; ///< the reply that opened a transfer
};

struct FtpRequest {
    enum class Kind { Commands, List, Retrieve, Store };

    Kind kind = Kind::Commands;
    std::vector<QByteArray> commands; ///< sent first, each whatever became of the one before
    QByteArray path;
    QString localFile;
    qint64 offset = 0;
    int type = FtpSession::Binary;
    bool append = false;
    bool passive = true;
    int timeout = 60000; ///< milliseconds
    QByteArray listing;  ///< receives the lines of `List`
};

struct FtpOutcome {
    CURLcode code = CURLE_OK;
    QString error;
    bool aborted = false;
    bool localFailure = false;
    bool diskFull = false; ///< the local one
    bool isShort = false;  ///< the server announced a longer file
    qint64 count = 0;      ///< bytes moved
    std::vector<FtpExchange> exchanges;

    const FtpExchange *last() const { return exchanges.empty() ? nullptr : &exchanges.back(); }
    /// The exchange of the command that starts with this word, or nullptr.
    const FtpExchange *exchange(const char *word) const;
};

/// The control connection: one request after the other, each in the thread that calls `run`.
class FtpWire {
public:
    FtpWire();
    ~FtpWire();
    FtpWire(const FtpWire &) = delete;
    FtpWire &operator=(const FtpWire &) = delete;

    void setServer(const FtpServer &server) { m_server = server; }
    FtpOutcome run(FtpRequest &request);
    /// Ends the request that runs, or the next one unless `forgetAbort` comes before it. From any thread.
    void abort();
    void forgetAbort() { m_aborted = false; }
    bool isAborted() const { return m_aborted; }
    /// Closes the connection without a word. No request runs.
    void drop();
    bool hasConnection();
    /// Whether the idle connection has been closed by the server, or holds a reply that nothing asked for.
    bool isStale();
    /// A reply as it may be shown.
    QByteArray withoutPassword(QByteArray reply) const;

    FtpVerifier verifier;
    // Called in the thread of `run`.
    std::function<void(const FtpExchange &)> onReply;
    std::function<void(qint64 count)> onBytes;

private:
    friend struct FtpWireCall;

    void prepare();
    void prepareTransfer(CURL *easy);
    void perform(FtpOutcome &outcome);
    CURLcode waitForEnd();
    bool openLocal();
    bool keep(const char *data, qsizetype bytes);
    void endLocal(FtpOutcome &outcome);
    bool isShort(const FtpOutcome &outcome) const;
    void replyLine(QByteArrayView line);
    void count(qsizetype bytes);
    curl_socket_t idleSocket();

    CURL *m_easy;
    CURLM *m_multi;
    FtpServer m_server;
    FtpRequest *m_request = nullptr;
    FtpOutcome *m_outcome = nullptr;
    QFile m_file;
    QString m_replaced; ///< the file whose place is taken at the end, when one was there
    QByteArray m_lines; ///< of the reply that is coming in
    QElapsedTimer m_quiet;
    QElapsedTimer m_lastCount;
    qint64 m_count = 0;
    qsizetype m_replyBytes = 0;
    char m_error[CURL_ERROR_SIZE] = {};
    std::atomic<bool> m_aborted = false;
    bool m_flooded = false;
    std::mutex m_mutex;
    std::vector<curl_socket_t> m_sockets; ///< in the order of opening: the control connection comes first
};
