#include "ftp/RemoteBrowser.h"

#include <QFile>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 64;
constexpr int mostSuffixes = 1000; ///< a server can say for ever that a folder exists

PaneRow rowOf(const RemoteListing::Entry &entry, const QString &directory)
{
    QString icon = u"Link"_s;
    if (entry.Type == u"d"_s)
        icon = u"FolderClose"_s;
    else if (entry.Type.toUpper() != u"L"_s)
        icon = Panes::fileIcon(entry.Name);
    return {entry.Name,
            icon,
            QString::number(entry.Size),
            entry.Date,
            QString::number(entry.Permission),
            directory + entry.Name};
}

PaneRows rowsOf(const RemoteListing::Listing &listing, const QString &directory)
{
    PaneRows folders;
    PaneRows others;
    for (const RemoteListing::Entry &entry : listing.entries) {
        if (entry.Name != u"."_s && entry.Name != u".."_s)
            (entry.Type == u"d"_s ? folders : others).push_back(rowOf(entry, directory));
    }
    return Panes::sortedFolders(std::move(folders), std::move(others));
}

} // namespace

void RemoteBrowser::login()
{
    FtpSession &ftp = m_desk.Ftp1;
    m_desk.view.clearLog();
    m_desk.bLost = false;
    m_desk.remoteRows.clear();
    m_desk.view.showRemote({});
    m_desk.commandsOff();
    m_desk.view.AppendLog(u"Connecting ...\r\n"_s);
    m_desk.SetFtpProperties();
    FtpSettings &settings = m_desk.settings;
    ftp.Tls = settings.Tls;
    m_desk.isAbortable = true;
    m_desk.view.enableAbort(true);
    const Result in = ftp.Login(settings.RemoteHost, settings.UserName, settings.Password, {}, settings.RemotePort);
    m_desk.isAbortable = false;
    m_desk.view.enableAbort(false);
    if (!in) {
        m_desk.ShowFtpError(in);
        return;
    }
    const Result asked = ftp.RestartSupported(m_desk.bRestartSupported);
    if (ftp.State() != FtpSession::Connected) {
        m_desk.ShowFtpError(asked);
        return;
    }
    if (!asked)
        settings.RemoteDir = ftp.CurrentDirectory();
    if (const Result shown = DoRemoteRefresh(ftp.CurrentDirectory()); !shown) {
        m_desk.ShowFtpError(shown);
        return;
    }
    m_desk.commandsBack();
    RestoreDefaultSort();
}

void RemoteBrowser::logout()
{
    if (m_desk.Ftp1.State() == FtpSession::Connected) {
        m_desk.view.AppendLog(u"Logging out ...\r\n"_s);
        m_desk.SetFtpProperties();
        m_desk.ShowFtpError(m_desk.Ftp1.Logout());
    }
    m_desk.remoteDir.clear();
    m_desk.view.showRemoteDir({});
    m_desk.EnableCommands(true, false, true, true, true);
}

Result RemoteBrowser::DoRemoteRefresh(const QString &directory)
{
    if (m_desk.Ftp1.State() != FtpSession::Connected)
        return {};
    m_desk.commandsOff();
    m_desk.SetFtpProperties();
    Result filled = FillRemoteList(directory);
    m_desk.commandsBack();
    return filled;
}

Result RemoteBrowser::FillRemoteList(const QString &directory)
{
    FtpSession &ftp = m_desk.Ftp1;
    const QString wanted = Panes::asFolder(directory, true);
    if (wanted != Panes::asFolder(ftp.CurrentDirectory(), true)) {
        if (Result changed = ftp.setCurrentDirectory(wanted); !changed)
            return changed;
    }
    takeDirectory();
    ftp.Type = FtpSession::Ascii;
    QString text;
    if (Result listed = ftp.List(text); !listed) {
        showRows({});
        return listed;
    }
    RemoteListing::Listing listing = RemoteListing::parse(text);
    if (listing.Status == RemoteListing::Listing::Unknown) {
        listing.entries.clear();
        ShowListFailure(listing.Text);
    }
    showRows(listing);
    return {};
}

/// The pane, its box and the directory to return to are always those of the session.
void RemoteBrowser::takeDirectory()
{
    m_desk.remoteDir = m_desk.sHomeDir = m_desk.Ftp1.CurrentDirectory();
    m_desk.view.showRemoteDir(m_desk.remoteDir);
}

void RemoteBrowser::showRows(const RemoteListing::Listing &listing)
{
    if (m_desk.Ftp1.State() != FtpSession::Connected)
        return;
    m_desk.remoteRows = rowsOf(listing, Panes::asFolder(m_desk.remoteDir, true));
    m_desk.view.showRemote(m_desk.remoteRows);
}

