#include "catalogue/ArticleControls.h"

#include "platform/NumberBox.h"
#include "platform/OneLine.h"
#include "platform/TextBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QSet>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

struct Pair {
    QString column;
    QString control;
};

const std::vector<Pair> &lines()
{
    static const std::vector<Pair> pairs = {
        {u"sRef"_s, u"txtRef_Article"_s},
        {u"sNumSerie"_s, u"txtNumSerie"_s},
        {u"sEan"_s, u"txtEan"_s},
        {u"dDate_creation"_s, u"txtDateCreat"_s},
        {u"dDate_modification"_s, u"txtDateModif"_s},
        {u"sMarque"_s, u"txtMarque"_s},
        {u"sModele"_s, u"txtModele"_s},
        {u"sRefFournisseur"_s, u"txtRefFour"_s},
        {u"sCondition"_s, u"txtCondition"_s},
        {u"sDimension"_s, u"txtDimension"_s},
        {u"sLibre1"_s, u"txtLibre1"_s},
        {u"sLibre2"_s, u"txtLibre2"_s},
        {u"sLibre3"_s, u"txtLibre3"_s},
        {u"sCompteA"_s, u"txtCompteA"_s},
        {u"sCompteV"_s, u"txtCompteV"_s},
    };
    return pairs;
}

const std::vector<Pair> &numbers()
{
    static const std::vector<Pair> pairs = {
        {u"sGarantie"_s, u"txtGarantie"_s}, {u"sSeuil"_s, u"txtSeuil"_s}, {u"sPoids"_s, u"txtPoids"_s}};
    return pairs;
}

const std::vector<Pair> &ticks()
{
    static const std::vector<Pair> pairs = {{u"bQteStock"_s, u"chControlStock"_s}, {u"bPrixQte"_s, u"chPrix"_s}};
    return pairs;
}

template <typename Control>
Control &find(const QWidget &screen, const QString &name)
{
    return *screen.findChild<Control *>(name);
}

/// The captions name the languages of their boxes. Where a language file has made something else of them, they say
/// nothing any more, and each box keeps the language it was drawn for.
QStringList codes(const QStringList &captions)
{
    const QSet<QString> known(captions.begin(), captions.end());
    const QStringList &languages = Article::languages();
    return known == QSet<QString>(languages.begin(), languages.end()) ? captions : languages;
}

QStringList languagesOfDescriptions(const QWidget &screen)
{
    const auto &tabs = find<QTabWidget>(screen, u"SSTab1"_s);
    QStringList captions;
    for (int i = 0; i < tabs.count(); ++i)
        captions << tabs.tabText(i);
    return codes(captions);
}

/// A text longer than its box shows its beginning.
void showFromStart(QLineEdit &box, const QString &text)
{
    box.setText(text);
    box.setCursorPosition(0);
}

} // namespace

QStringList ArticleControls::languagesOfNames(const QWidget &screen)
{
    QStringList captions;
    for (int i = 0; i < Article::languages().size(); ++i)
        captions << find<QLabel>(screen, u"lbNom_%1"_s.arg(i)).text();
    return codes(captions);
}

void ArticleControls::show(const Article &article, QWidget &screen)
{
    for (const Pair &pair : lines())
        if (article.has(pair.column))
            showFromStart(find<QLineEdit>(screen, pair.control), article.text(pair.column));
    for (const Pair &pair : numbers()) {
        if (article.has(pair.column))
            find<NumberBox>(screen, pair.control).showStored(article.text(pair.column));
    }
    const QStringList names = languagesOfNames(screen);
    const QStringList descriptions = languagesOfDescriptions(screen);
    for (int i = 0; i < Article::languages().size(); ++i) {
        if (const QString column = u"sNom"_s + names[i]; article.has(column))
            showFromStart(find<QLineEdit>(screen, u"txtNom_%1"_s.arg(i)), article.text(column));
        if (const QString column = u"sObservation"_s + descriptions[i]; article.has(column))
            find<TextBox>(screen, u"txtObservation_%1"_s.arg(i)).showText(article.text(column));
    }
    for (const Pair &pair : ticks())
        if (article.has(pair.column))
            find<QCheckBox>(screen, pair.control).setChecked(article.text(pair.column) != u"0"_s);
}

void ArticleControls::take(Article &article, const QWidget &screen)
{
    for (const Pair &pair : lines())
        article.setText(pair.column, oneLine(find<QLineEdit>(screen, pair.control).text()));
    for (const Pair &pair : numbers())
        article.setText(pair.column, find<NumberBox>(screen, pair.control).text());
    const QStringList names = languagesOfNames(screen);
    const QStringList descriptions = languagesOfDescriptions(screen);
    for (int i = 0; i < Article::languages().size(); ++i) {
        article.setText(u"sNom"_s + names[i], oneLine(find<QLineEdit>(screen, u"txtNom_%1"_s.arg(i)).text()));
        article.setText(u"sObservation"_s + descriptions[i],
                        find<TextBox>(screen, u"txtObservation_%1"_s.arg(i)).text());
    }
    for (const Pair &pair : ticks())
        article.setNumber(pair.column, find<QCheckBox>(screen, pair.control).isChecked() ? 1 : 0);
}

void ArticleControls::clear(QWidget &screen)
{
    for (QLineEdit *box : screen.findChildren<QLineEdit *>())
        box->clear();
    for (NumberBox *box : screen.findChildren<NumberBox *>())
        box->setNumber({});
    for (TextBox *box : screen.findChildren<TextBox *>())
        box->clear();
    for (QListWidget *list : screen.findChildren<QListWidget *>())
        list->clear();
}

void ArticleControls::giveCurrency(const QString &gsMonnaie, QWidget &screen)
{
    // A text that the language file lacks still has the currency of the time before.
    const auto withCurrency = [&gsMonnaie](const QString &text) -> QString {
        return text.section(u'(', 0, 0) + u'(' + gsMonnaie + u')';
    };
    for (const QString &name : {u"frAchat"_s, u"frVente"_s}) {
        auto &frame = find<QGroupBox>(screen, name);
        frame.setTitle(withCurrency(frame.title()));
    }
    auto &label = find<QLabel>(screen, u"lbPrixRevient"_s);
    label.setText(withCurrency(label.text()));
}

void ArticleControls::keepCapital(QLineEdit &box)
{
    QObject::connect(&box, &QLineEdit::textEdited, &box, [&box](QString text) {
        const int cursor = box.cursorPosition();
        for (QChar &letter : text)
            if (letter >= u'a' && letter <= u'z')
                letter = letter.toUpper();
        box.setText(text);
        box.setCursorPosition(cursor);
    });
}

std::optional<ArticleControls::Missing> ArticleControls::missing(const QWidget &screen)
{
    const auto isChosen = [&](const QString &name) { return find<QComboBox>(screen, name).currentIndex() >= 0; };
    const auto isTyped = [&](const QString &name) {
        return !oneLine(find<QLineEdit>(screen, name).text()).trimmed().isEmpty();
    };
    struct Need {
        bool met;
        QString message;
        QString control;
    };
    const Need needs[] = {{isChosen(u"cbFamille"_s), u"114"_s, u"cbFamille"_s},
                          {isChosen(u"cbCategory"_s), u"115"_s, u"cbCategory"_s},
                          {isTyped(u"txtRef_Article"_s), u"117"_s, u"txtRef_Article"_s},
                          {isTyped(u"txtNom_0"_s), u"118"_s, u"txtNom_0"_s}};
    for (const Need &need : needs)
        if (!need.met)
            return Missing{need.message, &find<QWidget>(screen, need.control)};
    return {};
}
