#include "platform/FtpClient.h"

#include "platform/CodePage.h"
#include "platform/FtpReply.h"
#include "platform/FtpWire.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QRegularExpression>
#include <QUrl>

#include <thread>

using namespace Qt::StringLiterals;
using namespace FtpReply;

namespace {

int operationOf(FtpRequest::Kind kind)
{
    if (kind == FtpRequest::Kind::Retrieve)
        return FtpOperation::Retrieve;
    return kind == FtpRequest::Kind::Store ? FtpOperation::Store : FtpOperation::Other;
}

} // namespace

class FtpClient::Private {
public:
    explicit Private(FtpClient &client);

    FtpOutcome run(FtpRequest &request);
    /// Runs a request of the session; `word` is the command that it stands or falls with.
    Result perform(FtpRequest &request, const char *word);
    Result command(std::vector<QByteArray> commands, const char *word);
    QString replyTo(const char *word) const;
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
};

FtpClient::Private::Private(FtpClient &client) : q(client)
{
    const auto tell = [this](FtpProgress event) {
        QMetaObject::invokeMethod(
            &relay,
            [this, event = std::move(event)] {
                if (q.onProgress)
                    q.onProgress(event);
            },
            Qt::QueuedConnection);
    };
    wire.onReply = [tell](const FtpExchange &exchange) {
        const FtpProgress::Status status = statusOf(exchange.code);
        tell({operationOf(exchange.command), status, decode(exchange.reply), 0});
    };
}

FtpOutcome FtpClient::Private::run(FtpRequest &request)
{
    request.timeout = qMax(1, q.Timeout);
    request.passive = q.Passive;
    const int operation = operationOf(request.kind);
    wire.onBytes = [this, operation](qint64 count) {
        const auto event = [this, operation, count] {
            if (q.onProgress && operation != FtpOperation::Other)
                q.onProgress({operation, FtpProgress::Running, {}, count});
        };
        QMetaObject::invokeMethod(&relay, event, Qt::QueuedConnection);
    };
    busy = true;
    wire.forgetAbort();
    FtpOutcome outcome;
    bool done = false;
    QEventLoop loop;
    std::thread worker([&] {
        outcome = wire.run(request);
        const auto end = [&done, &loop] {
            done = true;
            loop.quit();
        };
        QMetaObject::invokeMethod(&relay, end, Qt::QueuedConnection);
    });
    // The loop ends early only when the program does.
    if (loop.exec(); !done)
        wire.abort();
    worker.join();
    QCoreApplication::sendPostedEvents(&relay);
    busy = false;
    return outcome;
}

Result FtpClient::Private::failure(const FtpOutcome &outcome, const FtpExchange *judged) const
{
    if (outcome.aborted)
        return {FtpError::Aborted, u"The operation was aborted."_s};
    if (outcome.localFailure)
        return {FtpError::LocalFile, outcome.error};
    if (outcome.code == CURLE_USE_SSL_FAILED)
        return {FtpError::Connection, u"The server offers no TLS."_s};
    if (outcome.code != CURLE_OK)
        judged = outcome.last();
    if (judged && judged->code >= 400)
        return {judged->code, decode(judged->reply).trimmed()};
    if (outcome.code != CURLE_OK)
        return {FtpError::Connection, outcome.error};
    if (!judged || judged->code == 0)
        return {FtpError::Connection, u"The server gave no reply."_s};
    return {};
}

/// After a failure the connection is kept only where the last word was the server's own refusal; anything else may
/// leave a reply on its way, which the next command would take for its own. A new login comes with the next
/// command. The session is over when the server has ended it, or doesn't answer.
void FtpClient::Private::settle(const FtpRequest &request, const FtpOutcome &outcome)
{
    const FtpExchange *last = outcome.last();
    if (closing || (last && last->code == 421)) {
        close();
        return;
    }
    const bool nothingSent = outcome.localFailure && outcome.exchanges.empty();
    if (nothingSent || (outcome.code == CURLE_OK && !outcome.localFailure))
        return;
    const bool refused = last && last->code >= 400 && wire.hasConnection();
    if (refused && !outcome.aborted)
        return;
    wire.drop();
    if (outcome.aborted || outcome.localFailure)
        return;
    const bool isLost = request.kind == FtpRequest::Kind::Commands || outcome.code == CURLE_OPERATION_TIMEDOUT;
    if (isLost)
        close();
}

