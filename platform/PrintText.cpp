#include "platform/PrintText.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace {

constexpr double step = 0.5;             // points
constexpr qsizetype mostLetters = 20000; // more than a page of the smallest type holds

/// The words of a text with markup: points before list items, the cells of a row in one line.
QString wordsOf(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    QString words;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString line = block.text().trimmed();
        const QTextTable *table = QTextCursor(block).currentTable();
        const bool goesOn = table && table->cellAt(block.position()).column() > 0;
        if (line.isEmpty())
            continue;
        if (!words.isEmpty())
            words += goesOn ? u" – "_s : u"\n"_s;
        words += block.textList() ? u"• "_s + line : line;
    }
    return words;
}

QString printable(const PrintObject &object, QString text)
{
    text.truncate(10 * mostLetters); // with its markup
    if (object.html && Qt::mightBeRichText(text))
        text = wordsOf(text);
    text.truncate(mostLetters);
    text.replace(u"\r\n"_s, u"\n"_s);
    for (QChar &letter : text) {
        const bool isBreak = letter == u'\n' || letter == u'\r';
        if (isBreak && object.fit != PrintObject::Fit::Cut)
            letter = QChar::LineSeparator;
        else if (letter < u' ')
            letter = u' ';
    }
    return text;
}

} // namespace

PrintText::PrintText(const PrintObject &object, const QString &text, const QString &family, const QSizeF &size,
                     QPaintDevice *device)
    : m_size(size), m_device(device), m_alignment(object.alignment)
{
    QFont font(family);
    font.setBold(object.bold);
    font.setPointSizeF(object.points);
    const QString words = printable(object, text);
    m_layout.setCacheEnabled(true);
    if (object.fit == PrintObject::Fit::Cut) {
        m_layout.setText(QFontMetricsF(font, device).elidedText(words, Qt::ElideRight, size.width()));
        breakLines(font, QTextOption::ManualWrap);
    } else {
        m_layout.setText(words);
        const double smallest = object.fit == PrintObject::Fit::Shrink ? object.smallest : object.points;
        bool fits = breakLines(font, QTextOption::WordWrap);
        for (double points = object.points - step; !fits && points > smallest - step; points -= step) {
            font.setPointSizeF(std::max(points, smallest));
            fits = breakLines(font, QTextOption::WordWrap);
        }
        if (!fits && !breakLines(font, QTextOption::WrapAtWordBoundaryOrAnywhere))
            cutLastLine();
    }
    if (m_alignment & Qt::AlignBottom)
        m_offset.setY(std::max(0.0, size.height() - m_height));
    else if (m_alignment & Qt::AlignVCenter)
        m_offset.setY(std::max(0.0, (size.height() - m_height) / 2));
}

bool PrintText::breakLines(const QFont &font, QTextOption::WrapMode mode)
{
    const QString text = m_layout.text();
    m_layout.setFont(QFont(font, m_device));
    m_layout.setText(text); // so that the letters are measured anew
    QTextOption option(m_alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(mode);
    m_layout.setTextOption(option);
    m_layout.beginLayout();
    m_height = 0;
    bool fits = true;
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(m_size.width());
        if (m_layout.lineCount() > 1 && m_height + line.height() > m_size.height()) {
            line.setPosition({0, 2 * m_size.height()});
            fits = false;
            break;
        }
        line.setPosition({0, m_height});
        m_height += line.height();
        fits = fits && line.naturalTextWidth() <= m_size.width() + 1;
    }
    m_layout.endLayout();
    return fits && m_height <= m_size.height() + 1;
}

/// The last line that has room ends in an ellipsis for all that follows. What makes up the lines before stays.
void PrintText::cutLastLine()
{
    int last = m_layout.lineCount() - 1;
    while (last > 0 && m_layout.lineAt(last).y() + m_layout.lineAt(last).height() > m_size.height() + 1)
        --last;
    const int start = m_layout.lineAt(last).textStart();
    QString rest = m_layout.text().mid(start);
    rest.replace(QChar::LineSeparator, u' ');
    const QFont font = m_layout.font();
    const QString cut = QFontMetricsF(font, m_device).elidedText(rest, Qt::ElideRight, m_size.width());
    m_layout.setText(m_layout.text().left(start) + cut);
    breakLines(font, QTextOption::WrapAtWordBoundaryOrAnywhere);
}
