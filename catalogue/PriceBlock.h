#pragma once
#include "catalogue/PriceChain.h"

#include <QObject>

class Article;
class NumberBox;

/// Binds the price boxes of a product screen to the chain of their reactions.
class PriceBlock : public QObject {
    Q_OBJECT
public:
    explicit PriceBlock(QWidget &screen);

    PriceChain &chain() { return m_chain; }
    /// Fills the boxes of the columns that are not null, in the order of the row.
    void show(const Article &article);
    void take(Article &article) const;
    /// Empties every field, without any reaction.
    void clear();
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void wire(PriceChain::Field field);

    std::array<NumberBox *, PriceChain::fieldCount> m_boxes;
    PriceChain m_chain;
};
