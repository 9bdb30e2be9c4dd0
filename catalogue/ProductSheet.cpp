#include "catalogue/ProductSheet.h"

namespace {

using Kind = PrintObject::Kind;

const QRectF picturePlace(QPointF(1246, 769), QPointF(1857, 1412));
constexpr double rowHeight = 60;
constexpr double firstTop = 1533; // the layout leaves the page free from here
constexpr double nextTop = 203;   // on the pages that have no layout
constexpr double bottom = 2780;
constexpr double left = 203;
constexpr double right = 1904;
constexpr double divider = 767;
constexpr double penSize = 3;

PrintObject object(Kind kind, const QRectF &place)
{
    PrintObject object;
    object.kind = kind;
    object.place = place;
    object.pen = penSize;
    return object;
}

/// A dollar sign of the merchant's is no field.
PrintObject words(const QString &text, double from, double to, double top, bool bold)
{
    PrintObject words = object(Kind::Text, {from, top, to - from, rowHeight});
    words.text = text;
    words.isLiteral = true;
    words.bold = bold;
    words.points = 10;
    words.smallest = 5.5;
    words.fit = PrintObject::Fit::Shrink;
    words.alignment = Qt::AlignLeft | Qt::AlignVCenter;
    return words;
}

} // namespace

QList<QList<PrintObject>> ProductSheet::drawn(const QString &picture, const QList<Row> &rows)
{
    QList<QList<PrintObject>> pages(1);
    if (!picture.isEmpty()) {
        pages[0] << object(Kind::Picture, picturePlace);
        pages[0].last().text = picture;
        pages[0].last().isLiteral = true;
        pages[0].last().alignment = Qt::AlignCenter;
    }
    double start = firstTop;
    double top = firstTop;
    const auto divide = [&] {
        if (top > start)
            pages.last() << object(Kind::Line, QRectF(QPointF(divider, start), QPointF(divider, top)));
    };
    for (const Row &row : rows) {
        if (row.value.isEmpty())
            continue;
        if (top + rowHeight > bottom) {
            divide();
            pages.emplaceBack();
            start = top = nextTop;
        }
        pages.last() << object(Kind::Box, QRectF(QPointF(left, top), QPointF(right, top + rowHeight)))
                     << words(row.name, 219, 751, top, true) << words(row.value, 785, 1883, top, false);
        top += rowHeight;
    }
    divide();
    return pages;
}
