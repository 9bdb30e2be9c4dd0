#include "shell/ScreenPrint.h"
#include "shell/frmMain.h"
#include "tests/desk/Desk.h"
#include "tests/paper/Printed.h"

#include <QPdfWriter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

class ScreenPrintTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void pictureFillsThePage()
    {
        const Rows<QSize, QSizeF> rows = {{"wide", QSize(400, 100), QSizeF(1900, 475)},
                                          {"high", QSize(100, 400), QSizeF(692.5, 2770)},
                                          {"nothing", QSize(0, 0), QSizeF(0, 0)}};
        for (const auto &[row, picture, onPaper] : rows) {
            const Row named(row);
            const QTemporaryDir folder;
            QImage image(picture, QImage::Format_RGB32);
            image.fill(Qt::black);
            const QString path = folder.filePath(u"screen.pdf"_s);
            {
                QPdfWriter pdf(path);
                pdf.setPageSize(QPageSize(QPageSize::A4));
                pdf.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
                QVERIFY(ScreenPrint::ImprimerImage(image, pdf));
            }
            const QRectF ink = Printed::ink(Printed(path).picture(), {0, 0, 2100, 2970});
            QVERIFY(std::abs(ink.width() - onPaper.width()) < 5 && std::abs(ink.height() - onPaper.height()) < 5);
            QVERIFY(ink.isEmpty() || (std::abs(ink.left() - 100) < 3 && std::abs(ink.top() - 100) < 3));
        }
    }

    void printsTheWindowInFront()
    {
        qputenv("CUPS_SERVER", "127.0.0.1:1"); // no printer answers there, whatever the machine has
        QVERIFY(QPrinterInfo::defaultPrinter().isNull());
        SampleDesk desk;
        desk.files.path = desk.path(u"screen.pdf"_s);
        frmMain window(desk.session);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        ScreenPrint::start(window, desk.session, {}, std::chrono::milliseconds(0));
        QCOMPARE(desk.files.asked, 0); // it waits, and the program goes on
        QTRY_COMPARE(desk.files.asked, 1);
        QVERIFY(QFile::exists(desk.files.path));
        const QRectF ink = Printed::ink(Printed(desk.files.path).picture(), {0, 0, 2100, 2970});
        QVERIFY(ink.width() > 500);
        const QPageLayout across(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(10, 10, 10, 10));
        ScreenPrint::start(window, desk.session, across, std::chrono::milliseconds(0));
        QTRY_COMPARE(desk.files.asked, 2);
        const QSize page = Printed(desk.files.path).picture().size();
        QVERIFY(page.width() > page.height());
        // The menu entry waits longer than any key press takes.
        control<QAction>(window, "mnuImprimEcran").trigger();
        QCoreApplication::processEvents();
        QCOMPARE(desk.files.asked, 2);
        QCOMPARE(desk.messages.boxes, QStringList());
    }
};

ZELVANTOR_SUITE(ScreenPrintTest)
#include "ScreenPrintTest.moc"
