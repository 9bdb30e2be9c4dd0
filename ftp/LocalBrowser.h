#pragma once
#include "ftp/FtpDesk.h"

/// Local pane of the FTP window, without its widgets.
class LocalBrowser {
public:
    explicit LocalBrowser(FtpDesk &desk) : m_desk(desk) {}

    /// The pane, its box and `localDir` show the folder. One that can't be read is told, and the pane is empty.
    void DoLocalRefresh(const QString &directory);
    /// As `DoLocalRefresh`, for a text that is being typed: the box keeps it, and nothing is told.
    Result showFolder(const QString &directory);
    void sortBy(PaneColumn column);
    /// The directory above, or the same at the root.
    static QString parentOf(const QString &path);
    void LocalCdup();
    void NewLocalFolder();
    bool rename(int row, const QString &newName);
    void DeleteLocal(std::vector<QueueItem> queue);
    void ViewLocalFile(int row);

private:
    FtpDesk &m_desk;
};
