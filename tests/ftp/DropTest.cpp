#include "tests/ftp/OpenedWindow.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace {

QPoint placeOf(FtpPane &list, int row)
{
    return list.visualItemRect(list.topLevelItem(row)).center();
}

/// Drags the selection over a row, where it is dropped, or from where it is carried away again.
void drag(FtpPane &from, FtpPane &to, int row, bool drop = true)
{
    Q_EMIT from.dragBegun();
    QMimeData rows;
    rows.setData(u"application/x-zelvantor-rows"_s, {});
    QDragEnterEvent enter(placeOf(to, row), Qt::CopyAction, &rows, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(to.viewport(), &enter);
    QDragMoveEvent move(placeOf(to, row), Qt::CopyAction, &rows, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(to.viewport(), &move);
    if (drop) {
        Q_EMIT to.rowsDropped(&from);
        return;
    }
    QDragLeaveEvent leave;
    QApplication::sendEvent(to.viewport(), &leave);
    Q_EMIT from.dragLeft();
}

} // namespace

/// The merchant's hand on the panes: what is dragged, opened and asked for with the mouse and the keys.
class FtpDropTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void dropGoesWhereItIsAimed()
    {
        FtpDeskTest desk;
        desk.openConnected();
        auto &local = desk.local();
        auto &remote = desk.remote();
        auto &files = desk.server->files;
        QCOMPARE(names(remote), (QStringList{QString(), u"www"_s, u"index.htm"_s}));
        // A file is no target: what is dropped on it goes into the folder of the pane.
        select(local, {u"images"_s, u"panier.txt"_s});
        drag(local, remote, 2);
        QCOMPARE(names(control<QTreeWidget>(*desk.window, "lvwStatus")), (QStringList{u"Upload"_s, u"Upload"_s}));
        QCOMPARE(files.value(u"/images/a.gif"_s), QByteArray("gif"));
        QCOMPARE(files.value(u"/panier.txt"_s), QByteArray("0123456789"));
        QCOMPARE(Files::read(desk.path(u"data/temp/index.htm"_s)), QByteArray("page"));
        select(local, {u"panier.txt"_s});
        drag(local, remote, int(names(remote).indexOf(u"www"_s)));
        QCOMPARE(files.value(u"/www/panier.txt"_s), QByteArray("0123456789"));
        QVERIFY(names(remote).contains(u"old.txt"_s));
        // Nor is the up row.
        select(local, {u"images"_s});
        drag(local, remote, 0);
        QCOMPARE(files.value(u"/www/images/a.gif"_s), QByteArray("gif"));
    }

    void abandonedDragIsForgotten()
    {
        FtpDeskTest desk;
        desk.openConnected();
        auto &local = desk.local();
        auto &remote = desk.remote();
        const auto marked = [&local] {
            return local.findItems(u"panier.txt"_s, Qt::MatchExactly)[0]->foreground(0).style() != Qt::NoBrush;
        };
        select(local, {u"panier.txt"_s});
        drag(local, remote, 1, false);
        QCOMPARE(remote.dropRow(), -1);
        desk.messages.answer = false;
        drag(local, remote, 1);
        QCOMPARE(remote.dropRow(), -1);
        QVERIFY(!marked());
        desk.messages.answer = true;
        select(local, {u"images"_s, u"panier.txt"_s});
        desk.send();
        QCOMPARE(desk.server->files.value(u"/images/a.gif"_s), QByteArray("gif"));
        QVERIFY(desk.server->files.contains(u"/panier.txt"_s) && !desk.server->files.contains(u"/www/panier.txt"_s));
    }

    void enterAndTheRightButtonTransferNothing()
    {
        FtpDeskTest desk;
        desk.openConnected();
        auto &local = desk.local();
        desk.server->log.clear();
        for (FtpPane *pane : {&local, &desk.remote()}) {
            select(*pane, {u"index.htm"_s});
            QTest::keyClick(pane, Qt::Key_Return);
        }
        const QPoint place = placeOf(local, 1);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, place, local.viewport()->mapToGlobal(place));
        QApplication::sendEvent(local.viewport(), &asked);
        QVERIFY(!QApplication::activePopupWidget());
        QTest::mouseClick(local.viewport(), Qt::RightButton, {}, place);
        auto &actions = control<QMenu>(*desk.window, "mnuActions");
        QTRY_VERIFY(actions.isVisible());
        actions.close();
        QCOMPARE(desk.server->log, QStringList());
        select(local, {u"images"_s});
        QTest::keyClick(&local, Qt::Key_Return);
        QCOMPARE(names(local), (QStringList{QString(), u"a.gif"_s}));
    }

    void allIsSent()
    {
        FtpDeskTest desk;
        QDir(desk.path(u"data/temp/images"_s)).removeRecursively();
        desk.openConnected();
        auto &local = desk.local();
        local.setFocus();
        local.setCurrentItem(local.topLevelItem(0));
        QTest::keyClick(&local, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(local.currentRow(), 1);
        desk.server->files.remove(u"/index.htm"_s);
        desk.remote().setFocus();
        desk.trigger("Refresh");
        desk.send();
        QCOMPARE(desk.server->files.value(u"/index.htm"_s), QByteArray("page"));
        QCOMPARE(desk.server->files.value(u"/panier.txt"_s), QByteArray("0123456789"));
        // A row that was chosen before stays the one that decides.
        local.setFocus();
        local.setCurrentItem(local.topLevelItem(2));
        QTest::keyClick(&local, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(local.currentRow(), 2);
    }
};

ZELVANTOR_SUITE(FtpDropTest)
#include "DropTest.moc"
