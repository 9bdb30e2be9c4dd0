#pragma once
#include <QList>
#include <QString>

/// The codes in the header and the footer of a printed grid: /fb1 /fb0 bold, /fu1 /fu0 underlined, /fn"Name" font,
/// /fz"12" size in points, /n new line, /c centre what follows, /p page number, /pc page count, // a slash.
namespace PrintCodes {

struct Run {
    QString text;
    QString family;    ///< empty: that of the table
    double points = 0; ///< 0: that of the table
    bool bold = false;
    bool underlined = false;
    bool centred = false;

    bool operator==(const Run &) const = default;
};
/// Never empty: a line without text has one empty run that tells its height.
using Line = QList<Run>;

/// What is no code stands as it is.
QList<Line> parse(const QString &codes, int page, int pageCount);
/// A text of the user's, in which no slash begins a code.
QString escape(QString text);

} // namespace PrintCodes
