#include "platform/PicturePreview.h"

#include "platform/Picture.h"

void PicturePreview::showFile(const QString &path)
{
    m_path = path;
    fit();
}

void PicturePreview::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

void PicturePreview::fit()
{
    QPixmap picture;
    if (!m_path.isEmpty())
        picture = Picture::fitted(m_path, contentsRect().size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(picture);
}
