#pragma once
#include <QString>

/// One file of the shop: a bare file name and its whole text, lines ended by CR LF.
struct Page {
    QString fileName;
    QString text;
    bool indexed = false; ///< goes into the search index
    QString origin = {};  ///< what the page is of, to tell two pages of one name apart; empty for fixed pages
};

/// Takes what the generators give, one piece at a time, so that no run holds a whole shop in memory.
class ShopOutput {
public:
    virtual ~ShopOutput() = default;
    virtual void page(const Page &page) = 0;
    /// A picture of the merchant, copied unchanged to `images/<fileName>`.
    virtual void picture(const QString &sourcePath, const QString &fileName) = 0;
};
