#include "docs/pictures/AllWindows.h"
#include "tests/desk/Desk.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int headerMargin = 6;

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

bool fits(const QLabel &label)
{
    if (label.text().isEmpty() || !label.pixmap().isNull())
        return true;
    const int height = label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().height();
    return height <= label.height() && (label.wordWrap() || label.sizeHint().width() <= label.width());
}

bool fits(const QAbstractButton &button)
{
    return button.text().isEmpty() || button.sizeHint().width() <= button.width();
}

bool fits(const QGroupBox &box)
{
    return box.fontMetrics().size(Qt::TextShowMnemonic, box.title()).width() <= box.width();
}

bool fits(const QTabBar &bar)
{
    return bar.count() == 0 || bar.tabRect(bar.count() - 1).right() <= bar.width();
}

template <typename Control>
void collect(const QWidget &window, const QString &name, QStringList &cut)
{
    for (const Control *control : window.findChildren<Control *>())
        if (control->isVisible() && !fits(*control))
            cut << name + u' ' + control->objectName();
}

void collectHeaders(const QWidget &window, const QString &name, QStringList &cut)
{
    for (const QHeaderView *header : window.findChildren<QHeaderView *>()) {
        if (!header->isVisible() || header->orientation() != Qt::Horizontal)
            continue;
        for (int section = 0; section < header->count(); ++section) {
            const QString text = header->model()->headerData(section, Qt::Horizontal).toString();
            const int room = header->sectionSize(section) - headerMargin;
            if (!header->isSectionHidden(section) && header->fontMetrics().horizontalAdvance(text) > room)
                cut << name + u' ' + header->parent()->objectName() + u" column "_s + text;
        }
    }
}

/// The controls that the Tab key never comes to.
void collectUnreached(QWidget &window, const QString &name, QStringList &faults)
{
    QApplication::setActiveWindow(&window);
    QSet<QWidget *> reached;
    for (int presses = 0; presses < 250; ++presses) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, Qt::Key_Tab);
        reached.insert(focused());
    }
    for (QWidget *control : window.findChildren<QWidget *>())
        if (isStop(*control) && !reached.contains(control))
            faults << name + u": Tab never reaches "_s + control->objectName();
}

/// Two controls of one key.
void collectSharedKeys(const QWidget &window, const QString &name, QStringList &faults)
{
    QHash<QChar, QString> taken;
    const auto take = [&](const QString &text) {
        const QChar key = mnemonic(text);
        if (key.isNull() || text.startsWith(u"&Add"_s))
            return;
        if (taken.contains(key))
            faults << name + u" keys of "_s + taken[key] + u", "_s + text;
        taken.insert(key, text);
    };
    for (const QLabel *label : window.findChildren<QLabel *>())
        if (label->isVisible() && label->buddy())
            take(label->text());
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        if (button->isVisible())
            take(button->text());
    for (const QTabBar *bar : window.findChildren<QTabBar *>())
        for (int i = 0; bar->isVisible() && i < bar->count(); ++i)
            take(bar->tabText(i));
    for (const QMenuBar *bar : window.findChildren<QMenuBar *>())
        for (const QAction *menu : bar->actions())
            take(menu->text());
}

} // namespace

/// Every text of every window has its room and its own key, whatever the language, and Tab reaches every control.
class TextsFitTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyLanguage_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"FR", "EN", "NL", "DE", "IT", "ES"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    void everyLanguage()
    {
        QFETCH(QString, language);
        Desk desk;
        QVERIFY(ApplicationFolder::takeSampleSettings(desk.session));
        desk.openSample();
        desk.session.localisation.gsLangue = language;
        QStringList cut;
        int windows = 0;
        showAllWindows(desk.session, [&](QWidget &window, const QString &name) {
            ++windows;
            onEveryTab(window, [&](const QString &tab) {
                const QString place = name + tab;
                collect<QLabel>(window, place, cut);
                collect<QAbstractButton>(window, place, cut);
                collect<QGroupBox>(window, place, cut);
                collect<QTabBar>(window, place, cut);
                collectHeaders(window, place, cut);
                collectSharedKeys(window, place, cut);
                // Inside the main window Tab stays in the window at hand.
                if (language == u"FR"_s && name != u"frmMain-2"_s)
                    collectUnreached(window, place, cut);
            });
        });
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
        QVERIFY(windows > 20);
    }
};

ZELVANTOR_SUITE(TextsFitTest)
#include "TextsFitTest.moc"
