#include "platform/FtpClient.h"

#include "platform/FtpClientPrivate.h"
#include "platform/FtpReply.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace FtpReply;

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
    d->wire.verifier.setHost(QString::fromLatin1(ace), port);
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
    if (!listed)
        return listed;
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
        return {from->code, d->shown(*from).trimmed()};
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
