#include "ftp/Conflict.h"
#include "tests/ftp/RulesDesk.h"
#include "tests/support/Suite.h"

#include <QTcpServer>
#include <QTimer>

using namespace Qt::StringLiterals;

/// What nobody chose to replace or delete stays, also when something fails or is aborted.
class FtpLossTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void failedRenameTransfersNothing()
    {
        const RealServer server(RealServer::Kind::Proftpd);
        Files::write(server.root() + u"/a", "server's a");
        RulesDesk desk(server.port());
        Files::write(desk.path(u"local/a"_s), "local a");
        Files::write(desk.path(u"local/b"_s), "local b");
        TransferVariables &transfer = desk.desk.transfer;
        desk.view.decide = [&] {
            Conflict::opened(transfer);
            Conflict::applyToAll(transfer, true);
            transfer.bOverwrite = true; // as an earlier item left it
            Conflict::rename(transfer);
            QVERIFY(Conflict::renameTarget(desk.desk, desk.remote, u"no/such/folder"_s));
        };
        desk.store({u"a"_s, u"b"_s});
        QCOMPARE(Files::read(server.root() + u"/a"), QByteArray("server's a"));
        QCOMPARE(desk.statusRows(), u"Upload -->b"_s);
        desk.retrieve({u"a"_s});
        QCOMPARE(Files::read(desk.path(u"local/a"_s)), QByteArray("local a"));
        QVERIFY(desk.statusRows().isEmpty());
        QVERIFY(desk.view.log.endsWith(u": no/such/folder\r\n"_s));
    }

    void deletionKeepsOtherFolders()
    {
        const RealServer server(RealServer::Kind::Proftpd);
        for (const QString &name : {u"a"_s, u"a[1]"_s, u"old"_s, u"old "_s})
            Files::write(server.root() + u'/' + name + u"/keep", name.toUtf8());
        QFile::link(server.root() + u"/a", server.root() + u"/link");
        const auto files = Files::tree(server.root());
        RulesDesk desk(server.port());
        desk.queueRemote({u"a[1]"_s, u"old "_s});
        desk.remote.DeleteRemote(desk.home(), desk.queue.items());
        QCOMPARE(desk.statusRows(), u"Delete Denied a[1]|Delete Denied old "_s);
        QCOMPARE(Files::tree(server.root()), files);
        // A link to a folder goes, opened or not, and the folder keeps what it holds.
        desk.remote.ProbeRemoteLink(RulesDesk::row(desk.desk.remoteRows, u"link"_s));
        desk.queueRemote({u"link"_s});
        QCOMPARE(desk.queue.items().front().Icon, u"FolderLink"_s);
        desk.remote.DeleteRemote(desk.home(), desk.queue.items());
        QCOMPARE(desk.statusRows(), u"Delete link"_s);
        QVERIFY(!QFileInfo(server.root() + u"/link").isSymLink());
        QCOMPARE(Files::read(server.root() + u"/a/keep"), QByteArray("a"));
        // Entered, such a folder is shown and read under its own name.
        desk.remote.ChangeRemoteDir(u"a[1]"_s);
        QVERIFY(desk.desk.remoteDir.endsWith(u"/a[1]"_s));
        desk.retrieve({u"keep"_s});
        QCOMPARE(Files::read(desk.path(u"local/keep"_s)), QByteArray("a[1]"));
        // A name that is taken is no new name.
        desk.remote.ChangeRemoteDir(u".."_s);
        QVERIFY(!desk.remote.rename(RulesDesk::row(desk.desk.remoteRows, u"old"_s), u"a"_s));
    }

    void aborted()
    {
        const RealServer server(RealServer::Kind::Proftpd);
        for (int i = 0; i < 30; ++i)
            Files::write(server.root() + u"/tree/" + QString::number(i), "x");
        Files::write(server.root() + u"/top", "x");
        RulesDesk desk(server.port());
        bool couldAbort = false;
        const auto told = desk.client.onProgress;
        desk.client.onProgress = [&, left = 12](const FtpProgress &event) mutable {
            told(event);
            if (--left == 0) {
                couldAbort = desk.view.canAbort;
                desk.client.Abort();
            }
        };
        desk.queueRemote({u"tree"_s, u"top"_s});
        desk.remote.DeleteRemote(desk.home(), desk.queue.items());
        QVERIFY(couldAbort && QFile::exists(server.root() + u"/top"));
        QCOMPARE(desk.statusRows(), u"Delete Denied tree"_s);
        desk.remote.logout();

        QTcpServer mute;
        mute.listen(QHostAddress::LocalHost);
        desk.desk.settings.RemotePort = mute.serverPort();
        couldAbort = false;
        QTimer::singleShot(200, &mute, [&] {
            couldAbort = desk.view.canAbort;
            desk.client.Abort();
        });
        desk.remote.login();
        QVERIFY(couldAbort && !desk.view.canAbort);
        QCOMPARE(desk.view.boxes.last(), u"The operation was aborted."_s);
    }
};

ZELVANTOR_SUITE(FtpLossTest)
#include "LossTest.moc"
