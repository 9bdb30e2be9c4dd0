#include "ftp/PaneRow.h"

#include <QDir>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString &cell(const PaneRow &row, PaneColumn column)
{
    switch (column) {
    case PaneColumn::Size:
        return row.size;
    case PaneColumn::Date:
        return row.date;
    case PaneColumn::Permission:
        return row.permission;
    case PaneColumn::Name:
        break;
    }
    return row.text;
}

void sortAsText(PaneRows &rows, PaneColumn column, bool ascending)
{
    std::ranges::stable_sort(rows, [column, ascending](const PaneRow &a, const PaneRow &b) {
        const int order = QString::compare(cell(a, column), cell(b, column), Qt::CaseInsensitive);
        return ascending ? order < 0 : order > 0;
    });
}

} // namespace

bool Panes::isFolder(const QString &icon)
{
    return icon == u"FolderClose"_s || icon == u"FolderLink"_s || icon == u"Link"_s;
}

PaneRow Panes::upRow()
{
    return {{}, u"Cdup"_s, {}, {}, {}, {}};
}

QString Panes::NormalizePath(QString path, bool isRemote)
{
    const qsizetype first = path.indexOf(u'[');
    const qsizetype last = path.indexOf(u']');
    if (first >= 0 && last > first)
        path.remove(first, last - first + 1);
    return asFolder(path.trimmed(), isRemote);
}

QString Panes::asFolder(const QString &path, bool isRemote)
{
    const QChar separator = isRemote ? QChar(u'/') : QDir::separator();
    return path.endsWith(separator) ? path : path + separator;
}

bool Panes::isPlainFolder(const QString &name, bool isRemote)
{
    return NormalizePath(name, isRemote) == asFolder(name, isRemote);
}

QString Panes::fileIcon(const QString &name)
{
    static const QHash<QString, QString> icons = [] {
        const std::pair<QString, QString> kinds[] = {{u"TextFile"_s, u"TXT"_s},
                                                     {u"ZipFile"_s, u"ZIP ARJ TGZ TAR LZH LZA"_s},
                                                     {u"ExeFile"_s, u"EXE COM BAT"_s},
                                                     {u"ImageFile"_s, u"JPG BMP IMG GIF"_s},
                                                     {u"HelpFile"_s, u"HLP"_s}};
        QHash<QString, QString> table;
        for (const auto &[icon, extensions] : kinds) {
            for (const QString &extension : extensions.split(u' '))
                table.insert(u'.' + extension, icon);
        }
        return table;
    }();
    return icons.value(name.right(4).toUpper(), u"File"_s);
}

PaneRows Panes::sortedFolders(PaneRows folders, PaneRows others)
{
    sortAsText(folders, PaneColumn::Name, true);
    folders.insert(folders.begin(), upRow());
    std::ranges::move(others, std::back_inserter(folders));
    return folders;
}

PaneRows Panes::SortFoldersFirst(const PaneRows &rows)
{
    PaneRows grouped{upRow()};
    grouped.reserve(rows.size() + 1);
    for (const bool folders : {true, false}) {
        for (const PaneRow &row : rows) {
            if (row.icon != u"Cdup"_s && (row.icon == u"FolderClose"_s) == folders)
                grouped.push_back(row);
        }
    }
    return grouped;
}

PaneRows Panes::sorted(PaneRows rows, PaneColumn column)
{
    if (rows.size() <= 1)
        return rows;
    sortAsText(rows, column, column == PaneColumn::Name || column == PaneColumn::Permission);
    return SortFoldersFirst(rows);
}

const PaneRow *Panes::at(const PaneRows &rows, int position)
{
    return position >= 0 && position < int(rows.size()) ? &rows[size_t(position)] : nullptr;
}

const PaneRow *Panes::find(const PaneRows &rows, const QString &text)
{
    const auto found = std::ranges::find(rows, text, &PaneRow::text);
    return found == rows.end() ? nullptr : &*found;
}

QString Panes::uniqueName(const PaneRows &rows, const QString &name)
{
    QString unique = name;
    for (int number = 0; find(rows, unique); ++number)
        unique = name + QString::number(number);
    return unique;
}

QString Panes::FormatBytes(qint64 bytes)
{
    if (bytes < 1)
        return {};
    if (bytes <= 1000)
        return QString::number(bytes) + u" B"_s;
    if (bytes <= 1048576)
        return QString::number(double(bytes) / 1024, 'f', 1) + u" KB"_s;
    return QString::number(double(bytes) / 1048576, 'f', 1) + u" MB"_s;
}
