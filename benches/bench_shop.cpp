// Whole shops of several sizes, beside a bare floor and beside plain writing of the same bytes.
#include "benches/BenchCatalogue.h"
#include "benches/Figure.h"
#include "benches/Floor.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct Run {
    double seconds;
    double peakMegabytes;
};

constexpr int rounds = 3;

bool fasterRun(const Run &a, const Run &b)
{
    return a.seconds < b.seconds;
}

/// Runs the real program and reads time and memory of that one process.
Run generate(const QString &folder, const QString &out)
{
    QElapsedTimer timer;
    timer.start();
    const pid_t child = fork();
    if (child == 0) {
        if (!std::freopen("/dev/null", "w", stdout))
            _exit(9);
        const QByteArray app = folder.toLocal8Bit();
        const QByteArray settings = (folder + u"/settings"_s).toLocal8Bit();
        const QByteArray target = out.toLocal8Bit();
        execl(ZELVANTOR_SHOP, "zelvantor-shop", "--app-folder", app.constData(), "--settings", settings.constData(),
              "--out", target.constData(), static_cast<char *>(nullptr));
        _exit(9);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "zelvantor-shop ended with %d\n", WEXITSTATUS(status));
        std::exit(1);
    }
    return {seconds, double(usage.ru_maxrss) / 1024};
}

std::string fileText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(file.errorString()));
        std::exit(1);
    }
    return file.readAll().toStdString();
}

/// Takes the constant pieces from pages that the program wrote, so that the floor writes pages of their size.
Floor::Pieces piecesOf(const QString &shop)
{
    const std::string product = fileText(shop + u"/00001202603.htm"_s);
    const std::string list = fileText(shop + u"/g2_s1000.htm"_s);
    const size_t description = product.find("<p>Pi");
    const size_t firstRow = list.find("<td align=\"left\" colspan=\"5\"");
    const size_t secondRow = list.find("<td align=\"left\" colspan=\"5\"", firstRow + 1);
    const size_t end = list.rfind("</FORM>");
    if (description == std::string::npos || secondRow == std::string::npos || end == std::string::npos) {
        std::fprintf(stderr, "the pages of the bench shop have another form\n");
        std::exit(1);
    }
    return {product.substr(0, description), product.substr(product.rfind("</table>")), list.substr(0, firstRow),
            list.substr(end), list.substr(firstRow, secondRow - firstRow - 20)};
}

int filesIn(const QString &folder)
{
    return int(QDir(folder).entryList(QDir::Files).size());
}

double measure(const char *name, int products, int pictureSize)
{
    QTemporaryDir place;
    const QString app = place.filePath(u"app"_s);
    BenchCatalogue::make(app, products, pictureSize);
    const std::string store = QString(app + u"/zelvantor.mdb"_s).toStdString();
    // Each round writes into folders that do not exist yet; the best of each kind counts, since what disturbs a
    // run on a shared machine only ever makes it slower.
    Run first{1e9, 0};
    Run second{1e9, 0};
    double floor = 1e9;
    double writing = 1e9;
    int files = 0;
    for (int round = 0; round < rounds; ++round) {
        const QTemporaryDir outputs;
        const QString out = outputs.filePath(u"out"_s);
        first = std::min(first, generate(app, out), fasterRun);
        second = std::min(second, generate(app, out), fasterRun);
        files = filesIn(out);
        QElapsedTimer timer;
        timer.start();
        Floor::generate(store, outputs.filePath(u"floor"_s).toStdString(), piecesOf(out), pictureSize > 0);
        floor = std::min(floor, double(timer.nsecsElapsed()) / 1e9);
        writing = std::min(writing, Floor::copyBytes(out.toStdString(), outputs.filePath(u"copy"_s).toStdString()));
    }

    const std::string row = name;
    Figure(row, first.seconds, "s").beside("the floor of reading and writing", first.seconds / floor, 2.5);
    Figure(row + ", times plain writing", first.seconds / writing, "");
    Figure(row + ", pages", files / first.seconds, "a second");
    Figure(row + ", second run", second.seconds, "s").beside("the first", second.seconds / first.seconds, 1);
    Figure(row + ", peak memory", first.peakMegabytes, "MB");
    return first.seconds / products;
}

} // namespace

int main()
{
    const double small = measure("shop, 1000", 1000, 0);
    measure("shop, 10000", 10000, 0);
    const double large = measure("shop, 30000", 30000, 0);
    measure("shop, 5000 with pictures", 5000, 40000);
    Figure("shop, time per product at 30000", large * 1e6, "µs").beside("that at 1000", large / small, 1.25);
    return 0;
}
