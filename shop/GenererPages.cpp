#include "shop/GenererPages.h"

#include "shop/GrilleModeles.h"
#include "shop/ListTemplates.h"
#include "shop/PageParts.h"
#include "shop/PageTemplate.h"

using namespace Qt::StringLiterals;

namespace {

/// The picture's name in the shop: the last part of its path, whichever separator it was written with.
QString fileNameOf(const QString &path)
{
    return path.mid(std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1);
}

/// "[TAGEMAIL]" has no step here and so stays in the head of every product page.
PageTemplate productTemplate(const ShopData &data)
{
    QString text = applyReplacements(GrilleModeles::text(4, 1), PageParts::banner(data.settings));
    text = applyReplacements(
        text, PageParts::head(data, {u"[generated]"_s, u"[titre]"_s, u"[KEYWORD]"_s, u"[DESCRIPTION]"_s, u"[TAGLNG]"_s,
                                     u"[LNG]"_s, u"[AUTHOR]"_s, u"[COPYRIGHT]"_s, u"[TDSEARCH]"_s}));
    return {text, {u"[imageprod]"_s, u"[attribut]"_s, u"[description]"_s, u"[THUMB]"_s, u"[produit]"_s}};
}

PageTemplate listTemplate(const ShopData &data)
{
    const Traduction &words = data.words;
    QString text = applyReplacements(GrilleModeles::text(3, 1), PageParts::banner(data.settings));
    text = applyReplacements(
        text, PageParts::head(data, {u"[TDSEARCH]"_s, u"[titre]"_s, u"[KEYWORD]"_s, u"[DESCRIPTION]"_s, u"[TAGLNG]"_s,
                                     u"[LNG]"_s, u"[AUTHOR]"_s, u"[COPYRIGHT]"_s, u"[TAGEMAIL]"_s, u"[generated]"_s}));
    const QString header = applyReplacements(ListTemplates::headerRow(data.settings.chAchat, data.settings.chPhoto),
                                             {{u"[LREFERENCE]"_s, words(u"34"_s)},
                                              {u"[LNOM]"_s, words(u"21"_s)},
                                              {u"[LPRIX]"_s, words(u"22"_s)},
                                              {u"[LQTE]"_s, words(u"23"_s)}});
    text =
        applyReplacements(text, {{u"[LANGUAGE]"_s, languageScript(data.language.sLangueHtm)}, {u"[ENTETE]"_s, header}});
    return {text, {u"[LISTEPROD]"_s, u"[CATEGORIE]"_s}};
}

class PagesRun {
public:
    PagesRun(const ShopData &data, CatalogueReader &catalogue, ShopOutput &output)
        : m_data(data), m_catalogue(catalogue), m_output(output), m_product(productTemplate(data)),
          m_list(listTemplate(data)), m_row(ListTemplates::productRow(data.settings.chAchat, data.settings.chPhoto),
                                            {u"[refprod]"_s, u"[imagesmall]"_s, u"[reference]"_s, u"[nom]"_s,
                                             u"[prix]"_s, u"[devis]"_s, u"[transport]"_s}),
          m_code(data.language.sLangueHtm)
    {
    }

    void subGroup(const ListPage &listPage)
    {
        QString rows;
        const bool any = m_catalogue.eachProduct(listPage.idCategorie, listPage.idFamille, m_code,
                                                 [&](const ProductRow &row) { product(row, listPage, rows); });
        if (!any)
            return;
        const QString category = listPage.category + u" / "_s + listPage.family;
        m_output.page({listPage.fileName, quoteRule(m_list.fill({rows, category})), true, category});
    }

private:
    /// A null leaves the value of the product before standing: catalogues rely on it for repeated entries.
    void take(const ProductRow &row)
    {
        if (row.sRef)
            m_reference = *row.sRef;
        if (row.name)
            m_name = withoutApostrophes(*row.name);
        if (row.sPrixVenteTTC)
            m_price = *row.sPrixVenteTTC;
        if (row.description)
            m_description = withoutApostrophes(*row.description);
    }

    void product(const ProductRow &row, const ListPage &listPage, QString &rows)
    {
        take(row);
        const QString thumbnails = pictures(row.idProduit);
        const QString pageName = QString(m_reference).remove(u'/') + u".htm"_s;
        m_row.appendTo(rows, {pageName, m_picture, m_reference, m_name, m_price, m_data.gsMonnaie, u"0"});
        const QString attributes = m_catalogue.AfficherFParam(row.idProduit, listPage.idFamille);
        const QString title = m_reference + u" / "_s + m_name;
        m_output.page({pageName, m_product.fill({m_picture, attributes, m_description, thumbnails, title}), true,
                       m_reference + u" ("_s + QString::number(row.idProduit) + u')'});
    }

    /// Copies the pictures, leaves the name of the first in `m_picture` and gives the thumbnail cells.
    QString pictures(qint64 idProduit)
    {
        const QStringList paths = m_catalogue.ChercherImage(idProduit, 0);
        m_picture = paths.isEmpty() ? u"spacer.gif"_s : fileNameOf(paths.first());
        QString cells;
        for (const QString &path : paths) {
            const QString file = fileNameOf(path);
            cells += PageParts::lines({
                u"<td align='center' width='92' height='92'>"_s,
                u"    <a  href='images/"_s + file + u"' onclick='return(loadPosterImage(@images/"_s + file + u"@))'>"_s,
                u"   <img border='1'  src='images/"_s + file + u"' width='92' height='92' alt='"_s + file + u"'>"_s,
                u"   </a>"_s,
                u"   </td>"_s,
            });
            m_output.picture(path, file);
        }
        // The first goes out once more: of two pictures of one name on a product it is the one that stays.
        if (paths.size() > 1)
            m_output.picture(paths.first(), m_picture);
        return quoteRule(cells);
    }

    const ShopData &m_data;
    CatalogueReader &m_catalogue;
    ShopOutput &m_output;
    const PageTemplate m_product;
    const PageTemplate m_list;
    const PageTemplate m_row;
    const QString m_code;
    QString m_picture;
    QString m_reference;
    QString m_name;
    QString m_price;
    QString m_description;
};

} // namespace

void GenererPages(const ShopData &data, const std::vector<ListPage> &listPages, CatalogueReader &catalogue,
                  ShopOutput &output)
{
    PagesRun run(data, catalogue, output);
    for (const ListPage &listPage : listPages)
        run.subGroup(listPage);
}
