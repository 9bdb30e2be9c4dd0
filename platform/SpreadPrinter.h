#pragma once
#include "platform/PrintCodes.h"

#include <QFont>
#include <QList>
#include <QRectF>

#include <functional>

class QPagedPaintDevice;
class QPainter;
class Spread;

/// How a grid is to be printed. Header and footer hold the codes of `PrintCodes`.
struct SpreadPrintJob {
    QString header;
    QString footer;
    QString jobName;
    QString abortMessage; ///< beside the button that stops the print
    bool landscape = true;
    int margin = 850; ///< of each side, in twips, twenty to the point
};

/// Prints the visible columns of a grid, as wide as the page at most: header, column headings and footer on each
/// page. What is too long for its cell ends in an ellipsis.
class SpreadPrinter {
public:
    SpreadPrinter(const Spread &grid, SpreadPrintJob job) : m_grid(grid), m_job(std::move(job)) {}

    /// Shows the pages, from where they can be printed or, on a machine without a printer, saved as PDF.
    void print(QWidget *parent) const;
    /// Gives the device the margins and the orientation of the job.
    void setUp(QPagedPaintDevice &device) const;
    /// Paints all pages with the layout that the device has. `goesOn` is told the pages done and their count after
    /// each page; the print ends where it answers no. False when it was ended, or when the device takes nothing.
    bool paint(QPagedPaintDevice &device, const std::function<bool(int page, int pages)> &goesOn = {}) const;

private:
    struct Column {
        int number;   ///< in the grid, from 1
        QRectF place; ///< only left and width
    };
    /// Sizes in dots of the device.
    struct Layout {
        QRectF page;
        QFont font;
        QList<Column> columns;
        double tableWidth = 0;
        double tableTop = 0;
        double footerTop = 0;
        double rowHeight = 0;
        double padding = 0;
        double line = 0;
        int rowsPerPage = 1;
        int pages = 1;
    };

    Layout layOut(QPagedPaintDevice &device) const;
    void placeColumns(Layout &layout, QPagedPaintDevice &device) const;
    void paintPage(QPainter &painter, const Layout &layout, int page) const;
    void paintRow(QPainter &painter, const Layout &layout, int row, double top) const;
    void paintGridLines(QPainter &painter, const Layout &layout, int rows) const;

    const Spread &m_grid;
    SpreadPrintJob m_job;
};
