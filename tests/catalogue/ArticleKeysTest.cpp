#include "tests/catalogue/ArticleDesk.h"

#include <QPlainTextEdit>
#include <QWindow>

using namespace Qt::StringLiterals;

/// Keys, mouse and focus on the product screen.
class ArticleKeysTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void keysOfTheScreen()
    {
        ArticleDesk desk;
        auto window = desk.open(2, 5);
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        auto &code = control<QToolButton>(*window, "cmdTrans");
        control<QLineEdit>(*window, "txtEan").clear();
        code.setFocus();
        QTest::keyClick(&code, Qt::Key_Return);
        QCOMPARE(control<QLineEdit>(*window, "txtEan").text().size(), 13);
        auto &reference = control<QLineEdit>(*window, "txtRef_Article");
        reference.setFocus();
        const auto hold = [&window] { // as a key comes from the desktop
            QTest::simulateEvent(window->windowHandle(), true, Qt::Key_Return, {}, u"\r"_s, true);
            QApplication::processEvents();
        };
        hold();
        QVERIFY(control<QPushButton>(*window, "cmdValider0").isEnabled()); // a save would have disabled it
        auto &description = control<QPlainTextEdit>(*window, "txtObservation_0");
        description.setPlainText({});
        description.setFocus();
        hold();
        QCOMPARE(description.toPlainText(), u"\n"_s);
        QTest::keyClick(&description, Qt::Key_Tab, Qt::ControlModifier);
        QTRY_VERIFY(control<QWidget>(*window, "txtObservation_1").hasFocus());
    }

    /// The focus goes on to the sale price, but not before the click that took it away has had its effect.
    void clickAfterThePurchasePriceCounts()
    {
        ArticleDesk desk;
        auto window = desk.open(2, 5);
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        auto &tick = control<QCheckBox>(*window, "chControlStock");
        const bool before = tick.isChecked();
        control<NumberBox>(*window, "txtPrixAchat").setFocus();
        tick.setFocus(Qt::MouseFocusReason); // as the press of a mouse button does first
        QTest::mousePress(&tick, Qt::LeftButton, {}, QPoint(8, tick.height() / 2));
        QTest::qWait(1); // whatever is queued has its turn while the button is down
        QTest::mouseRelease(&tick, Qt::LeftButton, {}, QPoint(8, tick.height() / 2));
        QCOMPARE(tick.isChecked(), !before);
        QTRY_VERIFY(control<NumberBox>(*window, "txtPrixVente").hasFocus());
        // The latch of a chain falls when the sale rate gains the focus.
        enter(*window, "txtMarge", "2");
        enter(*window, "txtFrais", "5");
        const QString sale = shown(*window, "txtPrixVente");
        control<QComboBox>(*window, "cbTvaV").setFocus();
        enter(*window, "txtFrais", "50");
        QVERIFY(shown(*window, "txtPrixVente") != sale);
    }

    void escapeAsksOnceSomethingIsTyped()
    {
        ArticleDesk desk;
        desk.messages.answer = false;
        auto window = desk.open(2, 5);
        control<QLineEdit>(*window, "txtMarque").setText(u"AUTRE"_s);
        QTest::keyClick(window.get(), Qt::Key_Escape);
        QVERIFY(window->isVisible() && desk.messages.boxes.size() == 1);
        auto untouched = desk.open(2, 5);
        QTest::keyClick(untouched.get(), Qt::Key_Escape);
        QVERIFY(!untouched->isVisible());
    }
};

ZELVANTOR_SUITE(ArticleKeysTest)
#include "ArticleKeysTest.moc"