void RemoteBrowser::ShowListFailure(const QString &text)
{
    constexpr qsizetype shownLines = 20;
    constexpr qsizetype shownLetters = 200;
    QStringList lines = text.split(u"\r\n"_s).first(qMin(shownLines, text.count(u"\r\n"_s) + 1));
    for (QString &line : lines)
        line.truncate(shownLetters);
    m_desk.view.inform(u"Some non-UNIX or non-DOS listing were encountered. \r\n\r\n"
                       "This sample only supports UNIX and DOS listings. \r\n\r\n"
                       "Here are some of the lines that failed: \r\n\r\n"_s
                       + lines.join(u"\r\n"_s));
}

void RemoteBrowser::RestoreDefaultSort()
{
    sortBy(PaneColumn::Name);
}

void RemoteBrowser::sortBy(PaneColumn column)
{
    if (m_desk.Ftp1.State() != FtpSession::Connected || m_desk.Ftp1.Busy())
        return;
    m_desk.remoteRows = Panes::sorted(std::move(m_desk.remoteRows), column);
    m_desk.view.showRemote(m_desk.remoteRows);
}

Result RemoteBrowser::RemoteCdup()
{
    FtpSession &ftp = m_desk.Ftp1;
    if (Result up = ftp.Cdup(); !up)
        return up;
    return FillRemoteList(ftp.CurrentDirectory());
}

void RemoteBrowser::ChangeRemoteDir(const QString &directory)
{
    m_desk.EnableCommands(false, false, false, false, true);
    m_desk.SetFtpProperties();
    // What fails here stands in the log; the pane stays where it is.
    if (m_desk.Ftp1.setCurrentDirectory(directory))
        std::ignore = DoRemoteRefresh(m_desk.Ftp1.CurrentDirectory());
    m_desk.commandsBack();
}

void RemoteBrowser::ProbeRemoteLink(int row)
{
    const PaneRow *link = Panes::at(m_desk.remoteRows, row);
    if (!link)
        return;
    m_desk.EnableCommands(false, false, false, false, true);
    m_desk.SetFtpProperties();
    if (m_desk.Ftp1.setCurrentDirectory(link->text)) {
        if (!m_desk.Ftp1.setCurrentDirectory(m_desk.sHomeDir)) {
            std::ignore = DoRemoteRefresh(m_desk.Ftp1.CurrentDirectory());
        } else {
            m_desk.remoteRows[size_t(row)].icon = u"FolderLink"_s;
            m_desk.view.showRemote(m_desk.remoteRows);
        }
    }
    m_desk.commandsBack();
}

void RemoteBrowser::NewRemoteFolder()
{
    const QString name = Panes::uniqueName(m_desk.remoteRows, u"New Folder"_s);
    m_desk.commandsOff();
    m_desk.SetFtpProperties();
    QString made = name;
    for (int suffix = 1; suffix <= mostSuffixes; ++suffix) {
        const Result done = m_desk.Ftp1.MakeDirectory(made);
        if (done) {
            const QString directory = Panes::asFolder(m_desk.remoteDir, true);
            m_desk.remoteRows.push_back({made, u"FolderClose"_s, {}, {}, {}, directory + made});
            m_desk.view.showRemote(m_desk.remoteRows);
            m_desk.view.editRemoteName(int(m_desk.remoteRows.size()) - 1);
            break;
        }
        const bool isRefused = done.number() >= 400 && done.number() < 600;
        if (!isRefused || !done.text().toUpper().contains(u"EXISTS"_s))
            break;
        made = name + u'(' + QString::number(suffix) + u')';
    }
    m_desk.commandsBack();
}

bool RemoteBrowser::rename(int row, const QString &newName)
{
    // Many servers would put the file in the place of the one that bears the name.
    if (!Panes::at(m_desk.remoteRows, row) || newName.isEmpty() || Panes::find(m_desk.remoteRows, newName))
        return false;
    const QString oldName = m_desk.remoteRows[size_t(row)].text;
    if (!m_desk.Ftp1.Rename(oldName, newName) || !Panes::at(m_desk.remoteRows, row))
        return false;
    PaneRow &renamed = m_desk.remoteRows[size_t(row)];
    const QString directory = Panes::asFolder(m_desk.remoteDir, true);
    m_desk.view.forgetRemoteDir(directory + oldName);
    renamed.tag = directory + newName;
    renamed.text = newName;
    return true;
}