Result FtpClient::Private::perform(FtpRequest &request, const char *word)
{
    if (busy)
        return {FtpError::Busy, u"Another operation is running."_s};
    if (state != Connected)
        return {FtpError::NotConnected, u"There is no connection."_s};
    for (const QByteArray &command : request.commands) {
        if (!isSafe(decode(command)))
            return {FtpError::BadName, u"A name must not hold a line break."_s};
    }
    if (!wire.hasConnection()) {
        if (Result again = comeBack(); !again)
            return again;
    } else if (wire.isStale()) {
        close();
        return {FtpError::NotConnected, u"The server has closed the connection."_s};
    }
    const FtpOutcome &outcome = lastOutcome = run(request);
    const FtpExchange *judged = outcome.exchange(word);
    Result result = failure(outcome, judged);
    if (result && request.kind == FtpRequest::Kind::Retrieve && request.type == Binary && request.offset == 0) {
        const qint64 announced = judged ? announcedSize(decode(judged->opening)) : -1;
        if (announced > outcome.count)
            result = {FtpError::ShortTransfer, u"The file is shorter than the server announced."_s};
    }
    const bool isTold = !outcome.aborted && !outcome.localFailure && judged && judged->code >= 400;
    if (!result && !isTold && q.onProgress)
        q.onProgress({operationOf(request.kind), FtpProgress::Failed, result.text() + u"\r\n", 0});
    settle(request, outcome);
    return result;
}

/// Logs in again after a connection that was given up, and stands in the same folder. A request of its own, since
/// libcurl goes to the first folder when a transfer came before it.
Result FtpClient::Private::comeBack()
{
    FtpRequest request;
    request.commands = {named("CWD", directory), "PWD"};
    serverIsEbcdic = false;
    const FtpOutcome &outcome = lastOutcome = run(request);
    Result result = failure(outcome, outcome.exchange("PWD"));
    if (result)
        takeDirectory(directory);
    settle(request, outcome);
    return result;
}

Result FtpClient::Private::command(std::vector<QByteArray> commands, const char *word)
{
    FtpRequest request;
    request.commands = std::move(commands);
    return perform(request, word);
}

QString FtpClient::Private::replyTo(const char *word) const
{
    const FtpExchange *exchange = lastOutcome.exchange(word);
    return exchange ? decode(exchange->reply) : QString();
}

void FtpClient::Private::takeDirectory(const QString &otherwise)
{
    const QString told = quotedDirectory(replyTo("PWD"));
    directory = told.isEmpty() ? otherwise : told;
}

void FtpClient::Private::setState(int value)
{
    if (std::exchange(state, value) != value && q.onState)
        q.onState(value);
}

void FtpClient::Private::close()
{
    closing = false;
    wire.drop();
    setState(Closed);
}

Result FtpClient::Private::login()
{
    while (true) {
        FtpRequest request;
        wire.verifier.forgetRefused();
        const FtpOutcome outcome = lastOutcome = run(request);
        Result result = failure(outcome, outcome.last());
        if (closing) {
            close();
            return {FtpError::Aborted, u"The operation was aborted."_s};
        }
        if (result) {
            takeDirectory(u"/"_s);
            setState(Connected);
            return result;
        }
        wire.drop();
        const std::optional<FtpCertificate> refused = wire.verifier.refused();
        if (!refused || outcome.aborted)
            return result;
        if (!q.onCertificate || !q.onCertificate(*refused))
            return {FtpError::Certificate, u"The server's certificate was not accepted: "_s + refused->reason};
        wire.verifier.accept(*refused);
    }
}

Result FtpClient::Private::transfer(FtpRequest &request, const QString &remoteFile)
{
    const char *word = request.kind == FtpRequest::Kind::Retrieve ? "RETR" : request.append ? "APPE" : "STOR";
    if (!isSafe(remoteFile))
        return {FtpError::BadName, u"A name must not hold a line break."_s};
    const QString separator = directory.endsWith(u'/') ? u""_s : u"/"_s;
    request.path = encode(remoteFile.startsWith(u'/') ? remoteFile : directory + separator + remoteFile);
    request.type = q.Type;
    if (q.Type == Ebcdic) {
        if (Result refused = command({"TYPE E"}, "TYPE"); !refused)
            return refused;
        serverIsEbcdic = true;
    } else if (std::exchange(serverIsEbcdic, false)) {
        request.commands.push_back("TYPE I");
    }
    return perform(request, word);
}

QByteArray FtpClient::Private::encode(const QString &text) const
{
    int lost = 0;
    const QByteArray bytes = eightBit ? CodePage::encode(text, &lost) : QByteArray();
    return eightBit && lost == 0 ? bytes : text.toUtf8();
}

FtpClient::FtpClient() : d(std::make_unique<Private>(*this)) {}

