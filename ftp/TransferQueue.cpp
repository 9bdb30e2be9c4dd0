#include "ftp/TransferQueue.h"

#include "ftp/TreeTransfer.h"

#include <QDir>
#include <QFileInfo>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

bool isFolder(const QueueItem &item)
{
    return Panes::isFolder(item.Icon);
}

QString pattern(const QString &folder, QChar separator)
{
    const QString all = folder + separator + u'*';
    return folder.contains(u' ') ? u'"' + all + u'"' : all;
}

} // namespace

void TransferQueue::queueSelection(const PaneRows &rows, const QString &directory, const std::vector<int> &selected)
{
    m_items.clear();
    for (const int index : selected) {
        const PaneRow &row = rows[size_t(index)];
        m_items.push_back({row.text, directory, row.icon, row.size, index});
    }
}

void TransferQueue::QueueLocalSelection(const QString &directory, const std::vector<int> &rows)
{
    queueSelection(m_desk.localRows, directory, rows);
}

void TransferQueue::QueueRemoteSelection(const QString &directory, const std::vector<int> &rows)
{
    queueSelection(m_desk.remoteRows, directory, rows);
}

void TransferQueue::UnmarkQueue(bool isLocalPane)
{
    for (const QueueItem &item : m_items)
        m_desk.view.unmark(isLocalPane, item);
}

const PaneRow *TransferQueue::RemoteItem(const QueueItem &item) const
{
    return Panes::find(m_desk.remoteRows, item.Name);
}

void TransferQueue::takeNames(const QString &remoteDir, const QString &localDir, const QueueItem &item)
{
    TransferVariables &transfer = m_desk.transfer;
    transfer.sRemoteDir = Panes::asFolder(remoteDir, true);
    transfer.sLocalDir = Panes::asFolder(localDir, false);
    transfer.sRemoteName = transfer.sLocalName = item.Name;
}

/// With "All" ticked the earlier answer goes on applying, except after a Rename.
bool TransferQueue::mayAsk() const
{
    return m_desk.transfer.nApplyAll != 1 || m_desk.transfer.bRenamed;
}

/// A Cancel for all items stays; else it was for this one.
void TransferQueue::ResetCancel()
{
    if (m_desk.transfer.nApplyAll != 1)
        m_desk.transfer.bCancel = false;
}

void TransferQueue::AddStatusRow(const QString &status, const QString &local, const QString &size,
                                 const QString &remote)
{
    const QString direction = m_desk.transfer.bStoring ? u"-->"_s : u"<--"_s;
    m_desk.view.AddStatusRow({status, local, size, direction, remote, m_desk.settings.RemoteHost});
}

