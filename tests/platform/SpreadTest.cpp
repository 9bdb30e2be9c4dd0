#include "platform/Spread.h"
#include "platform/ColumnWidths.h"
#include "tests/support/Suite.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using Cells = QList<std::pair<int, int>>;

namespace {

/// A window with the grid between two other controls.
struct Window : QWidget {
    Window() : before(this), grid(this), after(this)
    {
        auto *layout = new QVBoxLayout(this);
        for (QWidget *widget :
             {static_cast<QWidget *>(&before), static_cast<QWidget *>(&grid), static_cast<QWidget *>(&after)})
            layout->addWidget(widget);
        resize(500, 320);
    }
    void open(int rows, int columns)
    {
        grid.resizeGrid(rows, columns);
        show();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
    void click(int column, int row, Qt::KeyboardModifiers keys = {})
    {
        const QRect place = grid.visualRect(grid.cells().index(row - 1, column - 1));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, keys, place.center());
    }
    QLineEdit *edit(int column, int row)
    {
        grid.setActiveCell(column, row);
        grid.edit(grid.currentIndex());
        return qobject_cast<QLineEdit *>(grid.indexWidget(grid.currentIndex()));
    }

    QLineEdit before;
    Spread grid;
    QLineEdit after;
};

/// Files of this process can't grow beyond the size, as on a full disk.
struct FullDisk {
    explicit FullDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small{size, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
    rlimit before{};
};

QList<int> numbers(QSignalSpy &spy)
{
    QList<int> taken;
    while (!spy.isEmpty())
        taken << spy.takeFirst().first().toInt();
    return taken;
}

Cells cells(QSignalSpy &spy)
{
    Cells taken;
    for (; !spy.isEmpty(); spy.removeFirst())
        taken << std::pair(spy.first()[0].toInt(), spy.first()[1].toInt());
    return taken;
}

} // namespace

class SpreadTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fillsInOneGo()
    {
        Spread grid;
        grid.setOperationMode(Spread::OperationMode::SingleSelect);
        grid.resizeGrid(3, 3);
        grid.setText(2, 0, u"Name"_s);
        grid.hideColumns(1, 1);
        grid.setColumnWidths({70, 130, 90});
        const QSignalSpy resets(&grid.cells(), &QAbstractItemModel::modelReset);
        const QSignalSpy data(&grid.cells(), &QAbstractItemModel::dataChanged);
        const QSignalSpy changes(&grid.cells(), &SpreadModel::cellChanged);
        std::vector<QString> cells(600);
        for (int row = 1; row <= 200; ++row)
            cells[size_t(row * 3 - 2)] = QString::number(row);
        grid.cells().fill(std::move(cells));
        QCOMPARE(resets.size() + data.size() + changes.size(), 1);
        QCOMPARE(grid.MaxRows(), 200);
        QCOMPARE(grid.text(2, 99) + grid.text(2, 100) + grid.text(3, 200), u"99100"_s);
        QVERIFY(grid.isColumnHidden(0) && !grid.isColumnHidden(1));
        QCOMPARE(grid.columnWidths(), (QList<int>{70, 130, 90}));
        grid.clear();
        QCOMPARE(grid.MaxRows(), 0);
        grid.resizeGrid(1, 3);
        QCOMPARE(grid.text(2, 0) + grid.text(2, 1), u"Name"_s);
    }