FtpClient::~FtpClient() = default;

int FtpClient::State() const
{
    return d->state;
}

bool FtpClient::Busy() const
{
    return d->busy;
}

QString FtpClient::CurrentDirectory() const
{
    return d->directory;
}

Result FtpClient::setCurrentDirectory(const QString &path)
{
    Result changed = d->command({d->named("CWD", path), "PWD"}, "CWD");
    if (changed)
        d->takeDirectory(path);
    return changed;
}

Result FtpClient::RestartSupported(bool &supported)
{
    const Result asked = d->command({"REST 0"}, "REST");
    supported = bool(asked);
    return asked.number() >= 400 && asked.number() < 600 ? Result() : asked;
}

Result FtpClient::Login(const QString &host, const QString &user, const QString &password, const QString &account,
                        int port)
{
    if (d->busy)
        return {FtpError::Busy, u"Another operation is running."_s};
    d->close();
    for (const QString &text : {user, password, account}) {
        if (!isSafe(text))
            return {FtpError::BadName, u"A name must not hold a line break."_s};
    }
    static const QRegularExpression hostForm(u"^[A-Za-z0-9._:-]+$"_s);
    const QString name = host.trimmed();
    const QByteArray ace = name.contains(u':') ? name.toLatin1() : QUrl::toAce(name);
    if (!hostForm.match(QString::fromLatin1(ace)).hasMatch())
        return {FtpError::BadName, u"This is no name of a server: \""_s + host + u'"'};
    if (port < 1 || port > 65535)
        return {FtpError::BadName, u"This is no port: "_s + QString::number(port)};
    d->eightBit = false;
    d->serverIsEbcdic = false;
    d->wire.setServer({ace, port, user.toUtf8(), password.toUtf8(), account.toUtf8(), Tls});
    d->wire.verifier.setHost(QString::fromLatin1(ace));
    return d->login();
}

Result FtpClient::Logout()
{
    if (d->state != Connected)
        return {};
    Result result = d->command({"QUIT"}, "QUIT");
    d->close();
    return result;
}

void FtpClient::Close()
{
    if (d->busy) {
        d->closing = true;
        d->wire.abort();
    } else {
        d->close();
    }
}

void FtpClient::Abort()
{
    if (d->busy)
        d->wire.abort();
}

Result FtpClient::Cdup()
{
    Result changed = d->command({"CDUP", "PWD"}, "CDUP");
    if (changed)
        d->takeDirectory(d->directory);
    return changed;
}

Result FtpClient::List(QString &text, const QString &path)
{
    if (!isSafe(path))
        return {FtpError::BadName, u"A name must not hold a line break."_s};
    FtpRequest request;
    request.kind = FtpRequest::Kind::List;
    request.type = Ascii;
    if (!path.isEmpty())
        request.path = d->encode(path.endsWith(u'/') ? path : path + u'/');
    Result listed = d->perform(request, "LIST");
    bool isUtf8 = true;
    text = decode(request.listing, &isUtf8);
    d->eightBit = !isUtf8;
    // libcurl has made the line ends those of this system.
    text.remove(u'\r').replace(u'\n', u"\r\n"_s);
    return listed;
}

Result FtpClient::MakeDirectory(const QString &name)
{
    return d->command({d->named("MKD", name)}, "MKD");
}

Result FtpClient::RemoveDirectory(const QString &path)
{
    return d->command({d->named("RMD", path)}, "RMD");
}

Result FtpClient::Delete(const QString &path)
{
    return d->command({d->named("DELE", path)}, "DELE");
}

Result FtpClient::Rename(const QString &oldPath, const QString &newPath)
{
    Result renamed = d->command({d->named("RNFR", oldPath), d->named("RNTO", newPath)}, "RNTO");
    if (const FtpExchange *from = d->lastOutcome.exchange("RNFR"); from && from->code >= 400)
        return {from->code, decode(from->reply).trimmed()};
    return renamed;
}

Result FtpClient::Retrieve(const QString &remoteFile, const QString &localFile, qint64 offset)
{
    FtpRequest request;
    request.kind = FtpRequest::Kind::Retrieve;
    request.localFile = localFile;
    request.offset = offset;
    return d->transfer(request, remoteFile);
}

Result FtpClient::Store(const QString &remoteFile, const QString &localFile, qint64 offset)
{
    FtpRequest request;
    request.kind = FtpRequest::Kind::Store;
    request.localFile = localFile;
    request.append = StoreMode == Continue && offset > 0;
    request.offset = request.append ? offset : 0;
    return d->transfer(request, remoteFile);
}
