// The product list on a catalogue of 30,000 products, beside a bare table filled from the same statement.
#include "benches/DeskBench.h"
#include "benches/Figure.h"
#include "catalogue/ProductSearch.h"
#include "catalogue/frmListProduct.h"
#include "platform/Spread.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;

namespace {

constexpr int products = 30000;
constexpr int rounds = 5;
constexpr int columns = 13; // that the statement gives and the grid shows

/// Megabytes of memory that the process holds now.
double residentMegabytes()
{
    QFile status(u"/proc/self/statm"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    return status.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

/// The least model that shows such rows: a list of texts.
class BareModel : public QAbstractTableModel {
public:
    explicit BareModel(std::vector<QString> cells) : m_cells(std::move(cells)) {}
    int rowCount(const QModelIndex &) const override { return int(m_cells.size()) / columns; }
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? m_cells[size_t(index.row() * columns + index.column())] : QVariant();
    }

private:
    std::vector<QString> m_cells;
};

double bareTable(DeskBench &desk)
{
    QTableView table;
    table.resize(1070, 400);
    table.show();
    return fastest(rounds, [&] {
        std::vector<QString> cells;
        Reader rows = desk.session.gCnn.read(ProductSearch::statement({}));
        while (rows.next())
            for (int column = 0; column < columns; ++column)
                cells.push_back(rows.text(column));
        BareModel model(std::move(cells));
        table.setModel(&model);
        table.grab();
        table.setModel(nullptr);
    });
}

double worstScroll(Spread &grid)
{
    double worst = 0;
    constexpr int steps = 60;
    QScrollBar *bar = grid.verticalScrollBar();
    for (int step = 0; step <= steps; ++step) {
        QElapsedTimer timer;
        timer.start();
        bar->setValue(bar->maximum() * step / steps);
        grid.grab();
        worst = std::max(worst, double(timer.nsecsElapsed()) / 1e6);
    }
    return worst;
}

void exportBeside(DeskBench &desk, frmListProduct &window, Spread &grid)
{
    const double plain = fastest(rounds, [&] {
        QFile file(desk.path(u"plain.txt"_s));
        if (!file.open(QIODevice::WriteOnly))
            return;
        for (int row = 1; row <= grid.MaxRows(); ++row) {
            QByteArray line;
            for (const int column : grid.visibleColumns())
                line += grid.text(column, row).toUtf8() + '\t';
            file.write(line + "\r\n");
        }
    });
    const double text = fastest(rounds, [&] { (void)grid.saveTabText(desk.path(u"out.txt"_s)); });
    const double html = fastest(rounds, [&] { (void)grid.exportHtml(desk.path(u"out.html"_s)); });
    window.show();
    Figure("list, export of all rows as text", text, "ms").beside("plain writing", text / plain, 3);
    Figure("list, export of all rows as HTML", html, "ms").beside("plain writing", html / plain, 3);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Skin::apply(application);
    DeskBench desk(products);
    const double before = residentMegabytes();
    frmListProduct window(desk.session, nullptr);
    window.show();
    window.grab();
    const double added = residentMegabytes() - before;
    const double bare = bareTable(desk);
    auto *search = window.findChild<QPushButton *>(u"CmdRechPort"_s);
    auto &grid = *window.findChild<Spread *>(u"fpSpread1"_s);
    const double all = fastest(rounds, [&] {
        search->click();
        grid.grab();
    });
    window.findChild<QLineEdit *>(u"txtRef_Article"_s)->setText(u"0001"_s);
    const double prefix = fastest(rounds, [&] {
        search->click();
        grid.grab();
    });
    Figure("list, search of all " + std::to_string(products) + " products", all, "ms")
        .beside("a bare table", all / bare, 1.5);
    Figure("list, search of a prefix, " + std::to_string(grid.MaxRows()) + " rows", prefix, "ms").atMost(80);
    Figure("list, memory of the full grid", added, "MB").atMost(150);
    window.findChild<QPushButton *>(u"Cmdinitialiser"_s)->click();
    search->click();
    Figure("list, worst step of scrolling from end to end", worstScroll(grid), "ms").atMost(50);
    exportBeside(desk, window, grid);
    return 0;
}
