#include "platform/CellTable.h"

#include <QStringEncoder>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Collects text row by row: one conversion a row is cheaper than one a cell.
class Utf8Rows {
public:
    QString row;

    void end()
    {
        const qsizetype size = m_bytes.size();
        m_bytes.resize(size + m_encode.requiredSpace(row.size()));
        const char *last = m_encode.appendToBuffer(m_bytes.data() + size, row);
        m_bytes.resize(last - m_bytes.constData());
        row.resize(0);
    }
    QByteArray take() { return std::move(m_bytes); }

private:
    QStringEncoder m_encode{QStringEncoder::Utf8};
    QByteArray m_bytes;
};

bool isControl(QChar c)
{
    return (c < u' ' || c > u'~') && c.category() == QChar::Other_Control;
}

bool breaksLine(QChar c)
{
    return isControl(c) || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// What stands for a character, given the one before it; a character without a substitute stays.
using Substitute = std::optional<QLatin1StringView> (*)(QChar c, QChar previous);

void append(QString &row, QStringView text, Substitute substitute)
{
    QChar previous;
    qsizetype kept = 0; // begin of what goes over in one piece
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (const auto other = substitute(text[i], previous)) {
            row += text.mid(kept, i - kept);
            row += *other;
            kept = i + 1;
        }
        previous = text[i];
    }
    row += text.mid(kept);
}

std::optional<QLatin1StringView> inTabText(QChar c, QChar previous)
{
    if (!breaksLine(c))
        return {};
    return c == u'\n' && previous == u'\r' ? ""_L1 : " "_L1;
}

std::optional<QLatin1StringView> inQuotes(QChar c, QChar previous)
{
    return c == u'"' ? R"("")"_L1 : inTabText(c, previous);
}

std::optional<QLatin1StringView> inHtml(QChar c, QChar previous)
{
    switch (c.unicode()) {
    case u'<':
        return "&lt;"_L1;
    case u'>':
        return "&gt;"_L1;
    case u'&':
        return "&amp;"_L1;
    case u'"':
        return "&quot;"_L1;
    case u'\r':
        return "\n"_L1;
    case u'\n':
        return previous == u'\r' ? std::optional(""_L1) : std::nullopt;
    case u'\t':
        return {};
    default: // no other control character may stand in a page
        return isControl(c) ? std::optional(" "_L1) : std::nullopt;
    }
}

void appendTabCell(QString &row, const QString &text)
{
    if (!text.startsWith(u'"'))
        return append(row, text, inTabText);
    row += u'"';
    append(row, text, inQuotes);
    row += u'"';
}

constexpr auto pageStart = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>"_L1;
constexpr auto pageStyle = "</title>\n<style>\n"
                           "table { border-collapse: collapse; }\n"
                           "th, td { border: 1px solid #999; padding: 2px 6px; text-align: left; white-space: pre-wrap;"
                           " mso-number-format: \"\\@\"; }\n"
                           "td.n { text-align: right; mso-number-format: General; }\n"
                           "</style>\n</head>\n<body>\n<table>\n<thead>\n<tr>"_L1;
constexpr auto pageEnd = "</tbody>\n</table>\n</body>\n</html>\n"_L1;

} // namespace

QByteArray CellTable::toTabText() const
{
    Utf8Rows out;
    out.row += QChar(QChar::ByteOrderMark);
    for (int row = -1; row < rows; ++row) {
        for (int column = 0; column < headings.size(); ++column) {
            if (column > 0)
                out.row += u'\t';
            appendTabCell(out.row, row < 0 ? headings[column] : text(column, row));
        }
        out.row += "\r\n"_L1;
        out.end();
    }
    return out.take();
}

QByteArray CellTable::toHtml(const QString &title) const
{
    Utf8Rows out;
    out.row += pageStart;
    append(out.row, title, inHtml);
    out.row += pageStyle;
    for (const QString &heading : headings) {
        out.row += "<th>"_L1;
        append(out.row, heading, inHtml);
        out.row += "</th>"_L1;
    }
    out.row += "</tr>\n</thead>\n<tbody>\n"_L1;
    for (int row = 0; row < rows; ++row) {
        out.row += "<tr>"_L1;
        for (int column = 0; column < headings.size(); ++column) {
            out.row += numeric.value(column) ? R"(<td class="n">)"_L1 : "<td>"_L1;
            append(out.row, text(column, row), inHtml);
            out.row += "</td>"_L1;
        }
        out.row += "</tr>\n"_L1;
        out.end();
    }
    out.row += pageEnd;
    out.end();
    return out.take();
}
