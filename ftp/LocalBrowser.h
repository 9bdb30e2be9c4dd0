#pragma once
#include "ftp/FtpDesk.h"

/// Local pane of the FTP window, without its widgets.
class LocalBrowser {
public:
    explicit LocalBrowser(FtpDesk &desk) : m_desk(desk) {}

    void DoLocalRefresh(const QString &directory);
    void sortBy(PaneColumn column);
    /// The directory above, or the same at the root.
    static QString parentOf(const QString &path);
    void LocalCdup(const QString &path);
    void NewLocalFolder();
    bool rename(int row, const QString &newName);
    void DeleteLocal(const QString &directory, const std::vector<QueueItem> &queue);
    void ViewLocalFile(int row);

private:
    FtpDesk &m_desk;
};
