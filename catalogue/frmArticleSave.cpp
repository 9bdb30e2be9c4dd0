// The product screen's way into the store.
#include "catalogue/ArticleControls.h"
#include "catalogue/AttributeGrid.h"
#include "catalogue/BandGrid.h"
#include "catalogue/PriceBlock.h"
#include "catalogue/ProductPaper.h"
#include "catalogue/frmArticle.h"
#include "platform/Messages.h"
#include "shell/Screens.h"
#include "ui_frmArticle.h"

using namespace Qt::StringLiterals;

namespace {

const QString title = u"ZELVANTOR"_s;

} // namespace

/// Tells what is missing, and leads to it.
bool frmArticle::isComplete()
{
    const std::optional<ArticleControls::Missing> missing = ArticleControls::missing(*this);
    if (missing) {
        session().messages->box(message(missing->message), title);
        missing->control->setFocus();
    }
    return !missing;
}

/// A key reaches a command while a cell or a box is still being typed in.
void frmArticle::finishEntries()
{
    for (Spread *grid : {m_ui->fpSpread1, m_ui->fpSpread2})
        grid->finishEditing();
    for (NumberBox *box : findChildren<NumberBox *>())
        box->complete();
}

/// Row, attributes and prices reach the store as one action; its failures are told when the store is free again.
void frmArticle::save()
{
    finishEntries();
    if (!isComplete() || !hasNumber() || !mayOverwrite())
        return;
    std::vector<Result> attributes;
    std::vector<Result> prices;
    Result article;
    {
        StoreAction action(session().gCnn);
        article = action.begun() ? AjouterArticle() : action.begun();
        if (article) {
            attributes =
                ProductRows::writeAttributes(session().gCnn, session().glIdProduit, m_attributes->attributes());
            prices = ProductRows::writeBands(session().gCnn, session().glIdProduit, m_bands->bands());
        }
        if (const Result ended = action.end(); article)
            article = ended;
    }
    if (article) {
        report(attributes, u"AjouterFParam"_s);
        report(prices, u"AjouterPrix"_s);
        saved();
    } else {
        report({article}, u"AjouterArticle"_s);
    }
    session().gbRafraichirListe = true;
}

frmArticle::Stored frmArticle::readStored(Result &read) const
{
    Connection &gCnn = session().gCnn;
    Stored stored{Article::read(gCnn, session().glIdProduit, read), {}};
    if (read)
        stored.rows = ProductRows::readStored(gCnn, session().glIdProduit, read);
    return stored;
}

/// A product that somebody else has changed or deleted since it was opened is not overwritten without a word.
bool frmArticle::mayOverwrite()
{
    if (isMode(New))
        return true;
    Result read;
    const Stored present = readStored(read);
    const bool isSame = present.rows == m_stored.rows && (isMode(Consult) || present.article == m_stored.article);
    if (!read || (present.article && isSame))
        return true; // a store that can't be read tells its failure at the save
    if (present.article)
        return session().messages->riskyQuestion(message(u"changed"_s), title);
    session().messages->box(message(u"deleted"_s), title);
    return false;
}

/// In consult mode nothing is written, and all goes on as if it had been.
Result frmArticle::AjouterArticle()
{
    if (isMode(Consult))
        return {};
    Article article = takeArticle();
    if (isMode(New))
        return session().gCnn.execute(article.insertStatement());
    article.setText(u"dDate_modification"_s, today());
    return session().gCnn.execute(article.updateStatement());
}

Article frmArticle::takeArticle() const
{
    const Session &values = session();
    Article article;
    ArticleControls::take(article, *this);
    m_prices->take(article);
    article.setNumber(u"idProduit"_s, values.glIdProduit);
    article.setNumber(u"idCategorie"_s, values.glIdCategorie);
    article.setNumber(u"idFamille"_s, values.glIdFamille);
    article.setNumber(u"idFournisseur"_s, values.glIdFournisseur);
    article.setNumber(u"idTVAA"_s, values.glIdTvaA);
    article.setNumber(u"idTVAV"_s, values.glIdTvaV);
    article.setNumber(u"idUnite"_s, m_ui->cbUnite->currentIndex());
    article.setText(u"sCategorie"_s, m_sCategorie);
    article.setText(u"sFamille"_s, m_sFamille);
    return article;
}

void frmArticle::saved()
{
    if (!isMode(New)) {
        Result read;
        m_stored = readStored(read);
        m_ui->cmdEtiquette->setEnabled(true);
    } else {
        if (session().messages->question(message(u"119"_s), title))
            session().screens->showLabels(ProductPaper::label(*this), this);
        Initialiser();
    }
    m_opened = entries();
    m_ui->cmdValider0->setEnabled(false);
}
