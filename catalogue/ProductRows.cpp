#include "catalogue/ProductRows.h"

#include "catalogue/Article.h"
#include "data/Connection.h"
#include "platform/OneLine.h"

using namespace Qt::StringLiterals;

std::vector<ProductRows::Band> ProductRows::readBands(Connection &gCnn, int glIdProduit, Result &result)
{
    std::vector<Band> bands;
    Reader rows = gCnn.read(u"SELECT sPrixHT, idTva, sPrixTTC, iQte1, iQte2 from T_PRODUIT_PRIX WHERE idProduit = "_s
                            + QString::number(glIdProduit) + u"; "_s);
    while (rows.next())
        bands.push_back(
            {rows.text(0), rows.isNull(1) ? -1 : int(rows.integer(1)), rows.text(2), rows.text(3), rows.text(4)});
    result = rows.result();
    return bands;
}

std::vector<Result> ProductRows::writeBands(Connection &gCnn, int glIdProduit, const std::vector<Band> &bands)
{
    const QString product = QString::number(glIdProduit);
    QStringList statements{u"DELETE T_PRODUIT_PRIX.* FROM T_PRODUIT_PRIX WHERE idproduit = "_s + product + u";"_s};
    for (const Band &band : bands)
        if (!band.prixHT.isEmpty())
            statements << u"INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC) Values ("_s
                              + product + u" , "_s + band.iQte1 + u", "_s + band.iQte2 + u", "_s
                              + QString::number(band.idTva) + u", '"_s + band.prixHT + u"', '"_s + band.prixTTC
                              + u"'); "_s;
    return gCnn.executeAll(statements);
}

std::vector<ProductRows::Attribute> ProductRows::readAttributes(Connection &gCnn, int glIdFamille, Result &result)
{
    std::vector<Attribute> attributes;
    Reader rows =
        gCnn.read(u"SELECT idRef_Categorie, sLibelle, sListe, idListe  from REF_CATEGORIE_P WHERE idRef_parent = "_s
                  + QString::number(glIdFamille) + u"; "_s);
    while (rows.next()) {
        Attribute attribute{rows.text(0), rows.text(1), {}, {}, {}};
        if (!rows.isNull(2)) {
            attribute.sListe = rows.text(2);
            attribute.idListe = rows.text(3);
        }
        attributes.push_back(std::move(attribute));
    }
    result = rows.result();
    return attributes;
}

QStringList ProductRows::readList(Connection &gCnn, const QString &idListe, Result &result)
{
    QStringList texts;
    Reader rows =
        gCnn.read(u"SELECT idRef_liste, sLibelle  from REF_LISTE WHERE idRef_parent = "_s + idListe + u"; "_s);
    while (rows.next())
        if (!rows.isNull(1))
            texts << rows.text(1);
    result = rows.result();
    return texts;
}

QString ProductRows::ChercherValeur(Connection &gCnn, const QString &attribute, int glIdProduit, Result &result)
{
    Reader rows = gCnn.read(u"SELECT sValeur FROM REF_EXTENSION WHERE idRef_categorie = "_s + attribute
                            + u" AND idRef_produit = "_s + QString::number(glIdProduit) + u" "_s);
    QString value = rows.next() ? rows.text(0) : QString();
    result = rows.result();
    return value;
}

std::vector<Result> ProductRows::writeAttributes(Connection &gCnn, int glIdProduit,
                                                 const std::vector<Attribute> &attributes)
{
    const QString product = QString::number(glIdProduit);
    QStringList statements{u"DELETE REF_EXTENSION.* FROM REF_EXTENSION WHERE idRef_produit = "_s + product + u";"_s};
    for (const Attribute &attribute : attributes)
        statements << u"INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_produit, sValeur) Values ("_s + attribute.key
                          + u", "_s + product + u" , "_s + ProtegerTexte(oneLine(attribute.sValeur)) + u"); "_s;
    return gCnn.executeAll(statements);
}

QStringList ProductRows::readStored(Connection &gCnn, int glIdProduit, Result &result)
{
    const QString product = QString::number(glIdProduit);
    const QStringList statements = {
        u"SELECT iQte1, iQte2, idTva, sPrixHT, sPrixTTC FROM T_PRODUIT_PRIX WHERE idProduit = "_s + product,
        u"SELECT idRef_Categorie, sValeur FROM REF_EXTENSION WHERE idRef_Produit = "_s + product};
    QStringList texts;
    for (const QString &statement : statements) {
        Reader rows = gCnn.read(statement);
        while (rows.next())
            for (int column = 0; column < rows.columnCount(); ++column)
                texts << rows.text(column);
        if (!rows.result())
            result = rows.result();
    }
    return texts;
}
