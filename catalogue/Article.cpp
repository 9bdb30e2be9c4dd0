#include "catalogue/Article.h"

#include "data/Connection.h"

using namespace Qt::StringLiterals;

namespace {

QStringList names(const QString &list)
{
    return list.split(u' ', Qt::SkipEmptyParts);
}

/// In the order in which a changed row is written.
const QStringList &changedColumns()
{
    static const QStringList columns =
        names(u"sRef sNomFR sNomEN sNomNL sNomDE sNomIT sNomES sFrais sPrixRevient sCompteA sCompteV sValeurA "
              "sValeurV sEan sGarantie sSeuil sNumSerie nQuantity sObservationFR sObservationEN sObservationNL "
              "sObservationDE sObservationIT sObservationES dDate_modification idCategorie idFamille idFournisseur "
              "idTVAA idTVAV sMarque sModele sRefFournisseur sCondition sPoids sDimension sPrixAchatHT sPrixAchatTTC "
              "sMarge sPrixVenteTTC sPrixVenteHT sLibre1 sLibre2 sLibre3 sCategorie sFamille bPrixQte idUnite "
              "bQteStock"_s);
    return columns;
}

} // namespace

QString ProtegerTexte(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', u"''"_s) + u'\'';
}

const QStringList &Article::columns()
{
    static const QStringList columns =
        names(u"idProduit sRef sNomFR sGarantie nQuantity sObservationFR dDate_creation dDate_modification idFamille "
              "idCategorie idFournisseur idTVAA sMarque sModele sRefFournisseur sCondition sPoids sDimension "
              "sPrixAchatHT sMarge sPrixVenteTTC sLibre1 sLibre2 sLibre3 sSeuil sNumSerie sNomEN sNomNL sNomDE sNomIT "
              "sNomES sFrais sPrixRevient sCompteA sCompteV sValeurA sValeurV sEan idTVAV sPrixAchatTTC sPrixVenteHT "
              "sObservationEN sObservationNL sObservationDE sObservationIT sObservationES idUnite bQteStock sCategorie "
              "sFamille bPrixQte"_s);
    return columns;
}

const QStringList &Article::languages()
{
    static const QStringList codes = names(u"FR EN NL DE IT ES"_s);
    return codes;
}

std::optional<Article> Article::read(Connection &gCnn, int idProduit, Result &result)
{
    std::optional<Article> article;
    Reader row = gCnn.read(u"SELECT T_PRODUIT."_s + columns().join(u", T_PRODUIT."_s)
                           + u" FROM T_PRODUIT WHERE (idProduit = "_s + QString::number(idProduit) + u");"_s);
    if (row.next()) {
        article.emplace();
        for (int column = 0; column < columns().size(); ++column)
            if (!row.isNull(column))
                article->setText(columns()[column], row.text(column));
    }
    result = row.result();
    return article;
}

/// Keys, ticks and the quantity go plain; an emptied quantity is a null.
QString Article::value(const QString &column) const
{
    const QString trimmed = text(column).trimmed();
    const bool plain = column.startsWith(u"id"_s) || column.startsWith(u'b') || column == u"nQuantity"_s;
    bool isNumber = false;
    (void)trimmed.toDouble(&isNumber);
    if (!plain || (!trimmed.isEmpty() && !isNumber))
        return ProtegerTexte(trimmed);
    return trimmed.isEmpty() ? u"NULL"_s : trimmed;
}

QString Article::insertStatement() const
{
    QStringList values;
    for (const QString &column : columns())
        values << value(column);
    return u"INSERT INTO  T_PRODUIT ( "_s + columns().join(u", "_s) + u" ) VALUES ("_s + values.join(u", "_s)
           + u");  "_s;
}

QString Article::updateStatement() const
{
    QStringList changes;
    for (const QString &column : changedColumns())
        changes << column + u" = "_s + value(column);
    return u"UPDATE T_PRODUIT SET "_s + changes.join(u", "_s) + u" WHERE idProduit = "_s + value(u"idProduit"_s)
           + u";"_s;
}
