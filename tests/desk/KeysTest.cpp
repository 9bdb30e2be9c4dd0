#include "catalogue/frmArticle.h"
#include "catalogue/frmDlgOpenDoc.h"
#include "catalogue/frmListProduct.h"
#include "ftp/frmFTP.h"
#include "platform/Spread.h"
#include "reference/frmMaterial.h"
#include "reference/frmRefDetail.h"
#include "reference/frmTrad.h"
#include "shell/frmAbout.h"
#include "shell/frmDbPath.h"
#include "shell/frmLogin.h"
#include "shell/frmMain.h"
#include "shell/frmPW.h"
#include "shell/frmPays.h"
#include "shop/frmCatalogue.h"
#include "shop/frmInfo.h"
#include "tests/desk/Desk.h"
#include "tests/support/Suite.h"

#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

template <typename Window>
std::unique_ptr<QWidget> opened(Session &session)
{
    return std::make_unique<Window>(session, nullptr);
}

const std::pair<const char *, std::unique_ptr<QWidget> (*)(Session &)> windows[] = {
    {"frmAbout", opened<frmAbout>},
    {"frmArticle", opened<frmArticle>},
    {"frmCatalogue", opened<frmCatalogue>},
    {"frmDbPath", opened<frmDbPath>},
    {"frmDlgOpenDoc", opened<frmDlgOpenDoc>},
    {"frmFTP", [](Session &session) -> std::unique_ptr<QWidget> { return std::make_unique<frmFTP>(session, nullptr); }},
    {"frmInfo", opened<frmInfo>},
    {"frmListProduct", opened<frmListProduct>},
    {"frmLogin", opened<frmLogin>},
    {"frmMain", [](Session &session) -> std::unique_ptr<QWidget> { return std::make_unique<frmMain>(session); }},
    {"frmMaterial",
     [](Session &session) -> std::unique_ptr<QWidget> {
         return std::make_unique<frmMaterial>(session, true, nullptr);
     }},
    {"frmPW", opened<frmPW>},
    {"frmPays", opened<frmPays>},
    {"frmRefDetail",
     [](Session &session) -> std::unique_ptr<QWidget> {
         return std::make_unique<frmRefDetail>(session, ReferenceSelection{}, nullptr);
     }},
    {"frmTrad",
     [](Session &session) -> std::unique_ptr<QWidget> {
         return std::make_unique<frmTrad>(session, u"PARAM"_s, u"x"_s, nullptr);
     }},
};

/// Shows each tab of the window in turn, with the tabs inside it.
void onEveryTab(QWidget &window, const std::function<void(const QString &)> &look)
{
    const QList<QTabWidget *> tabs = window.findChildren<QTabWidget *>();
    if (tabs.isEmpty())
        look({});
    for (QTabWidget *widget : tabs) {
        for (QWidget *page = widget->parentWidget(); page; page = page->parentWidget())
            if (tabs.first()->indexOf(page) >= 0)
                tabs.first()->setCurrentIndex(tabs.first()->indexOf(page));
        for (int i = 0; i < widget->count(); ++i) {
            if (!widget->isTabVisible(i))
                continue;
            widget->setCurrentIndex(i);
            QApplication::processEvents();
            look(widget->objectName() + u'_' + QString::number(i));
        }
    }
}

/// The control that has the focus: an editor belongs to its grid, the inner line to its box.
QWidget *focused()
{
    QWidget *widget = QApplication::focusWidget();
    for (QWidget *above = widget; above; above = above->parentWidget())
        if (qobject_cast<QAbstractScrollArea *>(above) || qobject_cast<QComboBox *>(above))
            return above;
    return widget;
}

bool isStop(const QWidget &control)
{
    const QWidget *parent = control.parentWidget();
    return control.isVisible() && control.isEnabled() && (control.focusPolicy() & Qt::TabFocus) && !control.focusProxy()
           && !qobject_cast<const QComboBox *>(parent)
           && !qobject_cast<const QAbstractItemView *>(parent->parentWidget());
}

