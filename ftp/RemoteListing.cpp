#include "ftp/RemoteListing.h"

#include <QRegularExpression>
#include <QStringList>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestLine = 4096;

/// The nine letters of a UNIX mode as the number that chmod takes.
int modeOf(QStringView letters)
{
    int mode = 0;
    for (int i = 0; i < 9; ++i) {
        const QChar letter = letters[i];
        // A capital marks set-user-id, set-group-id or sticky without the right to execute.
        const bool isSet = letter != u'-' && letter != u'S' && letter != u'T' && letter != u'l' && letter != u'L';
        mode = mode * 2 + int(isSet);
    }
    for (int i = 2; i < 9; i += 3) {
        if (letters[i].toLower() == u's' || letters[i].toLower() == u't')
            mode |= 0x800 >> (i / 3);
    }
    return mode;
}

/// Blanks are taken at once and never given back, or a line of nothing else takes as long as its square.
/// Owner and group may hold blanks or be missing; what counts is the date behind the size. One blank parts the date
/// from the name, so that a name may start with more.
std::optional<RemoteListing::Entry> unixEntry(const QString &line)
{
    static const QRegularExpression form(
        u"^([a-zA-Z-])([rwxsStTlL-]{9})[+.@]?\\s*+\\d++\\s++(?:.*?\\s)?(?:\\d+,\\s*+)?(\\d++)\\s++"
        "((?:\\p{L}{3,4}\\.?\\s++\\d{1,2}|\\d{1,2}\\.?\\s++\\p{L}{3,4}\\.?)\\s++(?:\\d{1,2}:\\d{2}|\\d{4})"
        "|\\d{4}-\\d{2}-\\d{2}\\s+\\d{2}:\\d{2}(?::\\d{2})?) (.+)$"_s);
    const QRegularExpressionMatch match = form.match(line);
    if (!match.hasMatch())
        return {};
    RemoteListing::Entry entry;
    const QChar type = match.capturedView(1)[0];
    entry.Type = type == u'd' ? u"d"_s : type == u'l' ? u"L"_s : u"-"_s;
    entry.Permission = modeOf(match.capturedView(2));
    entry.Size = match.capturedView(3).toLongLong();
    entry.Date = match.captured(4);
    entry.Name = match.captured(5);
    if (const qsizetype arrow = entry.Name.indexOf(u" -> "_s); type == u'l' && arrow > 0)
        entry.Name.truncate(arrow);
    return entry;
}

std::optional<RemoteListing::Entry> dosEntry(const QString &line)
{
    static const QRegularExpression form(
        u"^((?:\\d{2}[-/.]\\d{2}[-/.]\\d{2,4}|\\d{4}[-/.]\\d{2}[-/.]\\d{2})\\s+\\d{1,2}:\\d{2}(?:\\s?[AaPp][Mm])?)\\s+"
        "(?:(<DIR>|<JUNCTION>|<SYMLINKD?>)\\s+|([\\d.,]+) )(.+)$"_s);
    const QRegularExpressionMatch match = form.match(line);
    if (!match.hasMatch())
        return {};
    RemoteListing::Entry entry;
    entry.Date = match.captured(1);
    entry.Name = match.captured(4);
    const QString mark = match.captured(2);
    entry.Type = mark == u"<DIR>"_s ? u"d"_s : mark.isEmpty() ? u"-"_s : u"L"_s;
    if (mark.isEmpty())
        entry.Size = match.captured(3).remove(u'.').remove(u',').toLongLong();
    return entry;
}

} // namespace

RemoteListing::Listing RemoteListing::parse(const QString &text)
{
    static const QRegularExpression total(u"^total \\d+\\s*$"_s, QRegularExpression::CaseInsensitiveOption);
    Listing listing;
    listing.Text = text;
    for (QString line : text.split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.trimmed().isEmpty() || total.match(line).hasMatch())
            continue;
        std::optional<Entry> entry;
        if (line.size() <= longestLine)
            entry = line[0].isDigit() ? dosEntry(line) : unixEntry(line);
        if (entry)
            listing.entries.push_back(std::move(*entry));
        else
            listing.Status = Listing::Unknown;
    }
    return listing;
}
