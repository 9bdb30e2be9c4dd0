#include "platform/PrintPainter.h"

#include <QDir>
#include <QFontMetricsF>
#include <QImageReader>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr double tenthsPerInch = 254;
constexpr double digitsHeight = 9; // modules: digits and the white above them
constexpr double guardDepth = 5;   // modules that the guard bars go deeper
constexpr int mostCodes = 5000;    // kept at once
constexpr double pictureDpi = 300; // no printer shows more of a photograph

bool isGuard(int module)
{
    return module < 3 || module >= Ean13Bars::modules - 3 || (module >= 45 && module < 50);
}

/// A large photograph is read at the size that paper can show, turned as its camera says.
QImage readPicture(const QString &path, const QSizeF &inches)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize most = (inches * pictureDpi).toSize().expandedTo({1, 1});
    const QSize whole = reader.size();
    if (whole.isValid() && (whole.width() > 2 * most.width() || whole.height() > 2 * most.height()))
        reader.setScaledSize(whole.scaled(2 * most, Qt::KeepAspectRatio));
    return reader.read();
}

QRectF aligned(const QSizeF &size, const QRectF &place, Qt::Alignment alignment)
{
    QRectF taken(place.topLeft(), size);
    if (alignment & Qt::AlignHCenter)
        taken.moveLeft(place.center().x() - size.width() / 2);
    else if (alignment & Qt::AlignRight)
        taken.moveRight(place.right());
    if (alignment & Qt::AlignVCenter)
        taken.moveTop(place.center().y() - size.height() / 2);
    else if (alignment & Qt::AlignBottom)
        taken.moveBottom(place.bottom());
    return taken;
}

} // namespace

