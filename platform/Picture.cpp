#include "platform/Picture.h"

#include <QImageReader>

QPixmap Picture::fitted(const QString &path, const QSize &size)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize room = turned ? size.transposed() : size;
    if (const QSize whole = reader.size(); whole.width() > room.width() || whole.height() > room.height())
        reader.setScaledSize(whole.scaled(room, Qt::KeepAspectRatio));
    return QPixmap::fromImage(reader.read());
}
