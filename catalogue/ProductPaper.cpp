#include "catalogue/ProductPaper.h"

#include "catalogue/ArticleControls.h"
#include "platform/Spread.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

QString line(const QWidget &screen, const QString &name)
{
    return screen.findChild<QLineEdit *>(name)->text();
}

QString chosen(const QWidget &screen, const QString &name)
{
    return screen.findChild<QComboBox *>(name)->currentText();
}

QString nameOf(const QWidget &screen, int i)
{
    return line(screen, u"txtNom_%1"_s.arg(i));
}

QString descriptionOf(const QWidget &screen, int i)
{
    return screen.findChild<QPlainTextEdit *>(u"txtObservation_%1"_s.arg(i))->toPlainText();
}

} // namespace

LabelProduct ProductPaper::label(const QWidget &screen)
{
    LabelProduct product;
    product.Ean13 = line(screen, u"txtEan"_s);
    product.RefArticle = line(screen, u"txtRef_Article"_s);
    product.price = line(screen, u"txtPrixVente"_s);
    const QStringList codes = ArticleControls::languagesOfNames(screen);
    for (int i = 0; i < codes.size(); ++i) {
        product.names.insert(codes[i], nameOf(screen, i));
        product.descriptions.insert(codes[i], descriptionOf(screen, i));
    }
    return product;
}

PrintFields ProductPaper::fields(const QWidget &screen, const Session &session)
{
    PrintFields fields = {
        {u"Ean13"_s, line(screen, u"txtEan"_s)},
        {u"RefArticle"_s, line(screen, u"txtRef_Article"_s)},
        {u"PrixTTC"_s, line(screen, u"txtPrixVente"_s) + u' ' + session.gsMonnaie},
        {u"Marque"_s, line(screen, u"txtMarque"_s)},
        {u"Model"_s, line(screen, u"txtModele"_s)},
        {u"copyright"_s, QString::number(session.clock.today().year()) + u'/' + session.gInfo.value(0)},
        {u"SSCategorie"_s, chosen(screen, u"cbCategory"_s) + u" / "_s + chosen(screen, u"cbFamille"_s)}};
    if (const int i = int(Article::languages().indexOf(session.localisation.gsLangue)); i >= 0) {
        fields.insert(u"Nom"_s, nameOf(screen, i));
        fields.insert(u"dDescription"_s, descriptionOf(screen, i));
    }
    return fields;
}

QString ProductPaper::firstPicture(const QWidget &screen, const Session &session)
{
    const auto *pictures = screen.findChild<QListWidget *>(u"lstPicture"_s);
    return pictures->count() > 0 ? session.filePath(pictures->item(0)->text()) : QString();
}

QList<ProductSheet::Row> ProductPaper::attributes(const QWidget &screen)
{
    auto &grid = *screen.findChild<Spread *>(u"fpSpread1"_s);
    grid.finishEditing();
    QList<ProductSheet::Row> rows;
    for (int row = 1; row <= grid.MaxRows(); ++row)
        rows << ProductSheet::Row{grid.text(1, row), grid.text(2, row)};
    return rows;
}
