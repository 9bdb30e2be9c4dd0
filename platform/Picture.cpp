#include "platform/Picture.h"

#include <QFile>
#include <QImageReader>
#include <QtEndian>

namespace {

/// The end mark counts behind the start of the scan only: a preview in the head has one of its own. What cameras and
/// programs add behind it is of no account. Markers and lengths: ITU-T T.81, B.1.1.
bool hasEndOfJpeg(QByteArrayView bytes)
{
    constexpr qsizetype markerAndLength = 4;
    for (qsizetype at = 2; at + markerAndLength <= bytes.size();) {
        if (bytes[at] != char(0xFF))
            return false;
        if (bytes[at + 1] == char(0xDA))
            return bytes.sliced(at).contains("\xFF\xD9");
        const bool isFill = bytes[at + 1] == char(0xFF);
        at += isFill ? 1 : 2 + qFromBigEndian<quint16>(bytes.data() + at + 2);
    }
    return false;
}

} // namespace

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
    const QByteArray bytes = file.readAll();
    if (format == "jpeg")
        return hasEndOfJpeg(bytes);
    if (format == "png")
        return bytes.contains("IEND");
    return format != "gif" || bytes.last(std::min<qsizetype>(bytes.size(), 4096)).contains(';');
}
