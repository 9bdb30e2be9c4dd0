#pragma once
#include "ftp/LocalBrowser.h"
#include "ftp/RemoteBrowser.h"

/// The queue of one selection and its workers.
class TransferQueue {
public:
    TransferQueue(FtpDesk &desk, RemoteBrowser &remote, LocalBrowser &local)
        : m_desk(desk), m_remote(remote), m_local(local)
    {
    }

    /// Take the rows (positions in the pane, in row order) in the place of what was queued; the window marks them.
    void QueueLocalSelection(const QString &directory, const std::vector<int> &rows);
    void QueueRemoteSelection(const QString &directory, const std::vector<int> &rows);
    const std::vector<QueueItem> &items() const { return m_items; }
    void UnmarkQueue(bool isLocalPane);

    // The names are copies: what they come from changes while the window shows other folders.
    void StoreQueue(QString targetDirectory);
    void RetrieveQueue(QString targetDirectory);

private:
    void queueSelection(const PaneRows &rows, const QString &directory, const std::vector<int> &selected);
    void StoreFileItem(const QString &target, const QueueItem &item);
    void StoreFolderItem(const QString &target, const QueueItem &item);
    Result RetrieveFileItem(const QString &target, const QueueItem &item);
    Result RetrieveFolderItem(const QString &target, const QueueItem &item);
    const PaneRow *RemoteItem(const QueueItem &item) const;
    void takeNames(const QString &remoteDir, const QString &localDir, const QueueItem &item);
    /// For a way down: refuses a name that would lead out of the target.
    Result takeRemoteNames(const QString &target, const QueueItem &item);
    bool mayAsk() const;
    void ResetCancel();
    void AddStatusRow(const QString &status, const QString &local, const QString &size, const QString &remote);
    void cleanUp(bool isLocalPane);

    FtpDesk &m_desk;
    RemoteBrowser &m_remote;
    LocalBrowser &m_local;
    std::vector<QueueItem> m_items;
};
