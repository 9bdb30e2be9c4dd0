#include "shell/ChargerLangue.h"

#include "platform/IniFile.h"
#include "platform/Spread.h"
#include "shell/ButtonBar.h"
#include "shell/Localisation.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *tagProperty = "Tag";

class Texts {
public:
    Texts(const QString &file, QString section) : m_section(std::move(section))
    {
        (void)m_file.load(file); // without a file every text is blank, and the French ones stay
    }
    QString of(const QString &key) const { return m_file.value(m_section, key); }
    void give(const QString &key, const std::function<void(const QString &)> &take) const
    {
        const QString text = of(key);
        if (!text.trimmed().isEmpty())
            take(text);
    }

private:
    IniFile m_file;
    QString m_section;
};

QString tagOf(const QObject &object)
{
    return object.property(tagProperty).toString();
}

template <typename Control, typename Setter>
void giveByTag(const QWidget &frm, const Texts &texts, Setter setter)
{
    for (Control *control : frm.findChildren<Control *>())
        if (const QString tag = tagOf(*control); !tag.isEmpty())
            texts.give(tag, [&](const QString &text) { (control->*setter)(text); });
}

void giveTabs(const QWidget &frm, const Texts &texts)
{
    for (QTabWidget *tabs : frm.findChildren<QTabWidget *>()) {
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->isTabVisible(i))
                texts.give(tabs->objectName() + u'_' + QString::number(i),
                           [&](const QString &text) { tabs->setTabText(i, text); });
        tabs->setCurrentIndex(0);
    }
}

void giveGrids(const QWidget &frm, const Texts &texts)
{
    for (Spread *grid : frm.findChildren<Spread *>())
        for (int column = 1; column <= grid->MaxCols(); ++column)
            texts.give(grid->objectName() + u'_' + QString::number(column), [&](const QString &text) {
                grid->setText(column, 0, text);
                grid->widenToTitle(column);
            });
}

void giveButtonBars(const QWidget &frm, const Texts &texts)
{
    for (ButtonBar *bar : frm.findChildren<ButtonBar *>()) {
        for (int header = 1; header <= bar->headerCount(); ++header) {
            const QString key = u"H_"_s + QString::number(header);
            texts.give(key, [&](const QString &text) { bar->setHeaderCaption(header, text); });
            for (int item = 1; item <= bar->itemCount(header); ++item)
                texts.give(key + u"_I_"_s + QString::number(item),
                           [&](const QString &text) { bar->setItemCaption(header, item, text); });
        }
    }
}

void giveTips(const QWidget &frm, const Texts &texts)
{
    for (QWidget *control : frm.findChildren<QWidget *>()) {
        const QString tip = control->toolTip();
        if (tip.isEmpty())
            continue;
        texts.give(u"tip_"_s + control->objectName(), [&](const QString &text) {
            if (control->accessibleName() == tip)
                control->setAccessibleName(text);
            control->setToolTip(text);
        });
    }
}

/// A mnemonic parts two letters that are measured closer together than they are drawn.
void makeRoomForMnemonics(const QWidget &frm)
{
    constexpr int kerning = 3;
    for (QLabel *label : frm.findChildren<QLabel *>())
        if (label->text().contains(u'&') && !label->wordWrap())
            label->setMinimumWidth(label->sizeHint().width() + kerning);
}

/// What a screen reader says of a box is what its label says to the eye.
void nameByLabels(const QWidget &frm)
{
    for (const QLabel *label : frm.findChildren<QLabel *>())
        if (label->buddy() && !tagOf(*label).isEmpty())
            label->buddy()->setAccessibleName(QString(label->text()).remove(u'&').trimmed());
}

} // namespace

void ChargerLangue(QWidget &frm, const Localisation &localisation)
{
    const Texts texts(localisation.fileName(localisation.gsLangue), tagOf(frm));
    frm.setWindowTitle(texts.of(u"0"_s));
    giveByTag<QLabel>(frm, texts, &QLabel::setText);
    giveByTag<QGroupBox>(frm, texts, &QGroupBox::setTitle);
    giveByTag<QAbstractButton>(frm, texts, &QAbstractButton::setText);
    for (QAction *action : frm.findChildren<QAction *>())
        if (!action->objectName().isEmpty())
            texts.give(action->objectName(), [&](const QString &text) { action->setText(text); });
    for (QMenu *menu : frm.findChildren<QMenu *>())
        texts.give(menu->objectName(), [&](const QString &text) { menu->setTitle(text); });
    giveButtonBars(frm, texts);
    giveTabs(frm, texts);
    giveGrids(frm, texts);
    giveTips(frm, texts);
    nameByLabels(frm);
    makeRoomForMnemonics(frm);
}
