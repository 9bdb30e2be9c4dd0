#include "platform/Dialect.h"

using namespace Qt::StringLiterals;

namespace {

bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

bool sameWord(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Position behind the literal or quoted name that opens at `start`; a doubled quote stays inside.
qsizetype endOfQuoted(QStringView text, qsizetype start)
{
    const QChar close = text[start] == u'[' ? QChar(u']') : text[start];
    qsizetype i = start + 1;
    while (i < text.size()) {
        if (text[i] == close) {
            if (close != u']' && i + 1 < text.size() && text[i + 1] == close) {
                i += 2;
                continue;
            }
            return i + 1;
        }
        ++i;
    }
    return text.size();
}

/// Position of FROM when a column list "T.*", "[T].*" or "*" stands between DELETE and it, else `start`.
qsizetype behindDeleteColumns(QStringView text, qsizetype start)
{
    qsizetype i = start;
    const auto skipBlanks = [&] {
        while (i < text.size() && text[i].isSpace())
            ++i;
    };
    skipBlanks();
    if (i < text.size() && text[i] == u'[') {
        i = endOfQuoted(text, i);
    } else {
        while (i < text.size() && isWordCharacter(text[i]))
            ++i;
    }
    if (i < text.size() && text[i] == u'.')
        ++i;
    if (i >= text.size() || text[i] != u'*')
        return start;
    ++i;
    skipBlanks();
    return sameWord(text.mid(i, 4), u"FROM") ? i : start;
}

QString word(QStringView token)
{
    if (sameWord(token, u"True"))
        return QStringLiteral("1");
    if (sameWord(token, u"False"))
        return QStringLiteral("0");
    return token.toString();
}

} // namespace

QString Dialect::toSqlite(QStringView statement)
{
    QString out;
    out.reserve(statement.size());
    qsizetype i = 0;
    while (i < statement.size()) {
        const QChar c = statement[i];
        if (c == u'\'' || c == u'"' || c == u'[' || c == u'`') {
            const qsizetype end = endOfQuoted(statement, i);
            out += statement.mid(i, end - i);
            i = end;
        } else if (c == u'#') {
            const qsizetype close = statement.indexOf(u'#', i + 1);
            if (close < 0) {
                out += c;
                ++i;
                continue;
            }
            out += u'\'' + statement.mid(i + 1, close - i - 1).toString().replace(u"'"_s, u"''"_s) + u'\'';
            i = close + 1;
        } else if (isWordCharacter(c)) {
            const qsizetype start = i;
            while (i < statement.size() && isWordCharacter(statement[i]))
                ++i;
            const QStringView token = statement.mid(start, i - start);
            out += word(token);
            if (sameWord(token, u"DELETE")) {
                const qsizetype from = behindDeleteColumns(statement, i);
                if (from != i) {
                    out += u' ';
                    i = from;
                }
            }
        } else {
            out += c;
            ++i;
        }
    }
    while (!out.isEmpty() && (out.back() == u';' || out.back().isSpace()))
        out.chop(1);
    return out;
}
