#pragma once
#include "ftp/FtpDesk.h"

/// Keeps what the window would show, and answers for the merchant.
class RecordingView : public FtpView {
public:
    void EnableCommands(bool login, bool logout, bool, bool, bool) override
    {
        canLogin = login;
        canLogout = logout;
    }
    void EnableDirBoxes(bool, bool) override {}
    void enableAbort(bool enabled) override { canAbort = enabled; }
    void setCaption(const QString &text) override { caption = text; }
    void clearLog() override { log.clear(); }
    void AppendLog(const QString &text) override { log += text; }
    void showLocal(const PaneRows &) override {}
    void showRemote(const PaneRows &) override {}
    void showLocalDir(const QString &) override {}
    void showRemoteDir(const QString &) override {}
    void forgetRemoteDir(const QString &) override {}
    void editLocalName(int row) override { edited = row; }
    void editRemoteName(int row) override { edited = row; }
    void unmark(bool, const QueueItem &) override {}
    void forgetDropTarget() override {}
    void showFileInfo(const QString &, const QString &) override {}
    void showProgress(qint64, qint64, const QString &) override {}
    void AddStatusRow(const StatusRow &row) override { status << row.Status + u' ' + row.Direction + row.Remote; }
    void warn(const QString &text) override { boxes << text; }
    void inform(const QString &text) override { boxes << text; }
    bool confirm(const QString &text, const QString &) override
    {
        boxes << text;
        return true;
    }
    void askConflict() override
    {
        ++conflicts;
        decide();
    }
    bool openFile(const QString &file) override
    {
        opened << file;
        return true;
    }

    bool canLogin = false;
    bool canLogout = false;
    bool canAbort = false;
    QString caption;
    QString log;
    QStringList status;
    QStringList boxes;
    QStringList opened;
    int edited = -1;
    int conflicts = 0;
    std::function<void()> decide;
};
