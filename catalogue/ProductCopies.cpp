#include "catalogue/ProductCopies.h"

#include "catalogue/Article.h"
#include "data/Connection.h"

using namespace Qt::StringLiterals;

namespace {

/// In one action: a pulled plug leaves either all of it or none.
std::vector<Result> runAll(Connection &gCnn, const QStringList &statements)
{
    StoreAction action(gCnn);
    if (!action.begun())
        return {action.begun()};
    std::vector<Result> failures = gCnn.executeAll(statements);
    if (Result ended = action.end(); !ended)
        return {ended}; // nothing is done, whatever else has failed
    return failures;
}

/// Copies rows of a table: the key gets the new number, the other columns stay.
QString copyRows(const QString &table, const QString &key, const QString &columns, int source, int target)
{
    return u"INSERT INTO "_s + table + u" ("_s + key + u", "_s + columns + u") SELECT "_s + QString::number(target)
           + u", "_s + columns + u" From "_s + table + u" WHERE ((("_s + table + u'.' + key + u")="_s
           + QString::number(source) + u"));"_s;
}

QString copyProduct(int source, int target, const QString &reference)
{
    const QStringList &columns = Article::columns(); // the key and the reference come first
    return u"INSERT INTO T_PRODUIT ("_s + columns.join(u", "_s) + u") SELECT "_s + QString::number(target) + u", '"_s
           + reference + u"', T_PRODUIT."_s + columns.mid(2).join(u", T_PRODUIT."_s)
           + u" From T_PRODUIT WHERE (((T_PRODUIT.idProduit)="_s + QString::number(source) + u"));"_s;
}

} // namespace

std::vector<Result> ProductCopies::Dupliquer(Connection &gCnn, int source, int lNumProduit, const QString &reference)
{
    const QString idProduit = u"idProduit"_s;
    return runAll(
        gCnn, {copyProduct(source, lNumProduit, reference),
               copyRows(u"T_PRODUIT_DOC"_s, idProduit, u"sDoc"_s, source, lNumProduit),
               copyRows(u"T_PRODUIT_IMAGE"_s, idProduit, u"sImage, iSmall"_s, source, lNumProduit),
               copyRows(u"T_PRODUIT_PRIX"_s, idProduit, u"iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent"_s, source,
                        lNumProduit),
               copyRows(u"REF_EXTENSION"_s, u"idRef_Produit"_s, u"idRef_Categorie, sValeur"_s, source, lNumProduit)});
}

std::vector<Result> ProductCopies::supprimer(Connection &gCnn, int glIdProduit)
{
    const QString product = QString::number(glIdProduit) + u';';
    return runAll(gCnn, {u"DELETE T_Produit.* FROM T_Produit WHERE idProduit = "_s + product,
                         u"DELETE T_PRODUIT_DOC.* FROM T_PRODUIT_DOC WHERE idproduit = "_s + product,
                         u"DELETE T_PRODUIT_IMAGE.* FROM T_PRODUIT_IMAGE WHERE idproduit = "_s + product});
}
