#pragma once
#include "platform/Ean13Bars.h"
#include "platform/PrintText.h"

#include <QHash>
#include <QImage>
#include <QPainter>
#include <map>
#include <memory>

class QPagedPaintDevice;

/// Paints a document page by page. What a sheet shows many times is read and laid out once.
class PrintPainter {
public:
    explicit PrintPainter(const PrintDocument &document) : m_document(document) {}

    /// Gives the device the page of the layout, from paper edge to paper edge.
    static void setUp(QPagedPaintDevice &device, const PrintLayout &layout);
    /// False when the device takes nothing.
    bool paint(QPagedPaintDevice &device);

private:
    struct Kept {
        QString text;
        std::unique_ptr<PrintText> layout;
    };

    void paintPage(int page);
    void paintObject(const PrintObject &object, const QPointF &corner, const PrintFields &cell);
    void paintText(const PrintObject &object, const QString &text, const QRectF &place);
    void paintPicture(const PrintObject &object, const QString &file, const QRectF &place);
    void paintCode(const PrintObject &object, const QString &code, const QRectF &place);
    void paintBars(const PrintObject &object, const QString &code, const QRectF &place,
                   const std::bitset<Ean13Bars::modules> &bars);
    void paintDigits(const QString &code, const QRectF &bars, double module, double height);
    void paintWrongCode(const PrintObject &object, const QString &code, const QRectF &place);
    QRectF dots(const QRectF &place) const;
    double dots(double length) const { return length * m_scale; }

    const PrintDocument &m_document;
    QPainter m_painter;
    QPagedPaintDevice *m_device = nullptr;
    double m_scale = 1; ///< dots per tenth of a millimetre
    QPointF m_origin;   ///< of the printable area, in dots
    std::map<const PrintObject *, Kept> m_texts;
    QHash<QString, QImage> m_pictures;
    QHash<QString, std::optional<std::bitset<Ean13Bars::modules>>> m_codes;
};
