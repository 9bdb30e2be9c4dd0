#include "platform/FtpWire.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestReplies = qsizetype(256) * 1024; ///< of one request; more is a server that never ends
constexpr qsizetype longestListing = qsizetype(32) * 1024 * 1024;
constexpr long waitStep = 10;    ///< milliseconds
constexpr qint64 countStep = 50; ///< milliseconds between two counts of bytes

using Commands = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

bool isStart(QByteArrayView command, const char *word)
{
    const QByteArrayView start(word);
    return command.startsWith(start) && (command.size() == start.size() || command[start.size()] == ' ');
}

} // namespace

const FtpExchange *FtpOutcome::exchange(const char *word) const
{
    const auto last = std::find_if(exchanges.rbegin(), exchanges.rend(),
                                   [word](const FtpExchange &one) { return isStart(one.command, word); });
    return last == exchanges.rend() ? nullptr : &*last;
}

/// What libcurl calls while a request runs.
struct FtpWireCall {
    static int debug(CURL *, curl_infotype type, char *data, size_t size, void *self)
    {
        auto &wire = *static_cast<FtpWire *>(self);
        if (type == CURLINFO_HEADER_OUT) {
            wire.m_outcome->exchanges.push_back({QByteArray(data, qsizetype(size)).trimmed(), {}, 0, {}});
            wire.m_quiet.start();
        } else if (type == CURLINFO_HEADER_IN) {
            wire.replyLine(QByteArrayView(data, qsizetype(size)));
            wire.m_quiet.start();
        }
        return 0;
    }

    static size_t header(char *, size_t size, size_t count, void *self)
    {
        return static_cast<FtpWire *>(self)->m_flooded ? 0 : size * count;
    }

    static size_t write(const char *data, size_t size, size_t count, void *self)
    {
        auto &wire = *static_cast<FtpWire *>(self);
        const qsizetype bytes = qsizetype(size) * qsizetype(count);
        if (wire.m_request->kind == FtpRequest::Kind::List) {
            if (wire.m_request->listing.size() + bytes > longestListing) {
                wire.m_flooded = true;
                return 0;
            }
            wire.m_request->listing.append(data, bytes);
        } else if (!wire.openLocal() || !wire.keep(data, bytes)) {
            wire.m_outcome->localFailure = true;
            return 0;
        }
        wire.count(bytes);
        return size * count;
    }

    static size_t read(char *data, size_t size, size_t count, void *self)
    {
        auto &wire = *static_cast<FtpWire *>(self);
        const qint64 bytes = wire.m_file.read(data, qint64(size) * qint64(count));
        if (bytes < 0) {
            wire.m_outcome->localFailure = true;
            return CURL_READFUNC_ABORT;
        }
        wire.count(bytes);
        return size_t(bytes);
    }

    static int seek(void *self, curl_off_t offset, int origin)
    {
        auto &wire = *static_cast<FtpWire *>(self);
        return origin == SEEK_SET && wire.m_file.seek(offset) ? CURL_SEEKFUNC_OK : CURL_SEEKFUNC_FAIL;
    }

    static curl_socket_t openSocket(void *self, curlsocktype, curl_sockaddr *address)
    {
        auto &wire = *static_cast<FtpWire *>(self);
        const curl_socket_t opened = socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
        const std::lock_guard lock(wire.m_mutex);
        if (opened >= 0)
            wire.m_sockets.push_back(opened);
        wire.m_quiet.start();
        return opened;
    }

    static int closeSocket(void *self, curl_socket_t closed)
    {
        auto &wire = *static_cast<FtpWire *>(self);
        const std::lock_guard lock(wire.m_mutex);
        std::erase(wire.m_sockets, closed);
        return close(closed);
    }

    static CURLcode sslContext(CURL *, void *context, void *self)
    {
        static_cast<FtpWire *>(self)->verifier.install(context);
        return CURLE_OK;
    }
};

FtpWire::FtpWire()
{
    static const bool ready = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    Q_UNUSED(ready)
    m_easy = curl_easy_init();
    m_multi = curl_multi_init();
}

FtpWire::~FtpWire()
{
    drop();
    curl_multi_cleanup(m_multi);
    curl_easy_cleanup(m_easy);
}

void FtpWire::abort()
{
    m_aborted = true;
    const std::lock_guard lock(m_mutex);
    // While libcurl waits for the reply that closes a transfer, it looks at nothing but its socket.
    for (const curl_socket_t one : m_sockets)
        shutdown(one, SHUT_RDWR);
    curl_multi_wakeup(m_multi);
}

void FtpWire::drop()
{
    {
        // A connection that can still be written to would be given a QUIT, and its answer waited for.
        const std::lock_guard lock(m_mutex);
        for (const curl_socket_t one : m_sockets)
            shutdown(one, SHUT_RDWR);
    }
    curl_multi_cleanup(m_multi);
    m_multi = curl_multi_init();
}

curl_socket_t FtpWire::idleSocket()
{
    const std::lock_guard lock(m_mutex);
    return m_sockets.empty() ? CURL_SOCKET_BAD : m_sockets.front();
}

