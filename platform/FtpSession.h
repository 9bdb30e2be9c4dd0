#pragma once
#include "platform/Result.h"

#include <QDateTime>
#include <QString>

#include <functional>

/// Codes of the operations that are told apart in progress events.
namespace FtpOperation {
enum Code { Other = 0, Retrieve = 14, RetrieveTree = 15, StoreTree = 16, Store = 17, MakeDirectory = 25 };
}

/// One event of a running operation.
struct FtpProgress {
    enum Status { Done = 0, Running = 1, Failed = 2 };

    int operation = FtpOperation::Other;
    Status status = Running;
    QString reply;    ///< lines of the server as they came, each with its line end; empty when only bytes moved
    qint64 count = 0; ///< bytes moved so far
};

/// A certificate that can't be verified, for the merchant to decide on.
struct FtpCertificate {
    QString host;
    int port = 21;
    QString subject;
    QString issuer;
    QDateTime from;
    QDateTime until;
    QString fingerprint;  ///< SHA-256, pairs of hexadecimal digits with colons between
    int reasonNumber = 0; ///< why it can't be verified, as OpenSSL numbers it
    QString reason;       ///< the same in OpenSSL's words
};

/// How a session protects itself.
enum class FtpTls { Automatic = 0, Always = 1, Never = 2 };

/// Numbers of failures that no reply of the server stands for. A refused command fails with the code of its
/// reply, 400 to 599.
namespace FtpError {
enum Number : long {
    NotConnected = 1001,
    Busy,
    BadName,
    Aborted,
    LocalFile,
    Certificate,
    ShortTransfer,
    Connection,
    DiskFull
};
}

/// One session with an FTP server. Each operation waits for its end while the event loop of the caller turns;
/// the events fire in the caller's thread meanwhile. A name with a line break or a zero character is refused
/// before anything is sent.
class FtpSession {
public:
    enum StateValue { Closed = 0, Connected = 2 };
    enum TypeValue { Ascii = 0, Binary = 1, Ebcdic = 2 };
    enum StoreModeValue { Replace = 0, Continue = 2 };

    virtual ~FtpSession() = default;

    // What the next operation goes by.
    int Timeout = 60000; ///< milliseconds, for each wait on the server
    bool Passive = true;
    int Type = Binary;
    int StoreMode = Replace;
    FtpTls Tls = FtpTls::Automatic; ///< taken at login

    std::function<void(const FtpProgress &)> onProgress;
    std::function<void(int state)> onState;
    /// Called at login for a certificate that can't be verified; true lets the session go on. Without it, no.
    std::function<bool(const FtpCertificate &)> onCertificate;

    virtual int State() const = 0;
    virtual bool Busy() const = 0;
    /// The working directory, as the server last told it.
    virtual QString CurrentDirectory() const = 0;
    virtual Result setCurrentDirectory(const QString &path) = 0;
    /// Whether the server takes REST.
    virtual Result RestartSupported(bool &supported) = 0;

    virtual Result Login(const QString &host, const QString &user, const QString &password, const QString &account,
                         int port) = 0;
    virtual Result Logout() = 0;
    /// Drops the connection at once, also under a running operation.
    virtual void Close() = 0;
    /// Ends the running operation in a failure; the session stays.
    virtual void Abort() = 0;

    virtual Result Cdup() = 0;
    /// `text` receives the lines of the working directory, or of `path`.
    virtual Result List(QString &text, const QString &path = {}) = 0;
    virtual Result MakeDirectory(const QString &name) = 0;
    virtual Result RemoveDirectory(const QString &path) = 0;
    virtual Result Delete(const QString &path) = 0;
    virtual Result Rename(const QString &oldPath, const QString &newPath) = 0;
    /// The remote file from `offset` on, into the local file at the same place. The local file is touched when
    /// the first bytes come, and keeps what came before a failure. One that is replaced stays as it is until all
    /// has come.
    virtual Result Retrieve(const QString &remoteFile, const QString &localFile, qint64 offset = 0) = 0;
    /// The local file, from `offset` on when `StoreMode` continues.
    virtual Result Store(const QString &remoteFile, const QString &localFile, qint64 offset = 0) = 0;
};
