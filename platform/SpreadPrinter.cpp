#include "platform/SpreadPrinter.h"

#include "platform/Spread.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsPerPoint = 20;
constexpr double fullPoints = 9;
constexpr double smallestPoints = 6.5; // below that nobody reads on paper
constexpr int patience = 1500;         // milliseconds without a word about the progress

const QColor lineColour(0xb0, 0xb0, 0xb0);
const QColor headingColour(0xe6, 0xe6, 0xe6);

QFont fontOf(const PrintCodes::Run &run, const QFont &table)
{
    QFont font = table;
    if (!run.family.isEmpty())
        font.setFamily(run.family);
    font.setPointSizeF(run.points > 0 ? run.points : fullPoints);
    font.setBold(run.bold);
    font.setUnderline(run.underlined);
    return font;
}

double heightOf(const PrintCodes::Line &line, const QFont &table, const QPaintDevice &device)
{
    double height = 0;
    for (const PrintCodes::Run &run : line)
        height = std::max(height, QFontMetricsF(fontOf(run, table), &device).lineSpacing());
    return height;
}

double heightOf(const QList<PrintCodes::Line> &lines, const QFont &table, const QPaintDevice &device)
{
    double height = 0;
    for (const PrintCodes::Line &line : lines)
        height += heightOf(line, table, device);
    return height;
}

/// The centred part stands in the middle of the page, unless what is left of it reaches so far.
void paintLine(QPainter &painter, const PrintCodes::Line &line, const QFont &table, const QRectF &place)
{
    const auto widthOf = [&](const PrintCodes::Run &run) {
        return QFontMetricsF(fontOf(run, table), painter.device()).horizontalAdvance(run.text);
    };
    double centredWidth = 0;
    for (const PrintCodes::Run &run : line)
        centredWidth += run.centred ? widthOf(run) : 0;
    double x = place.left();
    bool centred = false;
    for (const PrintCodes::Run &run : line) {
        if (run.centred && !centred)
            x = std::max(x, place.left() + (place.width() - centredWidth) / 2);
        centred = run.centred;
        painter.setFont(fontOf(run, table));
        const double width = widthOf(run);
        painter.drawText(QRectF(x, place.top(), width, place.height()),
                         Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine | Qt::TextDontClip, run.text);
        x += width;
    }
}

void paintLines(QPainter &painter, const QList<PrintCodes::Line> &lines, const QFont &table, QRectF place)
{
    for (const PrintCodes::Line &line : lines) {
        place.setHeight(heightOf(line, table, *painter.device()));
        paintLine(painter, line, table, place);
        place.moveTop(place.bottom());
    }
}

} // namespace

void SpreadPrinter::print(QWidget *parent) const
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_job.jobName);
    setUp(printer);
    QPrintPreviewDialog preview(&printer, parent);
    preview.setObjectName(u"SpreadPreview"_s);
    preview.setWindowTitle(m_job.jobName);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [this, &preview](QPrinter *target) {
        QProgressDialog progress(&preview);
        progress.setLabelText(m_job.abortMessage);
        progress.setWindowTitle(m_job.jobName);
        progress.setWindowModality(Qt::WindowModal);
        progress.setMinimumDuration(patience);
        (void)paint(*target, [&progress, target](int page, int pages) {
            progress.setMaximum(pages);
            progress.setValue(page);
            // The preview keeps the pages that it has; a printer must not get half a job.
            if (progress.wasCanceled() && target->paintEngine()->type() != QPaintEngine::Picture)
                target->abort();
            return !progress.wasCanceled();
        });
    });
    preview.exec();
}

void SpreadPrinter::setUp(QPagedPaintDevice &device) const
{
    const double margin = m_job.margin / twipsPerPoint;
    device.setPageOrientation(m_job.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    device.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
}

bool SpreadPrinter::paint(QPagedPaintDevice &device, const std::function<bool(int, int)> &goesOn) const
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const Layout layout = layOut(device);
    for (int page = 1; page <= layout.pages; ++page) {
        if (page > 1 && !device.newPage())
            return false;
        paintPage(painter, layout, page);
        if (goesOn && !goesOn(page, layout.pages))
            return false;
    }
    return painter.end();
}