bool FtpWire::hasConnection()
{
    return idleSocket() != CURL_SOCKET_BAD;
}

bool FtpWire::isStale()
{
    char byte = 0;
    return recv(idleSocket(), &byte, 1, MSG_PEEK | MSG_DONTWAIT) >= 0 || (errno != EAGAIN && errno != EWOULDBLOCK);
}

QByteArray FtpWire::withoutPassword(QByteArray reply) const
{
    return m_server.password.isEmpty() ? reply : reply.replace(m_server.password, "****");
}

void FtpWire::replyLine(QByteArrayView line)
{
    m_replyBytes += line.size();
    m_flooded = m_flooded || m_replyBytes > longestReplies;
    if (m_flooded)
        return;
    m_lines.append(line);
    // A last line is the code and a blank. The code alone ends a reply too, for servers that say no more.
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (line.size() < 4 || !isDigit(line[0]) || !isDigit(line[1]) || !isDigit(line[2]) || line[3] == '-')
        return;
    if (line[3] != ' ' && line[3] != '\r' && line[3] != '\n')
        return;
    if (m_outcome->exchanges.empty())
        m_outcome->exchanges.emplace_back();
    FtpExchange &exchange = m_outcome->exchanges.back();
    exchange.code = line.first(3).toByteArray().toInt();
    exchange.reply = std::exchange(m_lines, {});
    if (exchange.code < 200)
        exchange.opening = exchange.reply;
    if (onReply)
        onReply(exchange);
}

void FtpWire::count(qsizetype bytes)
{
    m_count += bytes;
    m_quiet.start();
    if (onBytes && m_lastCount.hasExpired(countStep)) {
        onBytes(m_count);
        m_lastCount.start();
    }
}

void FtpWire::prepare()
{
    curl_easy_reset(m_easy);
    const auto set = [this](CURLoption option, auto value) { curl_easy_setopt(m_easy, option, value); };
    set(CURLOPT_PROTOCOLS_STR, "ftp");
    set(CURLOPT_PROXY, "");
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L);
    set(CURLOPT_ERRORBUFFER, m_error);
    if (!m_server.user.isEmpty())
        set(CURLOPT_USERNAME, m_server.user.constData());
    set(CURLOPT_PASSWORD, m_server.password.constData());
    if (!m_server.account.isEmpty())
        set(CURLOPT_FTP_ACCOUNT, m_server.account.constData());
    set(CURLOPT_FTP_FILEMETHOD, long(CURLFTPMETHOD_NOCWD));
    set(CURLOPT_PATH_AS_IS, 1L);
    set(CURLOPT_MAXAGE_CONN, 1000000L);
    set(CURLOPT_SERVER_RESPONSE_TIMEOUT, long(qMax(1, m_request->timeout / 1000)));
    // The whole of a login; `waitForEnd` watches each of its waits.
    set(CURLOPT_CONNECTTIMEOUT_MS, long(m_request->timeout) * 8);
    set(CURLOPT_ACCEPTTIMEOUT_MS, long(m_request->timeout));

    // A passive reply may name another host; the data always come from the server that was asked for.
    set(CURLOPT_FTP_SKIP_PASV_IP, 1L);
    if (!m_request->passive)
        set(CURLOPT_FTPPORT, "-");

    constexpr long modes[] = {CURLUSESSL_TRY, CURLUSESSL_ALL, CURLUSESSL_NONE};
    set(CURLOPT_USE_SSL, modes[int(m_server.tls)]);
    set(CURLOPT_FTPSSLAUTH, long(CURLFTPAUTH_TLS));
    // Over TLS 1.3 this libcurl loses the session after a few data connections, where a server demands it again.
    constexpr long maximum = long(CURL_SSLVERSION_TLSv1_2) << 16; // as CURL_SSLVERSION_MAX_TLSv1_2
    set(CURLOPT_SSLVERSION, long(CURL_SSLVERSION_TLSv1_2) | maximum);
    // The verifier looks at chain and name, since it knows what was accepted by hand.
    curl_easy_setopt(m_easy, CURLOPT_CAINFO, nullptr);
    curl_easy_setopt(m_easy, CURLOPT_CAPATH, nullptr);
    set(CURLOPT_SSL_VERIFYPEER, 0L);
    set(CURLOPT_SSL_VERIFYHOST, 0L);
    curl_easy_setopt(m_easy, CURLOPT_SSL_CTX_FUNCTION, &FtpWireCall::sslContext);
    set(CURLOPT_SSL_CTX_DATA, this);

    set(CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(m_easy, CURLOPT_DEBUGFUNCTION, &FtpWireCall::debug);
    set(CURLOPT_DEBUGDATA, this);
    curl_easy_setopt(m_easy, CURLOPT_HEADERFUNCTION, &FtpWireCall::header);
    set(CURLOPT_HEADERDATA, this);
    curl_easy_setopt(m_easy, CURLOPT_OPENSOCKETFUNCTION, &FtpWireCall::openSocket);
    set(CURLOPT_OPENSOCKETDATA, this);
    curl_easy_setopt(m_easy, CURLOPT_CLOSESOCKETFUNCTION, &FtpWireCall::closeSocket);
    set(CURLOPT_CLOSESOCKETDATA, this);
    prepareTransfer(m_easy);
}

