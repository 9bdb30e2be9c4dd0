// Uploads through the FTP session beside a bare loop of its library on one connection and beside another client, on a
// near server and behind a slow line, and a long folder.
#include "benches/DelayRelay.h"
#include "benches/Figure.h"
#include "ftp/PaneRow.h"
#include "ftp/RemoteListing.h"
#include "platform/FtpClient.h"
#include "tests/ftp/RealServer.h"
#include "tests/support/Files.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <curl/curl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int files = 2000;
constexpr int fileSize = 8192;
constexpr int bigSize = 200 * 1024 * 1024;
constexpr int entries = 10000;
constexpr int rounds = 3;
constexpr int slowFiles = 100;
constexpr int roundTrip = 20; // milliseconds

double seconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

/// One handle, so that the connection and the login are used again.
class BareLoop {
public:
    explicit BareLoop(const RealServer &server)
        : m_base(QByteArray("ftp://127.0.0.1:") + QByteArray::number(server.port()) + '/'), m_easy(curl_easy_init())
    {
        curl_easy_setopt(m_easy, CURLOPT_USERNAME, server.user().toUtf8().constData());
        curl_easy_setopt(m_easy, CURLOPT_PASSWORD, RealServer::password.toUtf8().constData());
        curl_easy_setopt(m_easy, CURLOPT_UPLOAD, 1L);
        curl_easy_setopt(m_easy, CURLOPT_FTP_FILEMETHOD, long(CURLFTPMETHOD_NOCWD));
        curl_easy_setopt(m_easy, CURLOPT_UPLOAD_BUFFERSIZE, 256L * 1024);
    }
    ~BareLoop()
    {
        curl_multi_cleanup(m_multi);
        curl_easy_cleanup(m_easy);
    }
    BareLoop(const BareLoop &) = delete;
    BareLoop &operator=(const BareLoop &) = delete;

    void store(const QByteArray &name, const QString &local)
    {
        std::FILE *file = std::fopen(local.toUtf8().constData(), "rb");
        const QByteArray url = m_base + name;
        curl_easy_setopt(m_easy, CURLOPT_URL, url.constData());
        curl_easy_setopt(m_easy, CURLOPT_READDATA, file);
        curl_multi_add_handle(m_multi, m_easy);
        // The library's own loop waits up to a second where a reply came early.
        for (int running = 1; running > 0; curl_multi_poll(m_multi, nullptr, 0, running > 0 ? 10 : 0, nullptr))
            curl_multi_perform(m_multi, &running);
        int left = 0;
        const CURLMsg *end = curl_multi_info_read(m_multi, &left);
        if (!file || !end || end->data.result != CURLE_OK)
            std::exit(1);
        curl_multi_remove_handle(m_multi, m_easy);
        std::fclose(file);
    }

private:
    QByteArray m_base;
    CURL *m_easy;
    CURLM *m_multi = curl_multi_init();
};

void check(const Result &result)
{
    if (!result) {
        std::fprintf(stderr, "%s\n", qPrintable(result.text()));
        std::exit(1);
    }
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// The same files through lftp, with its start: a moment among so many files.
double otherClient(const RealServer &server, int port, const QString &local, const QString &name, int count)
{
    const QTemporaryDir folder;
    for (int i = 0; i < count; ++i)
        QFile::link(local, folder.filePath(name + QString::number(i)));
    const QString script = u"set ftp:ssl-allow no; set cmd:fail-exit yes; set xfer:clobber yes; "
                           "open -u \"%1,%2\" -p %3 127.0.0.1; lcd %4; mput -O / *; bye"_s.arg(
                               server.user(), RealServer::password, QString::number(port), folder.path());
    QProcess process;
    const double time = seconds([&] {
        process.start(u"lftp"_s, {u"-c"_s, script});
        process.waitForFinished(-1);
    });
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        std::fprintf(stderr, "lftp: %s\n", process.readAllStandardError().constData());
        std::exit(1);
    }
    return time;
}

void uploads(const std::string &name, FtpClient &client, BareLoop &bare, const RealServer &server, const QString &local,
             int count)
{
    std::vector<double> ours;
    std::vector<double> toBare;
    std::vector<double> toOther;
    for (int round = 0; round < rounds; ++round) {
        const double loop = seconds([&] {
            for (int i = 0; i < count; ++i)
                bare.store("bare" + QByteArray::number(i), local);
        });
        ours.push_back(seconds([&] {
            for (int i = 0; i < count; ++i)
                check(client.Store(u"ours"_s + QString::number(i), local));
        }));
        toBare.push_back(loop / ours.back());
        toOther.push_back(otherClient(server, server.port(), local, u"other"_s, count) / ours.back());
    }
    Figure("ftp, " + name, median(ours), "s").besideAtLeast("a bare loop's rate", median(toBare), 0.7);
    Figure("ftp, " + name + ", again", median(ours), "s").besideAtLeast("lftp's rate", median(toOther), 0.7);
}

void slowLine(const RealServer &server, const QString &local)
{
    const DelayRelay line(server.port(), roundTrip);
    FtpClient client;
    check(client.Login(u"127.0.0.1"_s, server.user(), RealServer::password, {}, line.port()));
    std::vector<double> each;
    const double ours = seconds([&] {
        for (int i = 0; i < slowFiles; ++i)
            each.push_back(1000 * seconds([&] { check(client.Store(u"slow"_s + QString::number(i), local)); }));
    });
    const double other = otherClient(server, line.port(), local, u"slowother"_s, slowFiles);
    const std::string name = "ftp, " + std::to_string(slowFiles) + " files over a slow line";
    Figure(name, ours, "s").beside("lftp's time", ours / other, 0.75);
    Figure(name + ", one file", median(each) / roundTrip, "round trips").atMost(4.3);
    Figure(name + ", slowest above the median", *std::ranges::max_element(each) - median(each), "ms").atMost(500);
}

void longFolder(FtpClient &client, const RealServer &server)
{
    for (int i = 0; i < entries; ++i)
        Files::write(server.root() + u"/long/produit %1.htm"_s.arg(i * 7919 % entries), {});
    check(client.setCurrentDirectory(Panes::NormalizePath(client.CurrentDirectory(), true) + u"long"));
    QString text;
    check(client.List(text));
    PaneRows rows;
    const double read = seconds([&] {
        for (const RemoteListing::Entry &entry : RemoteListing::parse(text).entries)
            rows.push_back({entry.Name, Panes::fileIcon(entry.Name), QString::number(entry.Size), entry.Date, {}, {}});
    });
    if (rows.size() != entries)
        std::exit(1);
    const double sort = seconds([&] { rows = Panes::sorted(std::move(rows), PaneColumn::Name); });
    Figure("ftp, listing of " + std::to_string(entries) + " entries read", read * 1000, "ms").atMost(300);
    Figure("ftp, listing of " + std::to_string(entries) + " entries sorted", sort * 1000, "ms").atMost(100);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const RealServer server(RealServer::Kind::Proftpd);
    const QTemporaryDir folder;
    Files::write(folder.filePath(u"small"_s), QByteArray(fileSize, 's'));
    Files::write(folder.filePath(u"big"_s), QByteArray(bigSize, 'b'));
    FtpClient client;
    check(client.Login(u"127.0.0.1"_s, server.user(), RealServer::password, {}, server.port()));
    BareLoop bare(server);
    uploads("2,000 files of 8 kB", client, bare, server, folder.filePath(u"small"_s), files);
    uploads("file of 200 MB", client, bare, server, folder.filePath(u"big"_s), 1);
    slowLine(server, folder.filePath(u"small"_s));
    longFolder(client, server);
    return 0;
}