void RemoteBrowser::ViewRemoteFile(int row)
{
    if (!Panes::at(m_desk.remoteRows, row))
        return;
    const PaneRow file = m_desk.remoteRows[size_t(row)];
    m_desk.setBarMaximum(file.size.toLongLong());
    m_desk.transfer.nLocalSize = 0;
    m_desk.resetBar();
    m_desk.commandsOff();
    m_desk.SetFtpProperties();
    m_desk.Ftp1.Type = m_desk.settings.TransferType;
    // The name is the same each time; what stands there may be a link that another user left.
    QFile::remove(m_desk.sViewFile);
    std::ignore = QFile(m_desk.sViewFile).open(QFile::WriteOnly | QFile::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
    if (m_desk.Ftp1.Retrieve(file.tag, m_desk.sViewFile))
        m_desk.view.openFile(m_desk.sViewFile);
    m_desk.resetBar();
    m_desk.commandsBack();
}

// Copies: events run in between, and may change what the caller holds.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void RemoteBrowser::DeleteRemote(QString directory, std::vector<QueueItem> queue)
{
    if (queue.empty())
        return;
    FtpView &view = m_desk.view;
    const QString count = QString::number(queue.size());
    if (!view.confirm(u"Are you sure you want to delete "_s + count + u" Files or Folders?", u"Confirm Delete"_s)) {
        for (const QueueItem &item : queue)
            view.unmark(false, item);
        return;
    }
    m_desk.SetFtpProperties();
    m_desk.isAbortable = true;
    view.EnableDirBoxes(false, false);
    for (const QueueItem &item : queue) {
        m_desk.commandsOff();
        view.enableAbort(true);
        const QString path = Panes::asFolder(directory, true) + item.Name;
        const bool isFolder = item.Icon == u"FolderClose"_s; // a link goes, not what it leads to
        m_desk.showFileInfo((isFolder ? u"Folder:"_s : u"File:"_s) + item.Name, isFolder ? QString() : item.Size);
        const Result deleted = isFolder ? DeleteRemoteTree(directory, path) : m_desk.Ftp1.Delete(path);
        if (isFolder)
            view.forgetRemoteDir(path);
        m_desk.showFileInfo({}, {});
        if (!deleted) {
            view.AppendLog(deleted.text() + u"\r\n");
            view.unmark(false, item);
        }
        view.AddStatusRow(
            {deleted ? u"Delete"_s : u"Delete Denied"_s, {}, item.Size, {}, path, m_desk.settings.RemoteHost});
        std::ignore = DoRemoteRefresh(directory);
        if (deleted.number() == FtpError::Aborted)
            break;
    }
    m_desk.isAbortable = false;
    view.EnableDirBoxes(true, true);
    m_desk.commandsBack();
}

/// Links are passed over, so that a folder that holds one stays; what is deleted is what the folder itself holds.
Result RemoteBrowser::DeleteRemoteTree(const QString &start, const QString &path)
{
    FtpSession &ftp = m_desk.Ftp1;
    if (!Panes::isPlainFolder(path.section(u'/', -1), true))
        return {FtpError::BadName, u"This folder's name can't be kept: "_s + path};
    struct Folder {
        QString path;
        int depth;
    };
    std::vector<Folder> open{{path, 0}};
    std::vector<QString> emptied;
    const auto isOver = [&ftp](const Result &result) {
        return ftp.State() != FtpSession::Connected || result.number() == FtpError::Aborted;
    };
    while (!open.empty()) {
        const Folder folder = std::move(open.back());
        open.pop_back();
        emptied.push_back(folder.path);
        QString text;
        Result listed = ftp.setCurrentDirectory(folder.path);
        if (listed)
            listed = ftp.List(text);
        if (isOver(listed))
            return listed;
        if (!listed)
            continue;
        for (const RemoteListing::Entry &entry : RemoteListing::parse(text).entries) {
            if (entry.Type == u"L"_s || entry.Name.contains(u'/') || entry.Name == u"."_s || entry.Name == u".."_s)
                continue;
            const QString inside = Panes::asFolder(folder.path, true) + entry.Name;
            if (entry.Type == u"d"_s && !Panes::isPlainFolder(entry.Name, true))
                m_desk.view.AppendLog(u"This folder's name can't be kept: "_s + inside + u"\r\n"_s);
            else if (entry.Type == u"d"_s && folder.depth < deepest)
                open.push_back({inside, folder.depth + 1});
            else if (Result deleted = ftp.Delete(inside); isOver(deleted))
                return deleted;
        }
    }
    if (Result back = ftp.setCurrentDirectory(start); !back)
        return back;
    Result removed;
    // Each folder stands behind the one that holds it; the last answer is that of the tree.
    std::reverse(emptied.begin(), emptied.end());
    for (const QString &folder : emptied) {
        removed = ftp.RemoveDirectory(folder);
        if (isOver(removed))
            return removed;
    }
    return removed;
}
