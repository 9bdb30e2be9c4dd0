#pragma once
#include "ftp/TransferQueue.h"
#include "platform/FtpClient.h"
#include "tests/ftp/RealServer.h"
#include "tests/ftp/RecordingView.h"

#include <QDir>

/// The window's rules without the window, logged in to a server.
struct RulesDesk {
    explicit RulesDesk(int port, const QString &user = QStringLiteral("shop"))
    {
        desk.settings.RemoteHost = QStringLiteral("127.0.0.1");
        desk.settings.UserName = user;
        desk.settings.Password = RealServer::password;
        desk.settings.RemotePort = port;
        desk.settings.Timeout = 5;
        desk.sViewFile = path(QStringLiteral("sFile"));
        desk.listen();
        remote.login();
        QDir(folder.path()).mkdir(QStringLiteral("local"));
        local.DoLocalRefresh(path(QStringLiteral("local")));
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    QString home() const { return client.CurrentDirectory(); }
    static int row(const PaneRows &rows, const QString &name)
    {
        const PaneRow *found = Panes::find(rows, name);
        return found ? int(found - rows.data()) : -1;
    }
    void queueRemote(const QStringList &names)
    {
        std::vector<int> rows;
        for (const QString &name : names)
            rows.push_back(row(desk.remoteRows, name));
        queue.QueueRemoteSelection(home(), rows);
    }
    void store(const QStringList &names)
    {
        local.DoLocalRefresh(desk.localDir);
        std::vector<int> rows;
        for (const QString &name : names)
            rows.push_back(row(desk.localRows, name));
        queue.QueueLocalSelection(desk.localDir, rows);
        queue.StoreQueue(home());
    }
    void retrieve(const QStringList &names)
    {
        queueRemote(names);
        queue.RetrieveQueue(desk.localDir);
    }
    /// The status rows since the last call, without the path of the remote folder.
    QString statusRows()
    {
        const QString text = std::exchange(view.status, {}).join(u'|');
        return QString(text).remove(Panes::NormalizePath(home(), true));
    }

    QTemporaryDir folder;
    FtpClient client;
    RecordingView view;
    FtpDesk desk{client, view};
    RemoteBrowser remote{desk};
    LocalBrowser local{desk};
    TransferQueue queue{desk, remote, local};
};
