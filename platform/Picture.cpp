#include "platform/Picture.h"

#include <QImageReader>

QPixmap Picture::fitted(const QString &path, const QSize &size)
{
    const auto exceeds = [&size](const QSize &picture) {
        return picture.width() > size.width() || picture.height() > size.height();
    };
    QImageReader reader(path);
    reader.setAutoTransform(true);
    if (const QSize whole = reader.size(); whole.isValid() && exceeds(whole))
        reader.setScaledSize(whole.scaled(size, Qt::KeepAspectRatio));
    QImage picture = reader.read();
    if (exceeds(picture.size())) // one that was turned, or whose size its format doesn't tell
        picture = picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return QPixmap::fromImage(picture);
}
