#include "ftp/Conflict.h"
#include "platform/SettingsStore.h"
#include "tests/ftp/RulesDesk.h"
#include "tests/ftp/ScriptedServer.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class TransferQueueTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void uploadConflicts_data()
    {
        QTest::addColumn<int>("asked");
        QTest::addColumn<QByteArray>("content"); // of two files that were "12", to be replaced by "abcd"
        QTest::addColumn<QString>("rows");
        const QString all = u"Upload -->a|Upload -->b|Upload -->c"_s;
        QTest::newRow("overwrite") << 2 << QByteArray("abcd") << all;
        QTest::newRow("all overwrite") << 1 << QByteArray("abcd") << all;
        QTest::newRow("resume") << 2 << QByteArray("12cd") << all;
        QTest::newRow("cancel") << 2 << QByteArray("12") << u"Upload -->c"_s;
        QTest::newRow("closed by its frame") << 2 << QByteArray("12") << u"Upload -->c"_s;
        QTest::newRow("all cancel") << 1 << QByteArray("12") << u""_s;
        // The old target goes out of the way; what follows goes on at the old size.
        QTest::newRow("rename") << 2 << QByteArray("cd") << all;
    }

    void uploadConflicts()
    {
        const QByteArray choice = QTest::currentDataTag();
        const RealServer server(RealServer::Kind::Proftpd);
        Files::write(server.root() + u"/a", "12");
        Files::write(server.root() + u"/b", "12");
        RulesDesk desk(server.port());
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            Files::write(desk.path(u"local/"_s + name), "abcd");
        desk.view.decide = [&] {
            Conflict::opened(desk.desk.transfer);
            QVERIFY(Conflict::message(desk.desk.transfer).endsWith(u"(4)"_s) && desk.desk.transfer.bStoring);
            QVERIFY(Conflict::canResume(desk.desk.transfer, false));
            if (choice.startsWith("all"))
                Conflict::applyToAll(desk.desk.transfer, true);
            if (choice.endsWith("overwrite"))
                Conflict::overwrite(desk.desk.transfer);
            else if (choice == "resume")
                Conflict::resume(desk.desk.transfer);
            else if (choice.endsWith("cancel"))
                Conflict::cancel(desk.desk.transfer);
            else if (choice == "rename") {
                Conflict::rename(desk.desk.transfer);
                Conflict::renameTarget(desk.desk, desk.remote, u"old "_s + Conflict::nameOfTarget(desk.desk.transfer));
            }
        };
        desk.store({u"a"_s, u"b"_s, u"c"_s});
        QTEST(desk.view.conflicts, "asked");
        QTEST(Files::read(server.root() + u"/a"), "content");
        QTEST(Files::read(server.root() + u"/b"), "content");
        QTEST(desk.statusRows(), "rows");
        QVERIFY(!desk.desk.transfer.bCancel && desk.view.canLogout && !desk.view.canLogin);
    }

    void downloadConflicts()
    {
        const RealServer server(RealServer::Kind::Proftpd);
        for (const char *name : {"/a", "/b", "/gone", "/z"})
            Files::write(server.root() + QLatin1String(name), "abcd");
        RulesDesk desk(server.port());
        QVERIFY(desk.desk.bRestartSupported);
        const auto local = [&](const QString &name) { return desk.path(u"local/"_s + name); };
        TransferVariables &transfer = desk.desk.transfer;
        Files::write(local(u"a"_s), "12");
        desk.view.decide = [&] {
            Conflict::opened(transfer);
            QVERIFY(Conflict::canResume(transfer, true) && !Conflict::canResume(transfer, false));
            Conflict::resume(transfer);
        };
        desk.retrieve({u"a"_s});
        QCOMPARE(Files::read(local(u"a"_s)), QByteArray("12cd"));
        // A target moved out of the way: the whole file comes, and the old one is kept.
        desk.view.decide = [&] {
            Conflict::opened(transfer);
            QVERIFY(!Conflict::canResume(transfer, true));
            Conflict::rename(transfer);
            QVERIFY(!Conflict::renameTarget(desk.desk, desk.remote, u"a"_s));
            QVERIFY(Conflict::renameTarget(desk.desk, desk.remote, u"a.old"_s));
        };
        desk.retrieve({u"a"_s});
        QCOMPARE(Files::read(local(u"a"_s)) + Files::read(local(u"a.old"_s)), QByteArray("abcd12cd"));
        QCOMPARE(desk.statusRows(), u"Download <--a|Download <--a"_s);
        // An error drops the rest of the queue.
        QFile::remove(server.root() + u"/gone");
        desk.retrieve({u"b"_s, u"gone"_s, u"z"_s});
        QCOMPARE(desk.statusRows(), u"Download <--b|Error <--gone"_s);
        QVERIFY(!QFile::exists(local(u"gone"_s)) && !QFile::exists(local(u"z"_s)));
        // A folder of the merchant's bears the name.
        QDir(desk.path(u"local"_s)).mkpath(u"z/x"_s);
        desk.view.decide = [&] {
            Conflict::opened(transfer);
            Conflict::overwrite(transfer);
        };
        desk.retrieve({u"z"_s});
        QCOMPARE(desk.statusRows(), u"Error <--z"_s);
        QVERIFY(QFileInfo(local(u"z/x"_s)).isDir() && desk.view.canLogout);
    }

    void folders()
    {
        const RealServer server(RealServer::Kind::Proftpd);
        RulesDesk desk(server.port());
        const QString shop = desk.path(u"local/my shop"_s);
        Files::write(shop + u"/img/deep/a.jpg", "picture");
        Files::write(shop + u"/index.htm", "page");
        QFile::link(shop, shop + u"/img/up");
        desk.store({u"my shop"_s});
        QCOMPARE(desk.statusRows(), u"Upload -->my shop"_s);
        const auto files = Files::tree(server.root());
        QCOMPARE(files.keys(), (QStringList{u"my shop/img/deep/a.jpg"_s, u"my shop/index.htm"_s}));

        QFile::link(server.root(), server.root() + u"/my shop/loop");
        desk.view.decide = [&] { Conflict::opened(desk.desk.transfer); };
        desk.retrieve({u"my shop"_s});
        QVERIFY(desk.statusRows().isEmpty() && desk.view.conflicts == 1);
        desk.local.DeleteLocal({{u"my shop"_s, desk.desk.localDir, u"FolderClose"_s, {}, 1}});
        QVERIFY(!QFile::exists(shop) && desk.statusRows().startsWith(u"Delete "_s));
        desk.retrieve({u"my shop"_s});
        QCOMPARE(desk.statusRows(), u"Download <--my shop"_s);
        QCOMPARE(Files::tree(desk.desk.localDir), files);

        // A link is nothing that a deletion follows; the folder that holds one stays.
        const auto remove = [&desk](const QString &name) {
            desk.queueRemote({name});
            desk.remote.DeleteRemote(desk.home(), desk.queue.items());
            return desk.statusRows();
        };
        QCOMPARE(remove(u"my shop"_s), u"Delete Denied my shop"_s);
        QVERIFY(QFile::remove(server.root() + u"/my shop/loop"));
        QCOMPARE(remove(u"my shop"_s), u"Delete my shop"_s);
        QVERIFY(QDir(server.root()).isEmpty());
        QVERIFY(desk.view.boxes.contains(u"Are you sure you want to delete 1 Files or Folders?"_s));
    }

    void browsing()
    {
        const RealServer server(RealServer::Kind::Proftpd);
        Files::write(server.root() + u"/real/page.htm", "page");
        QFile::link(server.root() + u"/real", server.root() + u"/now");
        RulesDesk desk(server.port());
        const QString home = desk.home();
        QCOMPARE(desk.view.caption, u"ZELVANTORFTP (Connected to: 127.0.0.1)"_s);
        QVERIFY(desk.view.log.startsWith(u"Connecting ...\r\n"_s) && !desk.view.log.contains(RealServer::password));
        const int link = RulesDesk::row(desk.desk.remoteRows, u"now"_s);
        desk.remote.ProbeRemoteLink(link);
        QCOMPARE(desk.desk.remoteRows[size_t(link)].icon, u"FolderLink"_s);
        QCOMPARE(desk.home(), home);
        desk.remote.ChangeRemoteDir(desk.desk.remoteRows[size_t(link)].tag);
        desk.remote.ViewRemoteFile(RulesDesk::row(desk.desk.remoteRows, u"page.htm"_s));
        QCOMPARE(desk.view.opened, QStringList(desk.desk.sViewFile));
        QCOMPARE(Files::read(desk.desk.sViewFile), QByteArray("page"));
        desk.remote.ChangeRemoteDir(u"/no/such/folder"_s);
        QVERIFY(desk.view.canLogout);
        QVERIFY(desk.remote.RemoteCdup());

        // A folder of the name that the pane doesn't show, since it was made from elsewhere.
        QDir(server.root()).mkdir(u"New Folder"_s);
        desk.remote.NewRemoteFolder();
        const int made = desk.view.edited;
        QCOMPARE(desk.desk.remoteRows[size_t(made)].text, u"New Folder(1)"_s);
        QVERIFY(desk.remote.rename(made, u"été"_s));
        QVERIFY(QFileInfo(server.root() + u"/été").isDir());
        QVERIFY(!desk.remote.rename(made, u"no/such/folder"_s));
        QCOMPARE(desk.desk.remoteRows[size_t(made)].tag, QString(Panes::NormalizePath(desk.home(), true) + u"été"));
        for (const QString &name : {u"New Folder"_s, u"New Folder0"_s}) {
            desk.local.NewLocalFolder();
            QVERIFY(QFileInfo(desk.path(u"local/"_s + name)).isDir());
        }
        QCOMPARE(LocalBrowser::parentOf(u"/a/b/"_s) + LocalBrowser::parentOf(u"/"_s), u"/a//"_s);
        desk.remote.logout();
        QVERIFY(desk.view.canLogin && desk.desk.remoteRows.empty());
    }

    void hostileNames()
    {
        ScriptedServer server;
        QByteArray lines = "drwxr-xr-x 1 a b 7 Jan 15 12:30 shop\r\n";
        server.listing = lines;
        RulesDesk desk(server.port());
        for (const char *name : {"../out", "/tmp/out", "..\\out", "a\tb", "con", "good", ".."})
            server.listing += "-rw-r--r-- 1 a b 4 Jan 15 12:30 " + QByteArray(name) + "\r\n";
        server.listing.remove(0, lines.size());
        for (const char *name : {"../out", "/tmp/out", "good"})
            server.files[QByteArray("/shop/") + name] = "evil";
        desk.retrieve({u"shop"_s});
        QCOMPARE(Files::tree(desk.path(u"local"_s)).keys(), QStringList(u"shop/good"_s));
        QCOMPARE(Files::tree(desk.folder.path()).size(), 1);
        QVERIFY(desk.view.status.join(u'|').startsWith(u"Error <--"_s));
        server.listing = "Everything is <b>fine</b>\r\n";
        QVERIFY(desk.remote.DoRemoteRefresh(u"/"_s));
        QVERIFY(desk.view.boxes.last().endsWith(u"lines that failed: \r\n\r\nEverything is <b>fine</b>\r\n"_s));
        QCOMPARE(int(desk.desk.remoteRows.size()), 1);
        server.listing = QByteArray("<p>").append(QByteArray(5000, 'x')).append("\r\n").repeated(300);
        QVERIFY(desk.remote.DoRemoteRefresh(u"/"_s));
        QVERIFY(desk.view.boxes.last().size() < 5000); // a box with its button on the screen
        QVERIFY(desk.view.canLogout);
    }

    void lostServer()
    {
        auto server = std::make_unique<ScriptedServer>();
        RulesDesk desk(server->port());
        Files::write(desk.path(u"local/a"_s), "a");
        Files::write(desk.path(u"local/b"_s), "b");
        server->replies["STOR"] = "553 no";
        desk.store({u"a"_s, u"b"_s});
        QCOMPARE(desk.statusRows(), u"Upload Denied -->a|Upload Denied -->b"_s);
        QVERIFY(desk.view.canLogout && desk.view.boxes.isEmpty());
        server.reset();
        desk.store({u"a"_s, u"b"_s});
        QCOMPARE(desk.statusRows(), u"Upload Denied -->a|Upload Denied -->b"_s);
        QVERIFY(desk.view.canLogin && !desk.view.canLogout && !desk.view.canAbort);
        QCOMPARE(desk.view.caption, u"ZELVANTORFTP"_s);
        desk.remote.login();
        QCOMPARE(desk.view.boxes.size(), 1);
        QVERIFY(desk.desk.bLost && desk.view.canLogin);
    }

    void settings()
    {
        const QTemporaryDir folder;
        SettingsStore store(folder.path());
        FtpSettings settings = FtpSettings::load(store);
        QVERIFY(settings.Passive && settings.Timeout == 60 && settings.RemotePort == 21 && settings.TransferType == 1);
        QVERIFY(!settings.takeTimeout(u""_s) && !settings.takeTimeout(u"-5"_s) && settings.takeTimeout(u"9999 s"_s));
        settings.Password = u"p%,\"é"_s;
        QVERIFY(settings.save(store));
        QCOMPARE(FtpSettings::load(store).Password, settings.Password);
        FtpCertificate certificate;
        certificate.host = u"shop.example"_s;
        certificate.fingerprint = u"AA:BB"_s;
        QVERIFY(FtpCertificates::keep(store, certificate));
        QVERIFY(FtpCertificates::check(store, certificate) == FtpCertificates::Known::Same);
        certificate.fingerprint = u"AA:CC"_s;
        QVERIFY(FtpCertificates::check(store, certificate) == FtpCertificates::Known::Changed);
        certificate.port = 2121; // another server of the host
        QVERIFY(FtpCertificates::check(store, certificate) == FtpCertificates::Known::Unknown);
    }
};

ZELVANTOR_SUITE(TransferQueueTest)
#include "TransferQueueTest.moc"
