#include "platform/TextBox.h"

#include <QMimeData>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

qsizetype longestLine(const QString &text)
{
    qsizetype longest = 0;
    qsizetype start = 0;
    for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', start)) {
        longest = std::max(longest, end - start);
        start = end + 1;
    }
    return std::max(longest, text.size() - start);
}

} // namespace

/// Breaking a long line takes time with the square of its length, and shaping it takes seconds; a text of scripts or
/// pictures that someone pasted has such lines.
void TextBox::prepareFor(const QString &text)
{
    constexpr qsizetype longestBroken = 10000;
    const bool isLong = longestLine(text) > longestBroken;
    if (isLong == (lineWrapMode() == QPlainTextEdit::NoWrap))
        return;
    setLineWrapMode(isLong ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    QFont ownFont = font();
    ownFont.setStyleStrategy(isLong ? QFont::PreferNoShaping : QFont::PreferDefault);
    ownFont.setKerning(!isLong);
    setFont(ownFont);
}

void TextBox::showText(const QString &text)
{
    prepareFor(text);
    setPlainText(text);
}

QString TextBox::text() const
{
    QString text = document()->toRawText(); // the plain text would have blanks for no-break spaces
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    text.removeIf([](QChar c) { return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t'; });
    return text.replace(u"\n"_s, u"\r\n"_s);
}

void TextBox::insertFromMimeData(const QMimeData *source)
{
    if (lineWrapMode() != QPlainTextEdit::NoWrap)
        prepareFor(source->text());
    QPlainTextEdit::insertFromMimeData(source);
}
