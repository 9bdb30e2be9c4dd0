#pragma once
#include "platform/Result.h"

#include <QString>
#include <QStringList>
#include <vector>

class Connection;

/// The rows that belong to a product beside its own: the prices by quantity and the values of its attributes.
namespace ProductRows {

/// A band of quantities, its texts as the grid shows them; the rate is a position in the list of rates.
struct Band {
    QString prixHT;
    int idTva = -1; ///< -1 where none is chosen
    QString prixTTC;
    QString iQte1;
    QString iQte2;
    bool operator==(const Band &) const = default;
};

std::vector<Band> readBands(Connection &gCnn, int glIdProduit, Result &result);
/// Rewrites the bands. One without a price without tax is skipped; one without its quantities fails, and the
/// others still go in. Gives the failures in the order of the statements.
std::vector<Result> writeBands(Connection &gCnn, int glIdProduit, const std::vector<Band> &bands);

/// An attribute of a family, with the texts of its list where it has one.
struct Attribute {
    QString key;
    QString sLibelle;
    QString sListe;
    QString idListe;
    QString sValeur;
    bool operator==(const Attribute &) const = default;
};

std::vector<Attribute> readAttributes(Connection &gCnn, int glIdFamille, Result &result);
/// The texts of a list, in the store's order.
QStringList readList(Connection &gCnn, const QString &idListe, Result &result);
QString ChercherValeur(Connection &gCnn, const QString &attribute, int glIdProduit, Result &result);
/// Rewrites the values of a product, empty ones included.
std::vector<Result> writeAttributes(Connection &gCnn, int glIdProduit, const std::vector<Attribute> &attributes);

/// All rows of both kinds as they are stored, to find out later whether somebody else has changed them.
QStringList readStored(Connection &gCnn, int glIdProduit, Result &result);

} // namespace ProductRows
