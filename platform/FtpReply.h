#pragma once
#include "platform/FtpSession.h"

#include <QByteArray>

/// What stands in the bytes of a control connection.
namespace FtpReply {

/// UTF-8 where it can be, else the 8-bit code page.
QString decode(QByteArrayView bytes, bool *isUtf8 = nullptr);
/// Whether a text can be part of a command: a line break would put a second one behind it.
bool isSafe(const QString &text);
int operationOf(const QByteArray &command);
FtpProgress::Status statusOf(int code);
/// The directory of a 257 reply, a doubled quote standing for one (RFC 959, appendix II). Empty without one.
QString quotedDirectory(const QString &reply);
/// The size that the opening reply of a download announces, -1 for none.
qint64 announcedSize(const QString &reply);

} // namespace FtpReply
