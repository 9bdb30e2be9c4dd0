#pragma once
#include "catalogue/Article.h"

#include <optional>

class QLineEdit;
class QWidget;

/// Carries the columns of a product that stand in an edit box of their own to the boxes and back. Names and
/// descriptions find their box by its label or tab, which holds the language code.
namespace ArticleControls {

/// What was null in the store leaves its box as it is; so does a quantity of 0. The prices are not among them:
/// their boxes are the price block's.
void show(const Article &article, QWidget &screen);
void take(Article &article, const QWidget &screen);
/// The language of each box for a name, in their order.
QStringList languagesOfNames(const QWidget &screen);
/// Empties every edit box of the screen.
void clear(QWidget &screen);
/// Adds the currency to the titles that end in an open bracket.
void giveCurrency(const QString &gsMonnaie, QWidget &screen);
/// Letters from a to z become capitals while they are typed.
void keepCapital(QLineEdit &box);

/// The first entry without which a product is not saved.
struct Missing {
    QString message; ///< its key
    QWidget *control;
};
std::optional<Missing> missing(const QWidget &screen);

} // namespace ArticleControls