void PrintPainter::setUp(QPagedPaintDevice &device, const PrintLayout &layout)
{
    const bool landscape = layout.page.width() > layout.page.height();
    const QSizeF paper = (landscape ? layout.page.transposed() : layout.page) / 10;
    QPageLayout page(QPageSize(paper, QPageSize::Millimeter),
                     landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
    page.setMode(QPageLayout::FullPageMode);
    device.setPageLayout(page);
}

bool PrintPainter::paint(QPagedPaintDevice &device)
{
    m_device = &device;
    if (!m_painter.begin(&device))
        return false;
    m_scale = device.logicalDpiX() / tenthsPerInch;
    m_origin = device.pageLayout().paintRectPixels(device.logicalDpiX()).topLeft();
    bool goesOn = true;
    for (int page = 0; page < m_document.pages() && goesOn; ++page) {
        goesOn = page == 0 || device.newPage();
        if (goesOn)
            paintPage(page);
    }
    m_texts.clear();
    return m_painter.end() && goesOn;
}

void PrintPainter::paintPage(int page)
{
    const PrintLayout &layout = m_document.layout;
    const PrintCells &cells = layout.cells;
    const qsizetype first = qsizetype(page) * cells.count();
    const bool isSheet = !cells.objects.isEmpty() && (page == 0 || first < m_document.cells.size());
    if (page == 0 || isSheet)
        for (const PrintObject &object : layout.objects)
            paintObject(object, {}, {});
    for (int cell = 0; isSheet && cell < cells.count(); ++cell) {
        if (!m_document.cells.isEmpty() && first + cell >= m_document.cells.size())
            break;
        const PrintFields values = m_document.cells.value(first + cell);
        for (const PrintObject &object : cells.objects)
            paintObject(object, cells.corner(cell), values);
    }
    if (page < m_document.drawn.size())
        for (const PrintObject &object : m_document.drawn[page])
            paintObject(object, {}, {});
}

void PrintPainter::paintObject(const PrintObject &object, const QPointF &corner, const PrintFields &cell)
{
    const QString text = object.isLiteral ? object.text : m_document.filled(object.text, cell);
    if (!object.when.isEmpty() && !QRegularExpression(object.when).match(text).hasMatch())
        return;
    const QRectF place = dots(object.place.translated(corner));
    QPen pen(QColor::fromRgb(object.colour), dots(object.pen));
    pen.setJoinStyle(Qt::MiterJoin);
    m_painter.setPen(object.pen > 0 ? pen : QPen(Qt::NoPen));
    m_painter.setBrush(object.isFilled ? QBrush(QColor::fromRgb(object.fill)) : QBrush(Qt::NoBrush));
    switch (object.kind) {
    case PrintObject::Kind::Text:
        return paintText(object, text, place);
    case PrintObject::Kind::Picture:
        return paintPicture(object, text, place);
    case PrintObject::Kind::Box:
        return m_painter.drawRect(place);
    case PrintObject::Kind::Line:
        return m_painter.drawLine(place.topLeft(), place.bottomRight());
    case PrintObject::Kind::Ean13:
        return paintCode(object, text.trimmed(), place);
    }
}

void PrintPainter::paintText(const PrintObject &object, const QString &text, const QRectF &place)
{
    if (text.isEmpty())
        return;
    Kept &kept = m_texts[&object];
    if (!kept.layout || kept.text != text)
        kept = {text,
                std::make_unique<PrintText>(object, text, m_document.layout.font, place.size(), m_painter.device())};
    m_painter.setPen(QColor::fromRgb(object.colour));
    kept.layout->draw(m_painter, place.topLeft());
}

/// As large as its place, with the ratio that it has. A file that is gone or no picture leaves the place white.
void PrintPainter::paintPicture(const PrintObject &object, const QString &file, const QRectF &place)
{
    if (file.isEmpty())
        return;
    const QString path = QDir(m_document.layout.folder).filePath(file);
    auto found = m_pictures.constFind(path);
    if (found == m_pictures.constEnd())
        found = m_pictures.insert(path, readPicture(path, object.place.size() / tenthsPerInch));
    if (found->isNull())
        return;
    const QSizeF size = QSizeF(found->size()).scaled(place.size(), Qt::KeepAspectRatio);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.drawImage(aligned(size, place, object.alignment), *found);
}

void PrintPainter::paintCode(const PrintObject &object, const QString &code, const QRectF &place)
{
    if (code.isEmpty())
        return;
    if (m_codes.size() > mostCodes)
        m_codes.clear();
    auto found = m_codes.constFind(code);
    if (found == m_codes.constEnd())
        found = m_codes.insert(code, Ean13Bars::encode(code));
    if (*found)
        paintBars(object, code, place, **found);
    else
        paintWrongCode(object, code, place);
}

/// Every module is a whole number of dots wide, so that all bars come out alike; the symbol takes what the place has
/// room for, with its quiet zones.
void PrintPainter::paintBars(const PrintObject &object, const QString &code, const QRectF &place,
                             const std::bitset<Ean13Bars::modules> &bars)
{
    constexpr int all = Ean13Bars::leftQuiet + Ean13Bars::modules + Ean13Bars::rightQuiet;
    const double exact = place.width() / all;
    const double module = exact >= 1 ? std::floor(exact) : exact;
    QRectF symbol = aligned({module * all, place.height()}, place, object.alignment & Qt::AlignHorizontal_Mask);
    symbol.moveLeft(std::round(symbol.left()));
    symbol.adjust(module * Ean13Bars::leftQuiet, 0, -module * Ean13Bars::rightQuiet, 0);
    const double words = object.digits ? std::min(module * digitsHeight, place.height() / 3) : 0;
    const double deep = object.digits ? std::min(module * guardDepth, words / 2) : 0;
    QList<QRectF> dark;
    for (int i = 0, end = 0; i < Ean13Bars::modules; i = end) {
        end = i + 1;
        if (!bars[size_t(i)])
            continue;
        while (end < Ean13Bars::modules && bars[size_t(end)] && isGuard(end) == isGuard(i))
            ++end;
        const double height = place.height() - words + (isGuard(i) ? deep : 0);
        dark << QRectF(symbol.left() + i * module, symbol.top(), (end - i) * module, height);
    }
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(Qt::black);
    m_painter.drawRects(dark);
    if (object.digits)
        paintDigits(code, symbol, module, words);
}

/// The first digit stands in the left quiet zone, the others under their half of the bars.
void PrintPainter::paintDigits(const QString &code, const QRectF &bars, double module, double height)
{
    QFont font(m_document.layout.font);
    font.setPixelSize(std::max(1, int(height * 1.08)));
    m_painter.setFont(font);
    m_painter.setPen(Qt::black);
    const double baseline = bars.bottom() - height * 0.08;
    const QFontMetricsF metrics(font, m_painter.device());
    const auto write = [&](const QString &digits, double centre) {
        m_painter.drawText(QPointF(bars.left() + centre * module - metrics.horizontalAdvance(digits) / 2, baseline),
                           digits);
    };
    write(code.left(1), -6.5);
    write(code.mid(1, 6), 24.5);
    write(code.mid(7), 70.5);
}

/// A frame with a barred circle, so that nobody takes the digits for a code that a scanner could read.
void PrintPainter::paintWrongCode(const PrintObject &object, const QString &code, const QRectF &place)
{
    const double line = dots(2.5);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(Qt::black, line));
    m_painter.drawRect(place.adjusted(line, line, -line, -line));
    const double size = std::min(place.height() / 2, place.width() / 5);
    const QRectF circle(place.left() + size / 4, place.center().y() - size / 2, size, size);
    m_painter.setPen(QPen(Qt::black, 2 * line));
    m_painter.drawEllipse(circle);
    const double slant = size / 2 * 0.7071;
    m_painter.drawLine(circle.center() + QPointF(-slant, slant), circle.center() + QPointF(slant, -slant));
    PrintObject words = object;
    words.fit = PrintObject::Fit::Shrink;
    words.alignment = Qt::AlignLeft | Qt::AlignVCenter;
    QRectF room = place.adjusted(0, 2 * line, -size / 4, -2 * line);
    room.setLeft(circle.right() + size / 4);
    m_painter.setPen(Qt::black);
    const QString text = code + u"\n≠ EAN-13"_s;
    PrintText(words, text, m_document.layout.font, room.size(), m_painter.device()).draw(m_painter, room.topLeft());
}

QRectF PrintPainter::dots(const QRectF &place) const
{
    return {place.topLeft() * m_scale - m_origin, place.size() * m_scale};
}
