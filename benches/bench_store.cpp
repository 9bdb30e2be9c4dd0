// Reading whole products through the connection, beside a bare loop of the store's own library.
#include "benches/BenchCatalogue.h"
#include "benches/Figure.h"
#include "data/Connection.h"
#include "platform/StoreText.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int products = 30000;
constexpr int rounds = 5;

/// Both readers take every column of a row as text into a string of their own kind.
double bareLoop(const QString &path)
{
    sqlite3 *db = nullptr;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_open(qPrintable(path), &db) != SQLITE_OK || !StoreText::install(db)
        || sqlite3_prepare_v2(db, "SELECT * FROM T_PRODUIT", -1, &statement, nullptr) != SQLITE_OK)
        std::exit(1);
    QElapsedTimer timer;
    timer.start();
    std::vector<std::string> row(size_t(sqlite3_column_count(statement)));
    while (sqlite3_step(statement) == SQLITE_ROW)
        for (size_t i = 0; i < row.size(); ++i) {
            const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, int(i)));
            row[i].assign(text ? text : "");
        }
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return seconds;
}

double throughConnection(const QString &path)
{
    Connection connection;
    if (!connection.open(connectionText(path)))
        std::exit(1);
    QElapsedTimer timer;
    timer.start();
    Reader reader = connection.read(u"SELECT T_PRODUIT.* FROM T_Produit;"_s);
    std::vector<QString> row(size_t(reader.columnCount()));
    int count = 0;
    while (reader.next()) {
        ++count;
        for (size_t i = 0; i < row.size(); ++i)
            row[i] = reader.text(int(i));
    }
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    if (count != products) {
        std::fprintf(stderr, "%d products read\n", count);
        std::exit(1);
    }
    return seconds;
}

} // namespace

int main()
{
    QTemporaryDir place;
    BenchCatalogue::make(place.path(), products);
    const QString path = place.filePath(u"zelvantor.mdb"_s);
    double bare = 1e9;
    double ours = 1e9;
    for (int i = 0; i < rounds; ++i) {
        bare = std::min(bare, bareLoop(path));
        ours = std::min(ours, throughConnection(path));
    }
    Figure("store, reading " + std::to_string(products) + " whole products", ours * 1000, "ms")
        .beside("a bare loop", ours / bare, 2);
    return 0;
}
