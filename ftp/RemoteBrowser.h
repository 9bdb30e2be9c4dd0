#pragma once
#include "ftp/FtpDesk.h"
#include "ftp/RemoteListing.h"

/// Session and remote pane of the FTP window, without its widgets. Nothing here tests `Busy`: the window refuses
/// commands while it is true.
class RemoteBrowser {
public:
    explicit RemoteBrowser(FtpDesk &desk) : m_desk(desk) {}

    void login();
    void logout();

    /// The public refresh; nothing without a session.
    Result DoRemoteRefresh(const QString &directory);
    Result FillRemoteList(const QString &directory);
    void RestoreDefaultSort();
    void sortBy(PaneColumn column);

    Result RemoteCdup();
    void ChangeRemoteDir(const QString &directory);
    /// Turns a link that can be entered into "FolderLink".
    void ProbeRemoteLink(int row);
    void NewRemoteFolder();
    /// The end of a label edit. False cancels the edit.
    bool rename(int row, const QString &newName);
    void ViewRemoteFile(int row);
    /// Deletes what is queued from the remote pane.
    void DeleteRemote(QString directory, std::vector<QueueItem> queue);

private:
    Result DeleteRemoteTree(const QString &start, const QString &path);
    void takeDirectory();
    void showRows(const RemoteListing::Listing &listing);
    void ShowListFailure(const QString &text);

    FtpDesk &m_desk;
};
