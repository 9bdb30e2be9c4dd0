#pragma once
#include <QString>
#include <QStringList>

/// The file types that the attachment dialogue offers.
namespace FileTypes {

QStringList pictures();
QStringList documents();
/// The filter of an entry: the trimmed part from its "*" onward.
QString filter(const QString &entry);

} // namespace FileTypes
