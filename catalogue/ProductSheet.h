#pragma once
#include "platform/PrintLayout.h"

#include <QStringList>

/// What is drawn on a product sheet beside its layout: a picture and the table of the attributes.
namespace ProductSheet {

struct Row {
    QString name;
    QString value;
};

/// By page: what doesn't fit under the picture goes on at the head of the next page. A row without a value leaves
/// none; an empty `picture` neither.
QList<QList<PrintObject>> drawn(const QString &picture, const QList<Row> &rows);

} // namespace ProductSheet