// Both take a copy: events run in between, and the pane's folder may change.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void TransferQueue::StoreQueue(QString targetDirectory)
{
    m_desk.view.EnableDirBoxes(false, false);
    m_desk.bTransferring = true;
    m_desk.transfer.nApplyAll = 0;
    m_desk.transfer.bStoring = true;
    const QString target = Panes::asFolder(targetDirectory, true);
    Result reached;
    if (target != Panes::asFolder(m_desk.Ftp1.CurrentDirectory(), true))
        reached = m_remote.DoRemoteRefresh(targetDirectory);
    if (!reached) {
        const QueueItem item = m_items.empty() ? QueueItem() : m_items.front();
        AddStatusRow(u"Error"_s, Panes::asFolder(item.Path, false) + item.Name, item.Size, target + item.Name);
        m_desk.view.AppendLog(reached.text() + u"\r\n");
    }
    for (const std::vector<QueueItem> items = m_items; const QueueItem &item : items) {
        if (!reached || item.Path.isEmpty())
            continue;
        m_desk.commandsOff();
        m_desk.SetFtpProperties();
        m_desk.transfer.bStoring = true;
        isFolder(item) ? StoreFolderItem(target, item) : StoreFileItem(target, item);
        m_desk.view.unmark(true, item);
    }
    m_desk.bTransferring = false;
    std::ignore = m_remote.DoRemoteRefresh(m_desk.Ftp1.CurrentDirectory());
    m_desk.transfer.bCancel = false;
    m_desk.view.forgetDropTarget();
    cleanUp(true);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
void TransferQueue::RetrieveQueue(QString targetDirectory)
{
    m_desk.view.EnableDirBoxes(false, false);
    m_desk.bTransferring = true;
    m_desk.transfer.nApplyAll = 0;
    for (const std::vector<QueueItem> items = m_items; const QueueItem &item : items) {
        if (item.Path.isEmpty())
            continue;
        m_desk.commandsOff();
        m_desk.SetFtpProperties();
        m_desk.transfer.bStoring = false;
        const Result done =
            isFolder(item) ? RetrieveFolderItem(targetDirectory, item) : RetrieveFileItem(targetDirectory, item);
        m_desk.view.unmark(false, item);
        if (!done) {
            const TransferVariables &transfer = m_desk.transfer;
            AddStatusRow(u"Error"_s, transfer.sLocalDir + item.Name, item.Size, transfer.sRemoteDir + item.Name);
            m_desk.view.AppendLog(done.text() + u"\r\n");
            break;
        }
    }
    m_desk.bTransferring = false;
    m_local.DoLocalRefresh(targetDirectory);
    m_desk.transfer.bCancel = false;
    m_desk.view.forgetDropTarget();
    cleanUp(false);
}

void TransferQueue::cleanUp(bool isLocalPane)
{
    m_desk.showFileInfo({}, {});
    m_desk.commandsBack();
    m_desk.resetBar();
    UnmarkQueue(isLocalPane);
    m_desk.view.EnableDirBoxes(true, true);
}

void TransferQueue::StoreFileItem(const QString &target, const QueueItem &item)
{
    FtpSession &ftp = m_desk.Ftp1;
    TransferVariables &transfer = m_desk.transfer;
    takeNames(target, item.Path, item);
    transfer.nLocalSize = item.Size.toLongLong();
    const PaneRow *existing = RemoteItem(item);
    transfer.nRemoteSize = existing ? existing->size.toLongLong() : 0;
    if (!transfer.bCancel && transfer.nRemoteSize > 0 && mayAsk()) {
        m_desk.view.askConflict();
        if (transfer.bOverwrite)
            transfer.nRemoteSize = 0;
        ftp.StoreMode = transfer.bOverwrite ? FtpSession::Replace : FtpSession::Continue;
    }
    if (!transfer.bCancel) {
        m_desk.setBarMaximum(transfer.nLocalSize);
        m_desk.setBar(transfer.nRemoteSize);
        m_desk.showFileInfo(u"File:"_s + item.Name, item.Size);
        ftp.Type = m_desk.settings.TransferType;
        const QString local = transfer.sLocalDir + transfer.sLocalName;
        const QString remote = transfer.sRemoteDir + transfer.sRemoteName;
        const bool isAhead = !transfer.bOverwrite && transfer.nRemoteSize > transfer.nLocalSize;
        const Result stored = isAhead ? Result(FtpError::ShortTransfer, u"The server's file is longer: "_s + remote)
                                      : ftp.Store(remote, local, transfer.nRemoteSize);
        m_desk.showFileInfo({}, {});
        AddStatusRow(stored ? u"Upload"_s : u"Upload Denied"_s, local, item.Size, remote);
        if (!stored)
            m_desk.view.AppendLog(stored.text() + u"\r\n");
    }
    m_desk.resetBar();
    ResetCancel();
}

void TransferQueue::StoreFolderItem(const QString &target, const QueueItem &item)
{
    FtpSession &ftp = m_desk.Ftp1;
    TransferVariables &transfer = m_desk.transfer;
    takeNames(target, item.Path, item);
    transfer.nRemoteSize = transfer.nLocalSize = 0;
    if (!transfer.bCancel && RemoteItem(item) && mayAsk())
        m_desk.view.askConflict();
    if (!transfer.bCancel) {
        const QString local = transfer.sLocalDir + transfer.sLocalName;
        const QString remote = transfer.sRemoteDir + transfer.sRemoteName;
        m_desk.showFileInfo(u"Folder:"_s + item.Name, {});
        ftp.Type = m_desk.settings.TransferType;
        const Result stored = TreeTransfer::StoreTree(ftp, pattern(local, QDir::separator()), remote);
        m_desk.showFileInfo({}, {});
        AddStatusRow(stored ? u"Upload"_s : u"Upload Denied"_s, local, {}, remote);
        if (!stored)
            m_desk.view.AppendLog(stored.text() + u"\r\n");
    }
    ResetCancel();
}

Result TransferQueue::takeRemoteNames(const QString &target, const QueueItem &item)
{
    takeNames(item.Path, target, item);
    return TreeTransfer::isPlainName(item.Name)
               ? Result()
               : Result(FtpError::BadName, u"A name that can't be kept here: "_s + item.Name);
}

Result TransferQueue::RetrieveFileItem(const QString &target, const QueueItem &item)
{
    FtpSession &ftp = m_desk.Ftp1;
    TransferVariables &transfer = m_desk.transfer;
    if (Result named = takeRemoteNames(target, item); !named)
        return named;
    const QString local = transfer.sLocalDir + transfer.sLocalName;
    transfer.nRemoteSize = item.Size.toLongLong();
    transfer.nLocalSize = QFileInfo(local).size();
    if (!transfer.bCancel && transfer.nLocalSize > 0 && mayAsk()) {
        m_desk.view.askConflict();
        // A file that was moved out of the way is not there to go on with.
        transfer.nLocalSize = QFileInfo(local).size();
    }
    if (transfer.bOverwrite)
        transfer.nLocalSize = 0;
    Result retrieved;
    if (!transfer.bCancel) {
        m_desk.setBarMaximum(transfer.nRemoteSize);
        m_desk.setBar(transfer.nLocalSize);
        m_desk.showFileInfo(u"File:"_s + item.Name, item.Size);
        ftp.Type = m_desk.settings.TransferType;
        const QString remote = transfer.sRemoteDir + transfer.sRemoteName;
        retrieved = ftp.Retrieve(remote, local, transfer.nLocalSize);
        m_desk.showFileInfo({}, {});
        if (retrieved)
            AddStatusRow(u"Download"_s, local, item.Size, remote);
    }
    m_desk.resetBar();
    ResetCancel();
    return retrieved;
}

Result TransferQueue::RetrieveFolderItem(const QString &target, const QueueItem &item)
{
    FtpSession &ftp = m_desk.Ftp1;
    TransferVariables &transfer = m_desk.transfer;
    if (Result named = takeRemoteNames(target, item); !named)
        return named;
    const QString local = transfer.sLocalDir + transfer.sLocalName;
    if (!transfer.bCancel && QFileInfo(local).isDir() && mayAsk())
        m_desk.view.askConflict();
    Result retrieved;
    if (!transfer.bCancel) {
        const QString remote = transfer.sRemoteDir + transfer.sRemoteName;
        m_desk.setBarMaximum(item.Size.toLongLong());
        m_desk.resetBar();
        m_desk.showFileInfo(u"Folder:"_s + item.Name, {});
        ftp.Type = m_desk.settings.TransferType;
        retrieved = TreeTransfer::RetrieveTree(ftp, pattern(remote, u'/'), local);
        m_desk.showFileInfo({}, {});
        if (retrieved)
            AddStatusRow(u"Download"_s, local, {}, remote);
    }
    ResetCancel();
    return retrieved;
}
