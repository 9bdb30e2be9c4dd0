#pragma once
#include "catalogue/Article.h"

class QWidget;

/// Carries the columns of a product that stand in an edit box of their own to the boxes and back. Names and
/// descriptions find their box by its label or tab, which holds the language code.
namespace ArticleControls {

/// What was null in the store leaves its box as it is; so does a quantity of 0. The prices are not among them:
/// their boxes are the price block's.
void show(const Article &article, QWidget &screen);
void take(Article &article, const QWidget &screen);
/// Empties every edit box of the screen.
void clear(QWidget &screen);

} // namespace ArticleControls
