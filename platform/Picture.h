#pragma once
#include <QPixmap>
#include <QString>

/// Pictures as previews.
namespace Picture {

/// The picture of a file, no larger than `size` and never stretched, turned as its camera says; a null pixmap for
/// a file that is no picture. Large files are read at the wanted size where their format allows it.
QPixmap fitted(const QString &path, const QSize &size);

/// Whether a picture can be read to its end; of one that was cut short many formats show the rest as grey.
bool isWhole(const QString &path);

} // namespace Picture
