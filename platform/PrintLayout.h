#pragma once
#include "platform/Result.h"

#include <QList>
#include <QMap>
#include <QMarginsF>
#include <QRectF>
#include <QString>

class QJsonObject;

/// Values for the fields of a layout, by name.
using PrintFields = QMap<QString, QString>;

/// One thing on a page. Lengths are tenths of a millimetre, colours 0xRRGGBB.
struct PrintObject {
    enum class Kind { Text, Picture, Box, Line, Ean13 };
    /// What becomes of a text that is too long for its place: lines as far as the place has room, letters that
    /// shrink first, or one line. What is still too long ends in an ellipsis.
    enum class Fit { Wrap, Shrink, Cut };

    Kind kind = Kind::Text;
    QRectF place;           ///< of a line its two ends, top left and bottom right
    QString text;           ///< with `$(Field)`; of a picture the file
    bool isLiteral = false; ///< a text in which `$(` begins no field
    QString when;           ///< a regular expression: printed where it matches the text, empty for always
    Fit fit = Fit::Wrap;
    double points = 9;
    double smallest = 5; ///< points that shrinking goes down to
    bool bold = false;
    bool html = false; ///< the text may hold markup, of which only the words are shown
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
    unsigned colour = 0;
    double pen = 2; ///< width of lines and frames; 0 for no frame
    bool isFilled = false;
    unsigned fill = 0xffffff;
    bool digits = true; ///< under the bars
};

/// The same objects again and again over a sheet, row by row; their places start at the corner of their cell.
struct PrintCells {
    QRectF first;
    double gapX = 0;
    double gapY = 0;
    int columns = 1;
    int rows = 1;
    QList<PrintObject> objects;

    int count() const { return columns * rows; }
    QPointF corner(int cell) const;
};

/// A page as a `.tpl` file describes it (docs/architecture/layouts.md). A layout made by itself is an empty A4 page.
struct PrintLayout {
    QString title;
    QString folder; ///< that relative pictures are found in
    QString font = QStringLiteral("Arial");
    QSizeF page = {2100, 2970};
    QMarginsF margins;  ///< where nothing may stand
    PrintFields fields; ///< with the values that they have when nobody gives one
    QList<PrintObject> objects;
    PrintCells cells; ///< without objects: none

    /// Reads a file. A failure names the file and the place in it, and leaves `layout` as it was.
    static Result read(const QString &path, PrintLayout &layout);

    enum Failure { NoFile = 1, NoJson, BadEntry, OffPage };
};

/// What is printed: a layout, the values of its fields, and what the program draws beside it.
struct PrintDocument {
    PrintLayout layout;
    PrintFields fields;
    QList<PrintFields> cells;        ///< one for each cell; empty: one sheet whose cells all show `fields`
    QList<QList<PrintObject>> drawn; ///< by page
    QString name;                    ///< of the print job

    int pages() const;
    /// The text with its fields filled in: the value of the cell, else of the document, else of the layout.
    QString filled(const QString &text, const PrintFields &cell = {}) const;
};
