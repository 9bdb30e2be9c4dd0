#include "shop/GrilleModeles.h"

#include <QFile>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Cell {
    int column;
    int row;
    QString file;
};

const std::array<Cell, 10> &cells()
{
    static const std::array<Cell, 10> table = {{
        {1, 1, u"home.htm"_s},
        {2, 1, u"contact.htm"_s},
        {3, 1, u"list.htm"_s},
        {4, 1, u"produit.htm"_s},
        {5, 1, u"search.htm"_s},
        {7, 1, u"menu.js"_s},
        {9, 1, u"cart.htm"_s},
        {12, 3, u"nopcart.js"_s},
        {13, 1, u"checkout_paypal.htm"_s},
        {13, 2, u"checkout_form.htm"_s},
    }};
    return table;
}

QString fileText(const QString &name)
{
    QFile file(u":/templates/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.readAll()).remove(u'\r');
    while (text.endsWith(u'\n'))
        text.chop(1);
    return text.replace(u"\n"_s, u"\r\n"_s);
}

} // namespace

QString GrilleModeles::text(int column, int row)
{
    for (const Cell &cell : cells())
        if (cell.column == column && cell.row == row)
            return fileText(cell.file) + u"\r\n"_s;
    return u"\r\n"_s;
}
