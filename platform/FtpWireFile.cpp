// The local file of a transfer.
#include "platform/FtpReply.h"
#include "platform/FtpWire.h"
#include "platform/WholeFile.h"

#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

bool FtpWire::openLocal()
{
    if (m_file.isOpen())
        return true;
    m_file.setFileName(m_request->localFile);
    if (m_request->kind == FtpRequest::Kind::Store)
        return m_file.open(QFile::ReadOnly);
    // Without a buffer a full disk is told where it happens.
    if (m_request->offset > 0)
        return m_file.open(QFile::ReadWrite | QFile::Unbuffered) && m_file.seek(m_request->offset);
    const QFileInfo existing(m_request->localFile);
    if (!existing.isFile() || !existing.isWritable())
        return m_file.open(QFile::WriteOnly | QFile::Truncate | QFile::Unbuffered);
    m_replaced = existing.canonicalFilePath();
    m_file.setFileName(WholeFile::temporaryPath(m_replaced));
    return m_file.open(QFile::WriteOnly | QFile::Truncate | QFile::Unbuffered, existing.permissions());
}

/// A disk that fills takes a part of the bytes first, and gives the cause with the next ones.
bool FtpWire::keep(const char *data, qsizetype bytes)
{
    while (bytes > 0) {
        const qint64 written = m_file.write(data, bytes);
        if (written <= 0)
            return false;
        data += written;
        bytes -= qsizetype(written);
    }
    return true;
}

/// What came takes the place of the old file only when it is whole.
void FtpWire::endLocal(FtpOutcome &outcome)
{
    if (outcome.localFailure) {
        outcome.diskFull = m_file.error() == QFile::ResourceError;
        outcome.error = m_file.errorString() + u": "_s + m_request->localFile;
    }
    m_file.close();
    const QString replaced = std::exchange(m_replaced, QString());
    if (replaced.isEmpty())
        return;
    if (outcome.code != CURLE_OK || outcome.localFailure || outcome.isShort) {
        m_file.remove();
    } else if (std::rename(QFile::encodeName(m_file.fileName()).constData(), QFile::encodeName(replaced).constData())
               != 0) {
        outcome.localFailure = true;
        outcome.error = qt_error_string() + u": "_s + m_request->localFile;
        m_file.remove();
    }
}

/// Whether less came than the server announced.
bool FtpWire::isShort(const FtpOutcome &outcome) const
{
    const bool isCounted = m_request->kind == FtpRequest::Kind::Retrieve && m_request->type == FtpSession::Binary
                           && m_request->offset == 0 && outcome.code == CURLE_OK;
    const FtpExchange *retrieve = isCounted ? outcome.exchange("RETR") : nullptr;
    return retrieve && FtpReply::announcedSize(FtpReply::decode(retrieve->opening)) > outcome.count;
}
