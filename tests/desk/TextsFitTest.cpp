#include "docs/pictures/AllWindows.h"
#include "tests/desk/Desk.h"
#include "tests/support/Suite.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

/// Every text of every window has its room, whatever the language.
class TextsFitTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyLanguage_data();
    void everyLanguage();
};

namespace {

constexpr int headerMargin = 6;

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

} // namespace

void TextsFitTest::everyLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"FR", "EN", "NL", "DE", "IT", "ES"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TextsFitTest::everyLanguage()
{
    QFETCH(QString, language);
    Desk desk;
    QVERIFY(ApplicationFolder::takeSampleSettings(desk.session));
    desk.openSample();
    desk.session.localisation.gsLangue = language;
    QStringList cut;
    int windows = 0;
    showAllWindows(desk.session, [&](const QWidget &window, const QString &name) {
        ++windows;
        collect<QLabel>(window, name, cut);
        collect<QAbstractButton>(window, name, cut);
        collect<QGroupBox>(window, name, cut);
        collect<QTabBar>(window, name, cut);
        collectHeaders(window, name, cut);
    });
    QCOMPARE(cut.join(u'\n'), QString());
    QVERIFY(windows > 20);
}

ZELVANTOR_SUITE(TextsFitTest)
#include "TextsFitTest.moc"
