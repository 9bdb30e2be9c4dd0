#include "catalogue/ProductNumber.h"

#include "data/Connection.h"

#include <limits>

using namespace Qt::StringLiterals;

ProductNumber::Taken ProductNumber::ChercherNumProduit(Connection &gCnn)
{
    Taken taken;
    {
        Reader row = gCnn.read(u"SELECT Ref_Produit FROM PARAM; "_s);
        if (row.next()) {
            const qint64 next = row.isNull(0) ? 1 : row.integer(0) + 1;
            const bool fits = next <= std::numeric_limits<qint16>::max() && next >= std::numeric_limits<qint16>::min();
            if (!fits)
                taken.failures.emplace_back(6, u"Dépassement de capacité"_s);
            taken.number = fits && next != 0 ? int(next) : 1;
        }
        if (!row.result())
            taken.failures.push_back(row.result());
    }
    if (taken.number) {
        const Result moved = gCnn.execute(u"UPDATE PARAM SET Ref_Produit = "_s + QString::number(*taken.number));
        taken.isStored = bool(moved);
        if (!moved)
            taken.failures.push_back(moved);
    }
    return taken;
}

QString ProductNumber::reference(int number, const QDate &day)
{
    return u"%1/%2%3"_s.arg(number, 5, 10, QLatin1Char('0'))
        .arg(day.year(), 4, 10, QLatin1Char('0'))
        .arg(day.month(), 2, 10, QLatin1Char('0'));
}
