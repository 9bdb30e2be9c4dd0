#include "platform/SpreadPrinter.h"
#include "platform/Spread.h"
#include "tests/support/Suite.h"

#include <QApplication>
#include <QDialog>
#include <QPdfWriter>
#include <QPrintPreviewWidget>
#include <QProcess>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const SpreadPrintJob job{u"/fb1Date: /fb004 May 2026/n/fb1By: /fb0ann/c/fn\"Arial\"/fz\"12\"/fb1/fu1Stocks/n/n"_s,
                         u"Pages:/p///pc"_s, u"Stock list"_s, u"Printing..."_s};

void fill(Spread &grid, int rows)
{
    grid.resizeGrid(0, 3);
    grid.hideColumns(1, 1);
    grid.setColumnWidths({100, 120, 1200}); // wider than a page
    grid.setBandColors(Qt::black, QColor(204, 253, 245));
    const QStringList headings = {u"Key"_s, u"Reference"_s, u"Name"_s};
    for (int column = 1; column <= 3; ++column)
        grid.setText(column, 0, headings[column - 1]);
    std::vector<QString> cells;
    for (int row = 1; row <= rows; ++row) {
        cells.push_back(u"secret%1"_s.arg(row));
        cells.push_back(u"R%1"_s.arg(row));
        cells.push_back(row == 2 ? u"long "_s.repeated(200) : u"Tasse à thé %1"_s.arg(row));
    }
    grid.cells().fill(std::move(cells));
}

} // namespace

class SpreadPrinterTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void printsEveryRow()
    {
        Spread grid;
        fill(grid, 90);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"list.pdf"_s);
        QPdfWriter pdf(path);
        const SpreadPrinter printer(grid, job);
        printer.setUp(pdf);
        QVERIFY(printer.paint(pdf));
        QProcess reader;
        reader.start(QStringLiteral(ZELVANTOR_PDFTOTEXT), {u"-layout"_s, path, u"-"_s});
        QVERIFY(reader.waitForFinished() && reader.exitCode() == 0);
        const QString text = QString::fromUtf8(reader.readAllStandardOutput());
        const QStringList pages = text.chopped(1).split(u'\f');
        QVERIFY2(pages.size() >= 2 && pages.size() <= 5, qPrintable(text));
        for (int page = 1; page <= pages.size(); ++page) {
            const QString &words = pages[page - 1];
            QCOMPARE(words.count(u"Stocks"_s), 1);
            QVERIFY2(words.contains(u"Date: 04 May 2026"_s) && words.contains(u"By: ann"_s), qPrintable(words));
            QVERIFY2(words.contains(u"Reference"_s) && words.contains(u"Name"_s), qPrintable(words));
            QVERIFY2(words.contains(u"Pages:%1/%2"_s.arg(page).arg(pages.size())), qPrintable(words));
        }
        const QStringList words = text.simplified().split(u' ');
        for (int row = 1; row <= 90; ++row)
            QVERIFY2(words.count(u"R%1"_s.arg(row)) == 1, qPrintable(text));
        QVERIFY(text.contains(u"Tasse à thé 90"_s));
        QVERIFY(text.contains(u'…'));
        QVERIFY(!text.contains(u"secret"_s) && !text.contains(u"Key"_s));
    }

    void endsWhenTold()
    {
        Spread grid;
        fill(grid, 200);
        const QTemporaryDir folder;
        QPdfWriter pdf(folder.filePath(u"list.pdf"_s));
        const SpreadPrinter printer(grid, job);
        printer.setUp(pdf);
        int done = 0;
        QVERIFY(!printer.paint(pdf, [&done](int page, int) {
            done = page;
            return page < 2;
        }));
        QCOMPARE(done, 2);
        QPdfWriter nowhere(folder.path());
        QVERIFY(!printer.paint(nowhere));
    }

    void previewShowsThePages()
    {
        Spread grid;
        fill(grid, 90);
        int pages = 0;
        QPageLayout::Orientation orientation = QPageLayout::Portrait;
        QTimer::singleShot(0, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            auto *preview = dialog->findChild<QPrintPreviewWidget *>();
            QTRY_VERIFY(preview->pageCount() > 1);
            pages = preview->pageCount();
            orientation = preview->orientation();
            dialog->reject();
        });
        SpreadPrinter(grid, job).print(nullptr);
        QVERIFY(pages > 1);
        QCOMPARE(orientation, QPageLayout::Landscape);
    }
};

ZELVANTOR_SUITE(SpreadPrinterTest)
#include "SpreadPrinterTest.moc"
