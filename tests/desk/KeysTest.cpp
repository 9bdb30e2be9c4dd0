#include "platform/Spread.h"
#include "shell/frmMain.h"
#include "shop/frmCatalogue.h"
#include "shop/frmInfo.h"
#include "tests/desk/Desk.h"

#include <QMdiArea>

using namespace Qt::StringLiterals;

class KeysTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tabLeavesTheLastCell()
    {
        SampleDesk desk;
        frmInfo window(desk.session, nullptr);
        window.show();
        QApplication::setActiveWindow(&window);
        auto &grid = control<Spread>(window, "fpSpread3");
        grid.setFocus();
        grid.setActiveCell(2, grid.MaxRows());
        grid.edit(grid.currentIndex());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &control<QWidget>(window, "cmdValider"));
    }

    void enterDoesNotGenerate()
    {
        SampleDesk desk;
        frmCatalogue window(desk.session, nullptr);
        window.show();
        for (const char *name : {"txtTitre", "lstControle", "fpSpread2"})
            QTest::keyClick(&control<QWidget>(window, name), Qt::Key_Return);
        QCOMPARE(desk.desktop.opened, QStringList());
    }

    void translationsOfTheWindowAtHand()
    {
        SampleDesk desk;
        frmMain window(desk.session);
        window.show();
        desk.screens.showProducts(&control<QMdiArea>(window, "mdi"));
        QStringList sections;
        Visitor visitor;
        for (const char *place : {"txtMarque", "produit"}) {
            visitor.whenShown(u"frmTrad"_s, [&](QWidget &first) {
                sections << first.property("Tag").toString();
                visitor.whenShown(u"frmTrad"_s, [](QWidget &second) { second.close(); });
                QTest::keyClick(&first, Qt::Key_F12);
                first.close();
            });
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            control<QWidget>(window, place).setFocus();
            QTest::keyClick(&control<QWidget>(window, place), Qt::Key_F12);
            QCOMPARE(visitor.waiting(), QStringList{u"frmTrad"_s}); // never the second one
            visitor.forget();
        }
        QCOMPARE(sections, (QStringList{u"LISTPROD"_s, u"MAIN"_s}));
    }
};

ZELVANTOR_SUITE(KeysTest)
#include "KeysTest.moc"
