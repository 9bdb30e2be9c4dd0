#pragma once
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// A table to be written out, whatever holds its cells. Rows and columns count from 0 here.
struct CellTable {
    QStringList headings;
    QList<bool> numeric; ///< by column; what is missing is text
    int rows = 0;
    std::function<QString(int column, int row)> text;

    /// Tab-separated text, the headings as first row: UTF-8 with a byte order mark, without which spreadsheet
    /// programs take it for the code page of the machine, and CR LF behind each row. Line breaks, tabs and control
    /// characters of a cell become one blank each, CR LF together one. A cell that begins with a quote is put in
    /// quotes with its own doubled: spreadsheet programs would take all up to the next quote for one cell.
    QByteArray toTabText() const;
    /// A whole HTML page in UTF-8 with the table in it. The cells carry the number format of text, so that a
    /// spreadsheet program leaves the zeros of "00042" alone, except in numeric columns.
    QByteArray toHtml(const QString &title) const;
};