void FtpWire::prepareTransfer(CURL *easy)
{
    const auto set = [easy](CURLoption option, auto value) { curl_easy_setopt(easy, option, value); };
    const QByteArray host = m_server.host.contains(':') ? '[' + m_server.host + ']' : m_server.host;
    QByteArray path = m_request->path.toPercentEncoding("/");
    if (path.startsWith('/'))
        path.replace(0, 1, "%2F");
    const QByteArray url = "ftp://" + host + ':' + QByteArray::number(m_server.port) + '/' + path;
    set(CURLOPT_URL, url.constData());
    // A SIZE before each file would cost a round trip; the opening reply and the closing one tell enough.
    set(CURLOPT_IGNORE_CONTENT_LENGTH, 1L);
    set(CURLOPT_TRANSFERTEXT, long(m_request->type == FtpSession::Ascii));
    set(CURLOPT_BUFFERSIZE, 256L * 1024);
    set(CURLOPT_UPLOAD_BUFFERSIZE, 256L * 1024);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &FtpWireCall::write);
    set(CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy, CURLOPT_READFUNCTION, &FtpWireCall::read);
    set(CURLOPT_READDATA, this);
    curl_easy_setopt(easy, CURLOPT_SEEKFUNCTION, &FtpWireCall::seek);
    set(CURLOPT_SEEKDATA, this);
    set(CURLOPT_NOBODY, long(m_request->kind == FtpRequest::Kind::Commands));
    if (m_request->kind == FtpRequest::Kind::Store) {
        set(CURLOPT_UPLOAD, 1L);
        set(CURLOPT_APPEND, long(m_request->append));
    }
}

FtpOutcome FtpWire::run(FtpRequest &request)
{
    FtpOutcome outcome;
    m_request = &request;
    m_outcome = &outcome;
    m_lines.clear();
    m_count = m_replyBytes = 0;
    m_flooded = false;
    m_error[0] = 0;
    m_quiet.start();
    m_lastCount.start();
    if (request.kind == FtpRequest::Kind::Store && (!openLocal() || !m_file.seek(request.append ? request.offset : 0)))
        outcome.localFailure = true;
    else
        perform(outcome);
    // An empty file sends no bytes.
    if (request.kind == FtpRequest::Kind::Retrieve && outcome.code == CURLE_OK && !openLocal())
        outcome.localFailure = true;
    outcome.isShort = isShort(outcome);
    endLocal(outcome);
    m_request = nullptr;
    m_outcome = nullptr;
    return outcome;
}

void FtpWire::perform(FtpOutcome &outcome)
{
    prepare();
    Commands commands(nullptr, curl_slist_free_all);
    for (const QByteArray &command : m_request->commands) {
        // Without the star a refusal would cost the connection.
        const QByteArray line = '*' + command;
        commands.reset(curl_slist_append(commands.release(), line.constData()));
    }
    curl_easy_setopt(m_easy, CURLOPT_QUOTE, commands.get());
    // Sent right before the file is asked for. libcurl itself knows of two types alone, and resumes only where it may
    // ask for the size first, and never in ASCII.
    Commands last(nullptr, curl_slist_free_all);
    if (m_request->type == FtpSession::Ebcdic)
        last.reset(curl_slist_append(last.release(), "*TYPE E"));
    if (m_request->kind == FtpRequest::Kind::Retrieve && m_request->offset > 0) {
        const QByteArray rest = "REST " + QByteArray::number(m_request->offset);
        last.reset(curl_slist_append(last.release(), rest.constData()));
    }
    curl_easy_setopt(m_easy, CURLOPT_PREQUOTE, last.get());
    curl_multi_add_handle(m_multi, m_easy);
    outcome.code = waitForEnd();
    outcome.aborted = m_aborted;
    outcome.count = m_count;
    curl_multi_remove_handle(m_multi, m_easy);
    if (onBytes && m_count > 0)
        onBytes(m_count);
    if (m_flooded)
        outcome.error = u"The server's reply has no end."_s;
    else if (outcome.code != CURLE_OK)
        outcome.error = QString::fromUtf8(m_error[0] ? m_error : curl_easy_strerror(outcome.code));
}

CURLcode FtpWire::waitForEnd()
{
    int running = 1;
    while (true) {
        if (m_aborted)
            return CURLE_ABORTED_BY_CALLBACK;
        if (curl_multi_perform(m_multi, &running) != CURLM_OK)
            return CURLE_FAILED_INIT;
        if (running == 0)
            break;
        if (m_flooded)
            return CURLE_WEIRD_SERVER_REPLY;
        if (m_quiet.hasExpired(m_request->timeout))
            return CURLE_OPERATION_TIMEDOUT;
        curl_multi_poll(m_multi, nullptr, 0, waitStep, nullptr);
    }
    int left = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_multi, &left)) {
        if (message->msg == CURLMSG_DONE)
            return message->data.result;
    }
    return CURLE_FAILED_INIT;
}
