#include "ftp/LocalBrowser.h"
#include "platform/WholeFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr auto hiddenToo = QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

PaneRow rowOf(const QFileInfo &file, const QString &icon, const QString &directory)
{
    return {file.fileName(),
            icon,
            QString::number(file.size()),
            file.lastModified().toString(u"yyyy-MM-dd HH:mm:ss"_s),
            {},
            directory + file.fileName()};
}

Result removedFile(const QFileInfo &file)
{
    QFile doomed(file.filePath());
    if (!file.isSymLink())
        doomed.setPermissions(doomed.permissions() | QFile::WriteOwner);
    return doomed.remove() ? Result() : Result(FtpError::LocalFile, doomed.errorString() + u": " + file.filePath());
}

/// The first failure of all; what can go goes.
Result removed(FtpDesk &desk, const QFileInfo &file)
{
    desk.view.breathe();
    if (desk.isStopped)
        return {FtpError::Aborted, u"Stopped: "_s + file.filePath()};
    // A link goes, not what it leads to.
    if (!file.isDir() || file.isSymLink())
        return removedFile(file);
    Result first;
    const QDir folder(file.filePath());
    for (const QFileInfo &entry : folder.entryInfoList(QDir::AllEntries | hiddenToo))
        if (Result inside = removed(desk, entry); !inside && first)
            first = inside;
    if (first && !QDir().rmdir(file.filePath()))
        first = {FtpError::LocalFile, u"Can't be deleted: "_s + file.filePath()};
    return first;
}

} // namespace

void LocalBrowser::DoLocalRefresh(const QString &directory)
{
    const Result shown = showFolder(directory);
    m_desk.view.showLocalDir(m_desk.localDir);
    if (!shown)
        m_desk.view.inform(shown.text());
}

/// A folder may bear a name that the rule for typed paths would cut.
Result LocalBrowser::showFolder(const QString &directory)
{
    if (QDir::isRelativePath(directory))
        return {FtpError::LocalFile, u"This folder can't be read: "_s + directory};
    const bool isThere = !directory.isEmpty() && QDir(directory).exists();
    m_desk.localDir = isThere ? directory : Panes::NormalizePath(directory, false);
    const QString path = Panes::asFolder(m_desk.localDir, false);
    const QDir folder(path);
    PaneRows folders;
    PaneRows files;
    for (const QFileInfo &entry : folder.entryInfoList(QDir::Dirs | hiddenToo, QDir::Name))
        folders.push_back(rowOf(entry, u"FolderClose"_s, path));
    for (const QFileInfo &entry : folder.entryInfoList(QDir::Files | hiddenToo, QDir::Name))
        if (!WholeFile::isTemporaryName(entry.fileName()))
            files.push_back(rowOf(entry, Panes::fileIcon(entry.fileName()), path));
    m_desk.localRows = Panes::sortedFolders(std::move(folders), std::move(files));
    m_desk.view.showLocal(m_desk.localRows);
    return folder.exists() && folder.isReadable()
               ? Result()
               : Result(FtpError::LocalFile, u"This folder can't be read: "_s + path);
}

void LocalBrowser::sortBy(PaneColumn column)
{
    m_desk.localRows = Panes::sorted(std::move(m_desk.localRows), column);
    m_desk.view.showLocal(m_desk.localRows);
}

QString LocalBrowser::parentOf(const QString &path)
{
    const qsizetype cut = path.chopped(path.isEmpty() ? 0 : 1).lastIndexOf(QDir::separator());
    return cut < 0 ? path : path.first(cut + 1);
}

void LocalBrowser::LocalCdup()
{
    DoLocalRefresh(parentOf(Panes::asFolder(m_desk.localDir, false)));
}

void LocalBrowser::NewLocalFolder()
{
    const QString name = Panes::uniqueName(m_desk.localRows, u"New Folder"_s);
    const QString directory = Panes::asFolder(m_desk.localDir, false);
    if (!QDir(directory).mkdir(name))
        return;
    m_desk.localRows.push_back({name, u"FolderClose"_s, {}, {}, {}, directory + name});
    m_desk.view.showLocal(m_desk.localRows);
    m_desk.view.editLocalName(int(m_desk.localRows.size()) - 1);
}

bool LocalBrowser::rename(int row, const QString &newName)
{
    if (!Panes::at(m_desk.localRows, row))
        return false;
    PaneRow &renamed = m_desk.localRows[size_t(row)];
    const QString directory = Panes::asFolder(m_desk.localDir, false);
    if (newName.isEmpty() || newName.contains(QDir::separator())
        || !QFile::rename(directory + renamed.text, directory + newName))
        return false;
    renamed.tag = directory + newName;
    renamed.text = newName;
    return true;
}

// A copy: events run in between, and a drag begun meanwhile fills the queue anew.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void LocalBrowser::DeleteLocal(std::vector<QueueItem> queue)
{
    if (queue.empty())
        return;
    FtpView &view = m_desk.view;
    const QString count = QString::number(queue.size());
    if (!view.confirm(u"Are you sure you want to delete "_s + count + u" Files or Folder?", u"Confirm Delete"_s)) {
        for (const QueueItem &item : queue)
            view.unmark(true, item);
        return;
    }
    m_desk.commandsOff();
    view.EnableDirBoxes(false, false);
    m_desk.isStopped = false;
    view.enableAbort(true);
    for (const QueueItem &item : queue) {
        const QString path = Panes::asFolder(item.Path, false) + item.Name;
        const bool isFolder = Panes::isFolder(item.Icon);
        m_desk.showFileInfo((isFolder ? u"Folder:"_s : u"File:"_s) + item.Name, isFolder ? QString() : item.Size);
        const Result deleted = removed(m_desk, QFileInfo(path));
        m_desk.showFileInfo({}, {});
        if (deleted) {
            std::erase_if(m_desk.localRows, [&item](const PaneRow &row) { return row.text == item.Name; });
        } else {
            view.AppendLog(deleted.text() + u"\r\n");
            view.unmark(true, item);
        }
        view.AddStatusRow(
            {deleted ? u"Delete"_s : u"Delete Denied"_s, path, item.Size, {}, {}, m_desk.settings.RemoteHost});
        if (deleted.number() == FtpError::Aborted)
            break;
    }
    view.enableAbort(false);
    view.showLocal(m_desk.localRows);
    view.EnableDirBoxes(true, true);
    m_desk.commandsBack();
}

void LocalBrowser::ViewLocalFile(int row)
{
    if (const PaneRow *file = Panes::at(m_desk.localRows, row))
        m_desk.view.openFile(file->tag);
}
