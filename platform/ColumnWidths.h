#pragma once
#include <QList>
#include <QString>

/// Widths of the columns of a grid as they are remembered: each with "|" behind it.
namespace ColumnWidths {

QString toText(const QList<int> &widths);
/// What is no number counts as -1, which leaves a column as it is.
QList<int> fromText(const QString &text);

} // namespace ColumnWidths
