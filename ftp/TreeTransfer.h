#pragma once
#include "platform/FtpSession.h"

/// Whole folders, one file after the other over the one session. Progress carries the bytes of the tree so far.
namespace TreeTransfer {

/// `remotePattern` is the folder and "/*", in quotes where it holds a blank. A file that fails doesn't keep the
/// others from their transfer; the first failure is told. Links are taken as files, and passed over when the
/// server refuses them as one. A name that leads out of the folder, or that this system can't bear, fails.
Result RetrieveTree(FtpSession &session, const QString &remotePattern, const QString &localFolder);
/// `localPattern` is the folder, a separator and "*", likewise.
Result StoreTree(FtpSession &session, const QString &localPattern, const QString &remoteFolder);

/// Whether a name that a server lists is one name below a folder, on this system and on others.
bool isPlainName(const QString &name);

} // namespace TreeTransfer
