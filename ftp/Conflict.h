#pragma once
#include "ftp/LocalBrowser.h"
#include "ftp/RemoteBrowser.h"

/// The rules of the two conflict dialogues.
namespace Conflict {

/// The dialogue opens: closing it by its frame is Cancel, and "All" is not ticked.
void opened(TransferVariables &transfer);
QString caption(const TransferVariables &transfer);
QString message(const TransferVariables &transfer);
bool canResume(const TransferVariables &transfer, bool bRestartSupported);
void overwrite(TransferVariables &transfer);
void resume(TransferVariables &transfer);
void cancel(TransferVariables &transfer);
void rename(TransferVariables &transfer);
void applyToAll(TransferVariables &transfer, bool ticked);

/// The name that the rename dialogue starts with.
QString nameOfTarget(const TransferVariables &transfer);
/// Moves the existing target out of the way. False when the name is taken: the conflict dialogue opens again.
bool renameTarget(FtpDesk &desk, RemoteBrowser &remote, const QString &newName);

} // namespace Conflict