SpreadPrinter::Layout SpreadPrinter::layOut(QPagedPaintDevice &device) const
{
    Layout layout;
    const double dotsPerPoint = device.logicalDpiX() / 72.0;
    layout.page = QRectF(QPointF(0, 0), QSizeF(device.width(), device.height()));
    layout.font = QFont(m_grid.font().family());
    layout.padding = 3 * dotsPerPoint;
    layout.line = 0.4 * dotsPerPoint;
    placeColumns(layout, device);
    layout.rowHeight = QFontMetricsF(layout.font, &device).lineSpacing() + layout.padding;
    layout.tableTop = heightOf(PrintCodes::parse(m_job.header, 1, 1), layout.font, device);
    layout.footerTop = layout.page.height() - heightOf(PrintCodes::parse(m_job.footer, 1, 1), layout.font, device);
    const double room = layout.footerTop - layout.padding - layout.tableTop;
    layout.rowsPerPage = std::max(1, int(room / layout.rowHeight) - 1); // one of them holds the headings
    layout.pages = std::max(1, (m_grid.MaxRows() + layout.rowsPerPage - 1) / layout.rowsPerPage);
    return layout;
}

/// Columns that are too wide together all shrink alike, and the letters with them as far as they stay readable.
void SpreadPrinter::placeColumns(Layout &layout, QPagedPaintDevice &device) const
{
    const double scale = double(device.logicalDpiX()) / m_grid.logicalDpiX();
    double natural = 0;
    for (const int column : m_grid.visibleColumns())
        natural += m_grid.columnWidth(column - 1) * scale;
    const double shrink = natural > layout.page.width() ? layout.page.width() / natural : 1;
    for (const int column : m_grid.visibleColumns()) {
        const double width = m_grid.columnWidth(column - 1) * scale * shrink;
        layout.columns << Column{column, QRectF(layout.tableWidth, 0, width, 0)};
        layout.tableWidth += width;
    }
    layout.font.setPointSizeF(std::clamp(fullPoints * shrink, smallestPoints, fullPoints));
}

void SpreadPrinter::paintPage(QPainter &painter, const Layout &layout, int page) const
{
    painter.setPen(Qt::black);
    paintLines(painter, PrintCodes::parse(m_job.header, page, layout.pages), layout.font, layout.page);
    QRectF footer = layout.page;
    footer.setTop(layout.footerTop);
    paintLines(painter, PrintCodes::parse(m_job.footer, page, layout.pages), layout.font, footer);

    QFont bold = layout.font;
    bold.setBold(true);
    painter.setFont(bold);
    paintRow(painter, layout, 0, layout.tableTop);
    painter.setFont(layout.font);
    const int first = (page - 1) * layout.rowsPerPage + 1;
    const int rows = std::min(layout.rowsPerPage, m_grid.MaxRows() - first + 1);
    for (int i = 0; i < rows; ++i)
        paintRow(painter, layout, first + i, layout.tableTop + (i + 1) * layout.rowHeight);
    paintGridLines(painter, layout, rows + 1);
}

void SpreadPrinter::paintRow(QPainter &painter, const Layout &layout, int row, double top) const
{
    const SpreadModel &cells = m_grid.cells();
    const bool band = row > 0 && row % 2 == 0 && cells.bandBackground().isValid();
    if (band || row == 0)
        painter.fillRect(QRectF(0, top, layout.tableWidth, layout.rowHeight),
                         band ? cells.bandBackground() : headingColour);
    painter.setPen(band ? cells.bandForeground() : QColor(Qt::black));
    const QFontMetricsF metrics(painter.font(), painter.device());
    for (const Column &column : layout.columns) {
        QRectF place(column.place.left() + layout.padding, top, column.place.width() - 2 * layout.padding,
                     layout.rowHeight);
        const QString text = m_grid.text(column.number, row);
        if (text.isEmpty() || place.width() <= 0)
            continue;
        const Qt::Alignment side =
            cells.columnType(column.number) == SpreadModel::CellType::Number ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(place, int(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                         metrics.elidedText(text, Qt::ElideRight, place.width()));
    }
}

void SpreadPrinter::paintGridLines(QPainter &painter, const Layout &layout, int rows) const
{
    const double bottom = layout.tableTop + rows * layout.rowHeight;
    painter.setPen(QPen(lineColour, layout.line));
    for (int row = 0; row <= rows; ++row) {
        const double y = layout.tableTop + row * layout.rowHeight;
        painter.drawLine(QPointF(0, y), QPointF(layout.tableWidth, y));
    }
    painter.drawLine(QPointF(0, layout.tableTop), QPointF(0, bottom));
    for (const Column &column : layout.columns)
        painter.drawLine(QPointF(column.place.right(), layout.tableTop), QPointF(column.place.right(), bottom));
}
