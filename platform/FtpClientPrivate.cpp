#include "platform/FtpClientPrivate.h"

#include "platform/CodePage.h"
#include "platform/FtpReply.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <thread>

using namespace Qt::StringLiterals;
using namespace FtpReply;

namespace {

constexpr int deliveryStep = 30; ///< milliseconds between two looks at the events of a transfer

int operationOf(FtpRequest::Kind kind)
{
    if (kind == FtpRequest::Kind::Retrieve)
        return FtpOperation::Retrieve;
    return kind == FtpRequest::Kind::Store ? FtpOperation::Store : FtpOperation::Other;
}

QString causeOf(const FtpOutcome &outcome)
{
    switch (outcome.code) {
    case CURLE_USE_SSL_FAILED:
        return u"The server offers no TLS."_s;
    case CURLE_COULDNT_RESOLVE_HOST:
        return u"No server of that name was found."_s;
    case CURLE_COULDNT_CONNECT:
        return u"The server can't be reached."_s;
    case CURLE_OPERATION_TIMEDOUT:
        return u"The server did not answer in time."_s;
    default:
        return outcome.error;
    }
}

} // namespace

FtpClient::Private::Private(FtpClient &client) : q(client)
{
    wire.onReply = [this](const FtpExchange &exchange) {
        const FtpProgress::Status status = statusOf(exchange.code);
        tell({operationOf(exchange.command), status, shown(exchange), 0});
    };
}

void FtpClient::Private::tell(FtpProgress event)
{
    const std::lock_guard lock(eventMutex);
    events.push_back(std::move(event));
}

/// Several events at a time: to wake the caller's thread for each reply takes as long as a small file.
void FtpClient::Private::deliver()
{
    std::vector<FtpProgress> ready;
    {
        const std::lock_guard lock(eventMutex);
        ready.swap(events);
    }
    for (const FtpProgress &event : ready) {
        if (q.onProgress)
            q.onProgress(event);
    }
}

FtpOutcome FtpClient::Private::run(FtpRequest &request)
{
    request.timeout = qMax(1, q.Timeout);
    request.passive = q.Passive;
    const int operation = operationOf(request.kind);
    wire.onBytes = [this, operation](qint64 count) {
        if (operation != FtpOperation::Other)
            tell({operation, FtpProgress::Running, {}, count});
    };
    busy = true;
    wire.forgetAbort();
    FtpOutcome outcome;
    bool done = false;
    QEventLoop loop;
    QTimer delivery;
    QObject::connect(&delivery, &QTimer::timeout, &relay, [this] { deliver(); });
    delivery.start(deliveryStep);
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
    deliver();
    // One that came too late for the request has cut the connection all the same.
    outcome.aborted = outcome.aborted || wire.isAborted();
    busy = false;
    return outcome;
}

Result FtpClient::Private::failure(const FtpOutcome &outcome, const FtpExchange *judged) const
{
    if (outcome.aborted)
        return {FtpError::Aborted, u"The operation was aborted."_s};
    if (outcome.localFailure)
        return {outcome.diskFull ? FtpError::DiskFull : FtpError::LocalFile, outcome.error};
    if (outcome.code != CURLE_OK)
        judged = outcome.last();
    if (judged && judged->code >= 400)
        return {judged->code, shown(*judged).trimmed()};
    if (outcome.code != CURLE_OK)
        return {FtpError::Connection, causeOf(outcome)};
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
    if (nothingSent || (outcome.code == CURLE_OK && !outcome.localFailure && !outcome.aborted))
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
    if (result && outcome.isShort)
        result = {FtpError::ShortTransfer, u"The file is shorter than the server announced."_s};
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

QString FtpClient::Private::shown(const FtpExchange &exchange) const
{
    return decode(wire.withoutPassword(exchange.reply));
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
        request.commands.emplace_back("TYPE I");
    }
    return perform(request, word);
}

QByteArray FtpClient::Private::encode(const QString &text) const
{
    int lost = 0;
    const QByteArray bytes = eightBit ? CodePage::encode(text, &lost) : QByteArray();
    return eightBit && lost == 0 ? bytes : text.toUtf8();
}