QChar mnemonic(QString text)
{
    text.remove(u"&&"_s);
    const qsizetype sign = text.indexOf(u'&');
    return sign < 0 ? QChar() : QChar(text.at(sign + 1)).toLower();
}

} // namespace

/// What the keyboard alone reaches, in every window.
class KeysTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tabReachesEveryControl_data();
    void tabReachesEveryControl();
    void mnemonicsAreUnique_data();
    void mnemonicsAreUnique();
    void tabLeavesTheLastCell();
    void enterDoesNotGenerate();
    void translationsOfTheWindowAtHand();
};

void KeysTest::tabReachesEveryControl_data()
{
    QTest::addColumn<int>("window");
    for (size_t i = 0; i < std::size(windows); ++i)
        QTest::newRow(windows[i].first) << int(i);
}

void KeysTest::tabReachesEveryControl()
{
    QFETCH(int, window);
    Desk desk;
    desk.openSample();
    desk.session.giModeProduit = 2;
    desk.session.glIdProduit = 1;
    const auto shown = windows[window].second(desk.session);
    shown->show();
    QApplication::setActiveWindow(shown.get());
    onEveryTab(*shown, [&](const QString &tab) {
        QSet<QWidget *> reached;
        for (int presses = 0; presses < 250; ++presses) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : shown.get(), Qt::Key_Tab);
            reached.insert(focused());
        }
        for (QWidget *control : shown->findChildren<QWidget *>())
            if (isStop(*control) && !reached.contains(control))
                QFAIL(qPrintable(tab + u" never reaches "_s + control->objectName() + u' '
                                 + QString::fromLatin1(control->metaObject()->className())));
    });
}

void KeysTest::mnemonicsAreUnique_data()
{
    tabReachesEveryControl_data();
}

void KeysTest::mnemonicsAreUnique()
{
    QFETCH(int, window);
    for (const QString &language : {u"FR"_s, u"EN"_s, u"NL"_s, u"DE"_s, u"IT"_s, u"ES"_s}) {
        Desk desk;
        desk.openSample();
        desk.session.localisation.gsLangue = language;
        const auto shown = windows[window].second(desk.session);
        shown->show();
        if (auto *frame = shown->findChild<QMdiArea *>(u"mdi"_s))
            desk.screens.showProducts(frame); // its keys and those of the menu count together
        onEveryTab(*shown, [&](const QString &tab) {
            QHash<QChar, QString> taken;
            const auto take = [&](const QString &text) {
                const QChar key = mnemonic(text);
                if (key.isNull() || text.startsWith(u"&Add"_s))
                    return;
                QVERIFY2(!taken.contains(key),
                         qPrintable(language + u' ' + tab + u": "_s + taken[key] + u", "_s + text));
                taken.insert(key, text);
            };
            for (const QLabel *label : shown->findChildren<QLabel *>())
                if (label->isVisible() && label->buddy())
                    take(label->text());
            for (const QAbstractButton *button : shown->findChildren<QAbstractButton *>())
                if (button->isVisible())
                    take(button->text());
            for (const QTabBar *bar : shown->findChildren<QTabBar *>())
                for (int i = 0; bar->isVisible() && i < bar->count(); ++i)
                    take(bar->tabText(i));
            for (const QMenuBar *bar : shown->findChildren<QMenuBar *>())
                for (const QAction *menu : bar->actions())
                    take(menu->text());
        });
    }
}

void KeysTest::tabLeavesTheLastCell()
{
    Desk desk;
    desk.openSample();
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

void KeysTest::enterDoesNotGenerate()
{
    Desk desk;
    desk.openSample();
    frmCatalogue window(desk.session, nullptr);
    window.show();
    for (const char *name : {"txtTitre", "lstControle", "fpSpread2"})
        QTest::keyClick(&control<QWidget>(window, name), Qt::Key_Return);
    QCOMPARE(desk.desktop.opened, QStringList());
}

void KeysTest::translationsOfTheWindowAtHand()
{
    Desk desk;
    desk.openSample();
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

ZELVANTOR_SUITE(KeysTest)
#include "KeysTest.moc"
