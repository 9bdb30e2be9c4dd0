#include "shop/CatalogueReader.h"

#include "shop/PageParts.h"
#include "shop/Replacement.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> textOrNull(const Reader &row, int column)
{
    if (row.isNull(column))
        return {};
    return row.text(column);
}

QString blankQuotes(QString text)
{
    return text.replace(u'\'', u' ').replace(u'"', u' ');
}

} // namespace

bool CatalogueReader::eachProduct(qint64 idCategorie, qint64 idFamille, const QString &languageCode,
                                  const std::function<void(const ProductRow &)> &take)
{
    // No ORDER BY: products appear in the order of the store. The price without tax is selected and not used.
    Reader row = m_session.gCnn.read(
        u"SELECT T_PRODUIT.idProduit, T_PRODUIT.sRef, T_PRODUIT.sNom"_s + languageCode
            + u",  T_PRODUIT.sPrixVenteHT , T_PRODUIT.sPrixVenteTTC, T_PRODUIT.sObservation"_s + languageCode
            + u" FROM T_PRODUIT WHERE T_PRODUIT.idCategorie = ? AND T_PRODUIT.idFamille = ?;"_s,
        {idCategorie, idFamille});
    bool any = false;
    while (row.next()) {
        any = true;
        take({row.integer(0), textOrNull(row, 1), textOrNull(row, 2), textOrNull(row, 4), textOrNull(row, 5)});
    }
    note(u"GenererPages"_s, row.result());
    return any;
}

QStringList CatalogueReader::ChercherImage(qint64 idProduit, int iSmall)
{
    QStringList paths;
    Reader row = m_session.gCnn.read(u"SELECT * from T_PRODUIT_IMAGE where idproduit = ? AND iSmall = ?; "_s,
                                     {idProduit, iSmall});
    while (row.next())
        if (!row.isNull(1))
            paths << m_session.filePath(row.text(1));
    note(u"ChercherImage"_s, row.result());
    return paths;
}

const std::vector<CatalogueReader::Attribute> &CatalogueReader::attributes(qint64 idFamille)
{
    if (m_family == idFamille)
        return m_attributes;
    m_family = idFamille;
    m_attributes.clear();
    Reader row = m_session.gCnn.read(
        u"SELECT idRef_Categorie, sLibelle, sListe, idListe  from REF_CATEGORIE_P WHERE idRef_parent = ?; "_s,
        {idFamille});
    while (row.next())
        m_attributes.push_back({row.integer(0), withoutApostrophes(row.text(1))});
    note(u"AfficherFParam"_s, row.result());
    return m_attributes;
}

/// All values of a product at once: of several rows of one attribute the first counts, also when it is null.
QHash<qint64, QString> CatalogueReader::values(qint64 idProduit)
{
    QHash<qint64, QString> found;
    Reader row = m_session.gCnn.read(u"SELECT idRef_categorie, sValeur FROM REF_EXTENSION WHERE idRef_produit = ? "_s,
                                     {idProduit});
    while (row.next()) {
        const qint64 attribute = row.integer(0);
        if (!found.contains(attribute))
            found.insert(attribute, blankQuotes(row.text(1)));
    }
    note(u"ChercherValeur"_s, row.result());
    return found;
}

QString CatalogueReader::AfficherFParam(qint64 idProduit, qint64 idFamille)
{
    const std::vector<Attribute> &rows = attributes(idFamille);
    if (rows.empty())
        return {};
    static const QString head = toDoubleQuotes(PageParts::lines({
        u"<table border='0' width='100%' id='table7'>"_s,
        u"    <tr>"_s,
        u"        <td>&nbsp;</td>"_s,
        u"    </tr>"_s,
        u"</table>"_s,
        u"<table border='1' width='100%' id='table3'>"_s,
    }));
    const QHash<qint64, QString> values = this->values(idProduit);
    QString table = head;
    for (const Attribute &attribute : rows) {
        table += "<tr>\r\n<td width=\"250\" bgcolor=\"#CCCCFF\"><b>"_L1 + attribute.label
                 + "</b></td>\r\n<td bgcolor=\"#CCCCFF\">"_L1 + values.value(attribute.idRef_Categorie)
                 + "</td>\r\n</tr>\r\n"_L1;
    }
    table += "</table>\r\n"_L1;
    return table;
}

void CatalogueReader::note(const QString &reader, const Result &result)
{
    if (!result)
        m_report.add(Incident::StoreNotRead, reader, result.message());
}
