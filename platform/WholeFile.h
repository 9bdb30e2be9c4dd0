#pragma once
#include "platform/Result.h"

#include <QByteArray>
#include <QString>

/// Files that are there whole or not at all, without the price of a flush for each: what is lost with the power
/// can be made again.
namespace WholeFile {

/// Writes `bytes` under a temporary name beside `path` and renames it. On failure the old file stays and no
/// temporary one does.
Result write(const QString &path, QByteArrayView bytes);
/// The same for what can't be made again: the bytes are on the disk before the old file goes, which keeps its rights.
Result replace(const QString &path, const QByteArray &bytes);
/// Where a file is written before it takes the place of `path`, by this process alone.
QString temporaryPath(const QString &path);
/// Removes from a folder the temporary files of programs that no longer run.
void clearTemporaries(const QString &folder);
/// Whether the file holds exactly these bytes.
bool holds(const QString &path, QByteArrayView bytes);
/// Whether a file name is that of a temporary file, left behind by a run that was killed.
bool isTemporaryName(const QString &fileName);

} // namespace WholeFile
