#include "platform/FtpClient.h"
#include "platform/FtpReply.h"
#include "tests/ftp/ScriptedServer.h"
#include "tests/support/Suite.h"

#include <QTimer>

using namespace Qt::StringLiterals;

class FtpClientTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        server = std::make_unique<ScriptedServer>();
        client = std::make_unique<FtpClient>();
        client->Timeout = 1000;
        log.clear();
        client->onProgress = [this](const FtpProgress &event) { log += event.reply; };
        server->files["/old"] = QByteArray(300000, 'o');
        Files::write(folder.filePath(u"new"_s), QByteArray(300000, 'n'));
        QFile::remove(folder.filePath(u"got"_s));
    }

    /// The session outlives a refusal, on the same connection, and the refusal is told as the server gave it.
    void refusals()
    {
        const Rows<QByteArray, QByteArray> rows = {{"folder", QByteArray("MKD"), QByteArray("550 exists")},
                                                   {"passive", QByteArray("PASV"), QByteArray("502 no")},
                                                   {"upload", QByteArray("STOR"), QByteArray("553 no")},
                                                   {"change", QByteArray("CWD"), QByteArray("550 no")},
                                                   {"rename", QByteArray("RNFR"), QByteArray("550 no")}};
        for (const auto &[row, word, reply] : rows) {
            const Row named(row);
            init();
            QVERIFY(login());
            server->replies[word] = reply;
            const Result result = word == "MKD"    ? client->MakeDirectory(u"a"_s)
                                  : word == "CWD"  ? client->setCurrentDirectory(u"/x"_s)
                                  : word == "RNFR" ? client->Rename(u"a"_s, u"b"_s)
                                                   : client->Store(u"/x"_s, folder.filePath(u"new"_s));
            QCOMPARE(result.number(), long(reply.first(3).toInt()));
            QCOMPARE(result.text(), QString::fromLatin1(reply));
            QCOMPARE(client->State(), int(FtpSession::Connected));
            QCOMPARE(client->CurrentDirectory(), u"/"_s);
            server->replies.clear();
            QString text;
            QVERIFY(client->List(text));
            QCOMPARE(server->logins, 1);
        }
    }

    void faults()
    {
        const Rows<ScriptedServer::Fault, bool, bool, bool> rows = {
            {"cut in a download", ScriptedServer::CutConnection, false, false, true},
            {"cut in an upload", ScriptedServer::CutConnection, true, false, true},
            {"data cut", ScriptedServer::CutData, false, false, true},
            {"stall", ScriptedServer::Stall, false, false, false},
            {"no closing reply", ScriptedServer::NoClosingReply, false, false, false},
            {"no closing reply to an upload", ScriptedServer::NoClosingReply, true, false, false},
            {"short", ScriptedServer::ShortDownload, false, false, true},
            {"foreign address", ScriptedServer::ForeignAddress, false, true, true},
            {"closed data port", ScriptedServer::ClosedDataPort, true, false, true},
            {"disk full", ScriptedServer::DiskFull, true, false, true},
            {"endless reply", ScriptedServer::EndlessReply, true, false, true}};
        for (const auto &[row, fault, storing, succeeds, stays] : rows) {
            const Row named(row);
            init();
            QVERIFY(login());
            QVERIFY(client->setCurrentDirectory(u"/a"_s));
            server->fault = fault;
            const Result result = storing ? client->Store(u"/x"_s, folder.filePath(u"new"_s))
                                          : client->Retrieve(u"/old"_s, folder.filePath(u"got"_s));
            QCOMPARE(bool(result), succeeds);
            QVERIFY(result || !result.text().isEmpty());
            QCOMPARE(client->State() == FtpSession::Connected, stays);
            QCOMPARE(server->strangers, 0);
            server->fault = ScriptedServer::None;
            if (client->State() == FtpSession::Closed)
                QVERIFY(login() && client->setCurrentDirectory(u"/a"_s));
            // The next file is whole, and the session stands in the folder where it stood.
            QVERIFY(client->Retrieve(u"/old"_s, folder.filePath(u"got"_s)));
            QCOMPARE(Files::read(folder.filePath(u"got"_s)), server->files["/old"]);
            QString text;
            QVERIFY(client->List(text));
            QCOMPARE(server->commands.filter(u"CWD"_s).last(), u"CWD /a"_s);
        }
    }

    void refusedFileAfterDoubledReply()
    {
        QVERIFY(login());
        server->fault = ScriptedServer::DoubledReply;
        QVERIFY(client->Store(u"/1"_s, folder.filePath(u"new"_s)));
        server->replies["STOR"] = "550 no";
        for (int i = 0; i < 3; ++i)
            QVERIFY(!client->Store(u"/2"_s, folder.filePath(u"new"_s)));
        server->replies.clear();
        server->fault = ScriptedServer::None;
        QVERIFY(client->Store(u"/3"_s, folder.filePath(u"new"_s)));
        QCOMPARE(server->files["/3"], Files::read(folder.filePath(u"new"_s)));
        QVERIFY(!server->files.contains("/2"));
    }

    void abortWhileTheLastReplyIsMissing()
    {
        QVERIFY(login());
        client->Timeout = 600000;
        server->fault = ScriptedServer::NoClosingReply;
        bool wasBusy = false;
        QTimer::singleShot(300, server.get(), [&] {
            wasBusy = client->Busy() && client->Delete(u"/old"_s).number() == FtpError::Busy;
            client->Abort();
        });
        QCOMPARE(client->Retrieve(u"/old"_s, folder.filePath(u"got"_s)).number(), long(FtpError::Aborted));
        QVERIFY(wasBusy);
        QCOMPARE(client->State(), int(FtpSession::Connected));
        QVERIFY(client->Delete(u"/old"_s));
        QTimer::singleShot(300, server.get(), [&] { client->Close(); });
        QVERIFY(!client->Store(u"/x"_s, folder.filePath(u"new"_s)));
        QCOMPARE(client->State(), int(FtpSession::Closed));
    }

    void droppedWhileIdle()
    {
        QVERIFY(login());
        QList<int> states;
        client->onState = [&states](int state) { states << state; };
        server->hangUp();
        QVERIFY(!client->MakeDirectory(u"a"_s));
        QCOMPARE(states, QList<int>{FtpSession::Closed});
        QVERIFY(login());
        QVERIFY(client->Logout());
        QCOMPARE(states.last(), int(FtpSession::Closed));
        QVERIFY(!client->MakeDirectory(u"a"_s));
        QVERIFY(server->commands.filter(u"MKD"_s).isEmpty());
    }

    void namesStayOneCommand()
    {
        QVERIFY(login());
        const QString hostile = u"a\r\nDELE /old"_s;
        QString text;
        const Result results[] = {client->MakeDirectory(hostile),
                                  client->RemoveDirectory(hostile),
                                  client->Delete(hostile),
                                  client->Rename(u"a"_s, hostile),
                                  client->setCurrentDirectory(hostile),
                                  client->List(text, hostile),
                                  client->Store(hostile, folder.filePath(u"new"_s)),
                                  client->Retrieve(u"/a\n"_s, folder.filePath(u"got"_s)),
                                  client->Login(u"127.0.0.1"_s, u"shop"_s, hostile, {}, server->port())};
        for (const Result &result : results)
            QCOMPARE(result.number(), long(FtpError::BadName));
        QVERIFY(server->commands.filter(u"DELE"_s).isEmpty());
    }

    void passwordStaysOutOfTheLog()
    {
        server->replies["PASS"] = "530 wrong: topsecret";
        const Result refused = login();
        QCOMPARE(refused.number(), 530L);
        QCOMPARE(client->State(), int(FtpSession::Closed));
        server->replies["PASS"] = "230 hello topsecret";
        QVERIFY(login());
        QVERIFY(log.contains(u"230 hello"_s));
        QVERIFY(!log.contains(u"topsecret"_s) && !refused.text().contains(u"topsecret"_s));
        client->Tls = FtpTls::Always; // which this server doesn't have
        server->logins = 0;
        QVERIFY(!login());
        QCOMPARE(server->logins, 0);
        bool takesRest = false;
        client->Tls = FtpTls::Automatic;
        QVERIFY(login() && client->RestartSupported(takesRest) && takesRest);
        server->replies["REST"] = "502 no";
        QVERIFY(client->RestartSupported(takesRest) && !takesRest);
    }

    void passwordIsNoPartOfAFolder()
    {
        server->files["/www/f"] = "file";
        QVERIFY(client->Login(u"127.0.0.1"_s, u"shop"_s, u"www"_s, {}, server->port()));
        QVERIFY(client->setCurrentDirectory(u"/www"_s));
        QCOMPARE(client->CurrentDirectory(), u"/www"_s);
        QVERIFY(client->Retrieve(u"f"_s, folder.filePath(u"got"_s)));
        QVERIFY(log.contains(u"\"/****\""_s) && !log.contains(u"www"_s));
    }

    /// A download that ends early leaves the file of that name as it was, and nothing beside it.
    void replacedFileStaysUntilAllCame()
    {
        const QTemporaryDir place;
        const QString got = place.filePath(u"got"_s);
        Files::write(got, "the merchant's own");
        QFile::setPermissions(got, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(login());
        for (const auto fault : {ScriptedServer::CutData, ScriptedServer::ShortDownload}) {
            server->fault = fault;
            QVERIFY(!client->Retrieve(u"/old"_s, got));
            QCOMPARE(Files::tree(place.path()), (QMap<QString, QByteArray>{{u"got"_s, "the merchant's own"}}));
        }
        server->fault = ScriptedServer::None;
        QVERIFY(client->Retrieve(u"/old"_s, got));
        QCOMPARE(Files::tree(place.path()), (QMap<QString, QByteArray>{{u"got"_s, server->files["/old"]}}));
        QVERIFY(!(QFile::permissions(got) & (QFile::ReadGroup | QFile::ReadOther)));
    }

    void fullDisk()
    {
        QVERIFY(login());
        const Result full = client->Retrieve(u"/old"_s, u"/dev/full"_s);
        QCOMPARE(full.number(), long(FtpError::DiskFull));
        QCOMPARE(full.text(), u"No space left on device: /dev/full"_s);
        QVERIFY(client->Retrieve(u"/old"_s, folder.filePath(u"got"_s)));
        server->listing = QByteArray(33 * 1024 * 1024, 'x');
        QString text;
        QVERIFY(!client->List(text) && text.isEmpty()); // nor is the memory filled by a listing
    }

    void announcedSize()
    {
        QCOMPARE(FtpReply::announcedSize(u"150 Opening BINARY for a (999 bytes).txt (15 bytes).\r\n"_s), qint64(15));
        QCOMPARE(FtpReply::announcedSize(u"150 here\r\n"_s), qint64(-1));
    }

    void eightBitNames()
    {
        QVERIFY(login());
        QString text;
        server->listing = "-rw-r--r-- 1 a b 7 Jan 15 12:30 \xe9t\xe9 100%.txt\r\n";
        server->files["/\xe9t\xe9 100%.txt"] = "1252";
        QVERIFY(client->List(text) && text.contains(u"été 100%.txt"_s));
        QVERIFY(client->Retrieve(u"/été 100%.txt"_s, folder.filePath(u"got"_s)));
        QCOMPARE(Files::read(folder.filePath(u"got"_s)), QByteArray("1252"));
        server->listing = "-rw-r--r-- 1 a b 7 Jan 15 12:30 été\r\n";
        server->files["/été"] = "utf8";
        QVERIFY(client->List(text) && text.contains(u"été"_s));
        QVERIFY(client->Retrieve(u"été"_s, folder.filePath(u"got"_s)));
        QCOMPARE(Files::read(folder.filePath(u"got"_s)), QByteArray("utf8"));
    }

    void noServer()
    {
        const int port = server->port();
        server.reset();
        QVERIFY(!login(port));
        QVERIFY(!client->Login(u""_s, u"a"_s, u"b"_s, {}, 21));
        QVERIFY(!client->Login(u"host/path"_s, u"a"_s, u"b"_s, {}, 21));
        QVERIFY(!client->Login(u"shop.invalid"_s, u"a"_s, u"b"_s, {}, 21));
        QCOMPARE(client->State(), int(FtpSession::Closed));
        QVERIFY(!client->Busy());
    }

private:
    Result login(int port = 0)
    {
        return client->Login(u"127.0.0.1"_s, u"shop"_s, u"topsecret"_s, {}, port ? port : server->port());
    }

    QTemporaryDir folder;
    std::unique_ptr<ScriptedServer> server;
    std::unique_ptr<FtpClient> client;
    QString log;
};

ZELVANTOR_SUITE(FtpClientTest)
#include "FtpClientTest.moc"
