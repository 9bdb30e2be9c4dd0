#pragma once
#include "platform/PrintLayout.h"

#include <QFont>
#include <QTextLayout>

class QPaintDevice;
class QPainter;

/// A text laid out for its place on a device, as its object says.
class PrintText {
public:
    /// `size` is that of the place in dots of the device.
    PrintText(const PrintObject &object, const QString &text, const QString &family, const QSizeF &size,
              QPaintDevice *device);
    Q_DISABLE_COPY_MOVE(PrintText)

    void draw(QPainter &painter, const QPointF &corner) const { m_layout.draw(&painter, corner + m_offset); }

private:
    /// Breaks the text into lines; false where they need more room than there is, with the lines that fit.
    bool breakLines(const QFont &font, QTextOption::WrapMode mode);
    void cutLastLine();

    QSizeF m_size;
    QPaintDevice *m_device;
    Qt::Alignment m_alignment;
    QTextLayout m_layout;
    QPointF m_offset;
    double m_height = 0;
};
