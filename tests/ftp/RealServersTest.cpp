#include "ftp/PaneRow.h"
#include "ftp/RemoteListing.h"
#include "ftp/TreeTransfer.h"
#include "platform/FtpClient.h"
#include "tests/ftp/RealServer.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

using Kind = RealServer::Kind;

namespace {

Result login(FtpClient &client, const RealServer &server)
{
    return client.Login(u"127.0.0.1"_s, server.user(), RealServer::password, {}, server.port());
}

void trust(FtpClient &client)
{
    client.onCertificate = [](const FtpCertificate &) { return true; };
}

} // namespace

class RealServersTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    /// The sample shop and 60 small files go up and come back the same; a file is gone on with both ways.
    void servers()
    {
        const Rows<Kind, bool> rows = {{"vsftpd, TLS with session reuse", Kind::Vsftpd, true},
                                       {"proftpd", Kind::Proftpd, true},
                                       {"proftpd, active", Kind::Proftpd, false},
                                       {"pure-ftpd", Kind::PureFtpd, true}};
        for (const auto &[row, kind, passive] : rows) {
            const Row named(row);
            const RealServer server(kind);
            FtpClient client;
            trust(client);
            client.Passive = passive;
            const Result in = login(client, server);
            QVERIFY2(in, qPrintable(in.text()));

            const QString home = Panes::NormalizePath(client.CurrentDirectory(), true);
            const QTemporaryDir folder;
            const QString up = folder.filePath(u"my shop"_s);
            Files::copyFolder(QStringLiteral(ZELVANTOR_SHARE) + u"/sample", up);
            for (int i = 0; i < 60; ++i)
                Files::write(up + u"/é è/%1.htm"_s.arg(i), QByteArray(i * 100, char(i)));
            qint64 last = 0;
            client.onProgress = [&last](const FtpProgress &event) {
                if (event.operation == FtpOperation::StoreTree && event.status == FtpProgress::Running)
                    last = qMax(last, event.count);
            };
            const Result stored = TreeTransfer::StoreTree(client, u'"' + up + u"/*\"", home + u"shop");
            QVERIFY2(stored, qPrintable(stored.text()));
            const auto files = Files::tree(up);
            QCOMPARE(Files::tree(server.root() + u"/shop"), files);
            QCOMPARE(last, std::accumulate(files.begin(), files.end(), qint64(0),
                                           [](qint64 sum, const QByteArray &file) { return sum + file.size(); }));
            const QString down = folder.filePath(u"down/here"_s);
            const Result retrieved = TreeTransfer::RetrieveTree(client, home + u"shop/*", down);
            QVERIFY2(retrieved, qPrintable(retrieved.text()));
            QCOMPARE(Files::tree(down), files);

            const QByteArray whole = QByteArray("\r\n\0\xff rest", 9).repeated(5000);
            Files::write(folder.filePath(u"whole"_s), whole);
            Files::write(folder.filePath(u"half"_s), whole.first(1234));
            QVERIFY(client.Store(u"file"_s, folder.filePath(u"half"_s)));
            client.StoreMode = FtpSession::Continue;
            QVERIFY(client.Store(u"file"_s, folder.filePath(u"whole"_s), 1234));
            QCOMPARE(Files::read(server.root() + u"/file"), whole);
            QVERIFY(client.Retrieve(u"file"_s, folder.filePath(u"half"_s), 1234));
            QCOMPARE(Files::read(folder.filePath(u"half"_s)), whole);
            QVERIFY(client.Rename(u"file"_s, u"other"_s) && client.Delete(u"other"_s));
            QVERIFY(!QFile::exists(server.root() + u"/other"));
            QVERIFY(client.Logout());
        }
    }

    void certificates()
    {
        const RealServer server(Kind::Vsftpd);
        FtpClient client;
        std::vector<FtpCertificate> seen;
        bool answer = false;
        client.onCertificate = [&](const FtpCertificate &certificate) {
            seen.push_back(certificate);
            return answer;
        };
        QCOMPARE(login(client, server).number(), long(FtpError::Certificate));
        answer = true;
        QVERIFY(login(client, server));
        QVERIFY(login(client, server)); // once accepted, for the life of the client
        QCOMPARE(int(seen.size()), 2);
        QVERIFY(seen[0].subject.contains(u"shop.example"_s) && seen[0].issuer == seen[0].subject);
        QCOMPARE(seen[0].fingerprint.size(), 95);
        QVERIFY(seen[0].from < seen[0].until && seen[0].from.daysTo(seen[0].until) == 30);
        client.Tls = FtpTls::Never;
        QVERIFY(!login(client, server));
        // Known to the system, it is asked for only under another name.
        qputenv("SSL_CERT_FILE", server.certificate().toUtf8());
        FtpClient trusting;
        QVERIFY(login(trusting, server));
        trusting.onCertificate = client.onCertificate;
        QVERIFY(trusting.Login(u"localhost"_s, server.user(), u"x"_s, {}, server.port()));
        QCOMPARE(int(seen.size()), 3);
        qunsetenv("SSL_CERT_FILE");
    }

    void abort()
    {
        const RealServer server(Kind::Vsftpd);
        FtpClient client;
        trust(client);
        QVERIFY(login(client, server));
        const QTemporaryDir folder;
        const QString local = folder.filePath(u"big"_s);
        constexpr qint64 size = qint64(2) << 30;
        Files::write(local, {});
        QVERIFY(QFile::resize(local, size));
        client.onProgress = [&client](const FtpProgress &event) {
            if (event.count > 1000000)
                client.Abort();
        };
        QCOMPARE(client.Store(u"big"_s, local).number(), long(FtpError::Aborted));
        QCOMPARE(client.State(), int(FtpSession::Connected));
        QVERIFY(QFile(server.root() + u"/big").resize(size));
        QVERIFY(QFile::remove(local));
        QCOMPARE(client.Retrieve(u"big"_s, local).number(), long(FtpError::Aborted));
        // The part that came stays, to be gone on with.
        QVERIFY(QFileInfo(local).size() > 1000000 && QFileInfo(local).size() < size);
        QVERIFY(client.MakeDirectory(u"after"_s));
        QVERIFY(QFileInfo(server.root() + u"/after").isDir());
    }

    void longListing()
    {
        const RealServer server(Kind::Proftpd);
        QSet<QString> names;
        for (int i = 0; i < 10000; ++i) {
            names.insert(u"produit %1 ü.htm"_s.arg(i));
            Files::write(server.root() + u"/produit %1 ü.htm"_s.arg(i), {});
        }
        FtpClient client;
        QVERIFY(login(client, server));
        QString text;
        QVERIFY(client.List(text));
        const RemoteListing::Listing listing = RemoteListing::parse(text);
        QCOMPARE(listing.Status, int(RemoteListing::Listing::Parsed));
        for (const RemoteListing::Entry &entry : listing.entries)
            names.remove(entry.Name);
        QVERIFY(names.isEmpty());
    }
};

ZELVANTOR_SUITE(RealServersTest)
#include "RealServersTest.moc"
