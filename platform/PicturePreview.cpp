#include "platform/PicturePreview.h"

#include "platform/Picture.h"

PicturePreview::PicturePreview(QWidget *parent) : QLabel(parent)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(100);
    connect(&m_settled, &QTimer::timeout, this, &PicturePreview::fit);
}

void PicturePreview::showFile(const QString &path)
{
    m_path = path;
    fit();
}

void PicturePreview::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    if (isVisible())
        m_settled.start();
    else
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
