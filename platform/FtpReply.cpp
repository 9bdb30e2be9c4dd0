#include "platform/FtpReply.h"

#include "platform/CodePage.h"

#include <QRegularExpression>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

QString FtpReply::decode(QByteArrayView bytes, bool *isUtf8)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (isUtf8)
        *isUtf8 = !decoder.hasError();
    return decoder.hasError() ? CodePage::decode(bytes) : text;
}

bool FtpReply::isSafe(const QString &text)
{
    return !text.contains(u'\r') && !text.contains(u'\n') && !text.contains(QChar(0));
}

int FtpReply::operationOf(const QByteArray &command)
{
    if (command.startsWith("RETR "))
        return FtpOperation::Retrieve;
    if (command.startsWith("STOR ") || command.startsWith("APPE "))
        return FtpOperation::Store;
    return command.startsWith("MKD ") ? FtpOperation::MakeDirectory : FtpOperation::Other;
}

FtpProgress::Status FtpReply::statusOf(int code)
{
    if (code >= 400)
        return FtpProgress::Failed;
    return code >= 200 && code < 300 ? FtpProgress::Done : FtpProgress::Running;
}

QString FtpReply::quotedDirectory(const QString &reply)
{
    const qsizetype first = reply.indexOf(u'"');
    QString directory;
    for (qsizetype i = first + 1; first >= 0 && i < reply.size(); ++i) {
        if (reply[i] == u'"' && (++i >= reply.size() || reply[i] != u'"'))
            return directory;
        directory += reply[i];
    }
    return {};
}

qint64 FtpReply::announcedSize(const QString &reply)
{
    // The name of the file comes first, and may hold a size of its own.
    static const QRegularExpression size(u".*\\((\\d+) bytes"_s, QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = size.match(reply);
    return match.hasMatch() ? match.captured(1).toLongLong() : -1;
}
