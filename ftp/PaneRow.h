#pragma once
#include <QString>

#include <vector>

/// A row of a file pane. The icon alone says what the row is.
struct PaneRow {
    QString text; ///< the name; empty for the up row
    QString icon;
    QString size;
    QString date;
    QString permission; ///< remote pane only
    QString tag;        ///< full path; empty for the up row
};

using PaneRows = std::vector<PaneRow>;

enum class PaneColumn { Name, Size, Date, Permission };

namespace Panes {

bool isFolder(const QString &icon); ///< folder, opened link or link: what is worked as a tree
PaneRow upRow();
/// A path that a person typed or chose: cuts a volume label, trims and adds the separator of the side.
QString NormalizePath(QString path, bool isRemote);
/// A path as it is, with the separator of the side behind it.
QString asFolder(const QString &path, bool isRemote);
/// Whether the name of a folder would stay the same in a typed path. A tree that would not is never deleted: some
/// servers trim names too, and the files of another folder would go.
bool isPlainFolder(const QString &name, bool isRemote);
/// The icon of a file by the last four characters of its name.
QString fileIcon(const QString &name);
/// The rows of a listing below a directory: the up row, the folders by name, then links and files as they came.
PaneRows sortedFolders(PaneRows folders, PaneRows others);
/// Regroups: up row, folders, everything else, each in the order that it has.
PaneRows SortFoldersFirst(const PaneRows &rows);
/// Sorts as text by the column (names and permissions ascending, sizes and dates descending), then regroups.
/// A pane of one row stays.
PaneRows sorted(PaneRows rows, PaneColumn column);
/// `name`, or with 0, 1, 2... behind it the first that no row bears.
QString uniqueName(const PaneRows &rows, const QString &name);
/// The row at that position, or nullptr.
const PaneRow *at(const PaneRows &rows, int position);
const PaneRow *find(const PaneRows &rows, const QString &text);
/// "", "1000 B", "1.0 KB", "3.2 MB".
QString FormatBytes(qint64 bytes);

} // namespace Panes