    void exportsVisibleCells()
    {
        Spread grid;
        grid.resizeGrid(3, 4);
        grid.hideColumns(1, 1);
        grid.cells().setNumberColumn(4, 2);
        const QStringList texts[] = {{u"id"_s, u"Nom & <b>"_s, u"Modèle"_s, u"Prix"_s},
                                     {u"1"_s, u"\"Bol\" à\tthé"_s, u"x\r\ny\nz\u0001"_s, u"12.50"_s},
                                     {u"2"_s, u"φλιτζάνι 茶碗 🍵"_s, u"12\" pan"_s, {}}};
        for (int row = 0; row < 3; ++row)
            for (int column = 1; column <= 4; ++column)
                grid.setText(column, row, texts[row][column - 1]);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"stock.txt"_s);
        Files::write(path, "old");
        QVERIFY(grid.saveTabText(path));
        QCOMPARE(Files::read(path), QByteArray("\xEF\xBB\xBFNom & <b>\tModèle\tPrix\r\n"
                                               "\"\"\"Bol\"\" à thé\"\tx y z \t12.50\r\n"
                                               "φλιτζάνι 茶碗 🍵\t12\" pan\t\r\n"
                                               "\t\t\r\n"));
        const QString page = folder.filePath(u"a<b.xls"_s);
        QVERIFY(grid.exportHtml(page));
        const QByteArray html = Files::read(page);
        QVERIFY(html.startsWith("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>a&lt;b</title>"));
        QCOMPARE(html.mid(html.indexOf("<table>")),
                 QByteArray("<table>\n<thead>\n"
                            "<tr><th>Nom &amp; &lt;b&gt;</th><th>Modèle</th><th>Prix</th></tr>\n</thead>\n<tbody>\n"
                            "<tr><td>&quot;Bol&quot; à\tthé</td><td>x\ny\nz </td><td class=\"n\">12.50</td></tr>\n"
                            "<tr><td>φλιτζάνι 茶碗 🍵</td><td>12&quot; pan</td><td class=\"n\"></td></tr>\n"
                            "<tr><td></td><td></td><td class=\"n\"></td></tr>\n"
                            "</tbody>\n</table>\n</body>\n</html>\n"));
    }

    void failedExportKeepsTheFile()
    {
        Spread grid;
        grid.resizeGrid(300, 2);
        grid.setText(1, 1, u"text"_s);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"stock.html"_s);
        Files::write(path, "old");
        {
            const FullDisk disk(1000);
            const Result written = grid.exportHtml(path);
            QVERIFY(!written);
            QVERIFY(!written.text().isEmpty());
        }
        QCOMPARE(Files::tree(folder.path()), (QMap<QString, QByteArray>{{u"stock.html"_s, "old"}}));
        QVERIFY(!grid.saveTabText(path + u"/stock.txt"_s));
        QVERIFY(!grid.saveTabText(folder.path()));
    }

    void keysChooseRowsAsClicks()
    {
        Window window;
        window.grid.setOperationMode(Spread::OperationMode::SingleSelect);
        const QColor band(204, 253, 245);
        window.grid.setBandColors(Qt::black, band);
        window.open(100, 3);
        window.grid.hideColumns(1, 1);
        QSignalSpy rows(&window.grid, &Spread::rowSelected);
        QSignalSpy clicks(&window.grid, &Spread::cellClicked);
        window.grid.setFocus(Qt::TabFocusReason);
        QCOMPARE(numbers(rows), QList<int>()); // arriving chooses nothing
        for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_End, Qt::Key_Down, Qt::Key_Home})
            QTest::keyClick(&window.grid, Qt::Key(key));
        QCOMPARE(numbers(rows), (QList<int>{1, 2, 100, 1}));
        QTest::keyClick(&window.grid, Qt::Key_PageDown);
        const QList<int> paged = numbers(rows);
        QVERIFY(paged.size() == 1 && paged.first() > 3);
        QTest::keyClick(&window.grid, Qt::Key_PageUp);
        QCOMPARE(numbers(rows), QList<int>{1});
        window.click(2, 4);
        window.click(3, 4, Qt::ControlModifier);
        QCOMPARE(numbers(rows), QList<int>{4});
        QCOMPARE(cells(clicks), (Cells{{2, 4}, {3, 4}}));
        QCOMPARE(window.grid.selectionModel()->selectedRows().size(), 1);
        const QImage shot = window.grid.viewport()->grab().toImage();
        for (const auto &[row, isBand] :
             {std::pair(1, false), {2, true}, {3, false}, {4, false}}) // 4 is the chosen one
            QCOMPARE(shot.pixelColor(5, window.grid.rowViewportPosition(row - 1) + 5) == band, isBand);
        QHeaderView *header = window.grid.horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {header->sectionViewportPosition(2) + 20, 5});
        QTest::mouseDClick(window.grid.viewport(), Qt::LeftButton, {},
                           window.grid.visualRect(window.grid.currentIndex()).center());
        QTest::keyClick(&window.grid, Qt::Key_F2);
        QVERIFY(!window.grid.indexWidget(window.grid.currentIndex()));
        QCOMPARE(numbers(rows), QList<int>());
        QTest::keyClick(&window.grid, Qt::Key_Tab);
        QVERIFY(window.after.hasFocus());
    }

    void hiddenColumnsKeepTheirWidth()
    {
        Spread grid;
        grid.resizeGrid(1, 4);
        grid.setOperationMode(Spread::OperationMode::SingleSelect);
        grid.setColumnWidth(0, 55);
        grid.hideColumns(1, 1);
        grid.hideColumns(4, 4);
        grid.setColumnWidths({-1, 140, -3, 66, 99});
        const QList<int> widths = grid.columnWidths();
        QCOMPARE(widths, (QList<int>{55, 140, grid.horizontalHeader()->defaultSectionSize(), 66}));
        grid.showColumn(0);
        grid.showColumn(3);
        QCOMPARE(grid.columnWidths(), widths);
    }

    void widthsAsText()
    {
        QCOMPARE(ColumnWidths::toText({120, 0, 80}), u"120|0|80|"_s);
        QCOMPARE(ColumnWidths::fromText(u"120|0|80|"_s), (QList<int>{120, 0, 80}));
        QCOMPARE(ColumnWidths::fromText(u"-5||x|80"_s), (QList<int>{-5, -1, -1, 80}));
        QCOMPARE(ColumnWidths::fromText({}), QList<int>());
    }

    void numbersTakeDigits()
    {
        Window window;
        window.open(2, 2);
        window.grid.cells().setNumberColumn(1, 2);
        window.grid.cells().setNumberColumn(2, 0);
        const auto typed = [&window](int column, const QString &keys) {
            window.grid.setText(column, 1, {});
            QTest::keyClicks(window.edit(column, 1), keys);
            window.grid.finishEditing();
            return window.grid.text(column, 1);
        };
        QCOMPARE(typed(1, u"-1a2,345"_s), u"12.34"_s);
        QCOMPARE(typed(1, u",5"_s), u"0.5"_s);
        QCOMPARE(typed(1, u"7,"_s), u"7"_s);
        QCOMPARE(typed(1, u"."_s), QString());
        QCOMPARE(typed(2, u"1.5"_s), u"15"_s);
        QLineEdit *line = window.edit(1, 1);
        line->insert(u" 1 234,5 "_s);
        window.grid.finishEditing();
        QCOMPARE(window.grid.text(1, 1), u"1234.5"_s);
        // What the program worked out more finely stays when nobody touches it.
        window.grid.setText(1, 1, u"12.099999"_s);
        window.edit(1, 1);
        window.grid.finishEditing();
        QCOMPARE(window.grid.text(1, 1), u"12.099999"_s);
    }

    void listsHoldPositions()
    {
        Window window;
        window.open(3, 2);
        SpreadModel &model = window.grid.cells();
        model.setColumnChoices(2, {u"0"_s, u"21"_s, u"6"_s, u"21"_s});
        model.setChoiceIndex(2, 1, 3);
        window.grid.setText(2, 2, u"6"_s);
        model.setChoiceIndex(2, 3, 9);
        QCOMPARE(model.choiceIndex(2, 1), 3);
        QCOMPARE(model.choiceIndex(2, 2), 2);
        QCOMPARE(model.choiceIndex(2, 3), -1);
        model.setColumnChoices(2, {});
        model.setColumnChoices(2, {u"0"_s, u"20"_s, u"5.5"_s, u"10"_s});
        QCOMPARE(window.grid.text(2, 1) + u'|' + window.grid.text(2, 2) + u'|' + window.grid.text(2, 3), u"10|5.5|"_s);
        window.edit(2, 2);
        auto *combo = qobject_cast<QComboBox *>(window.grid.indexWidget(window.grid.currentIndex()));
        QVERIFY(combo && !combo->isEditable());
        QCOMPARE(combo->currentIndex(), 2);
        QTest::keyClick(combo, Qt::Key_Down);
        QCOMPARE(model.choiceIndex(2, 2), 3); // at once
    }

    void tellsWhichCellWasLeft()
    {
        Window window;
        window.open(3, 2);
        QSignalSpy left(&window.grid, &Spread::cellLeft);
        window.edit(1, 2)->setText(u"a"_s);
        QTest::keyClick(window.grid.indexWidget(window.grid.currentIndex()), Qt::Key_Return);
        QTRY_COMPARE(window.grid.activeRow(), 3);
        QCOMPARE(window.grid.text(1, 2), u"a"_s);
        QCOMPARE(cells(left), (Cells{{1, 2}}));
        window.grid.setActiveCell(2, 2);
        left.clear();
        window.before.setFocus();
        QVERIFY(left.isEmpty()); // nothing was edited
        window.edit(2, 2)->setText(u"b"_s);
        window.after.setFocus();
        QCOMPARE(window.grid.text(2, 2), u"b"_s);
        QCOMPARE(cells(left), (Cells{{2, 2}}));
        window.edit(2, 2)->setText(u"c"_s);
        window.grid.finishEditing();
        QCOMPARE(window.grid.text(2, 2), u"c"_s);
        QCOMPARE(cells(left), (Cells{{2, 2}}));
    }
};

ZELVANTOR_SUITE(SpreadTest)
#include "SpreadTest.moc"
