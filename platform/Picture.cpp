#include "platform/Picture.h"

#include <QFile>
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

bool Picture::isWhole(const QString &path)
{
    QImageReader reader(path);
    const QByteArray format = reader.format();
    if (reader.read().isNull())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // Their last bytes say that nothing is missing; what some programs add behind them is short.
    constexpr qint64 added = 4096;
    file.seek(std::max<qint64>(0, file.size() - added));
    const QByteArray end = file.readAll();
    if (format == "jpeg")
        return end.contains("\xFF\xD9");
    if (format == "png")
        return end.contains("IEND");
    return format != "gif" || end.contains(';');
}
