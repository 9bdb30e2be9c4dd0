#pragma once
#include <QByteArray>
#include <QMap>
#include <QString>

/// Files for tests. What can't be done fails the test where it is called.
namespace Files {

void write(const QString &path, const QByteArray &bytes);
QByteArray read(const QString &path);
/// Copies a folder with all that is in it.
void copyFolder(const QString &from, const QString &to);
/// Every file below a folder with its content, by relative path.
QMap<QString, QByteArray> tree(const QString &folder);

} // namespace Files
