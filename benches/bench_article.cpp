// The product screen in a catalogue of 30,000 products: opened, and saved beside one bare transaction of the same
// rows on the library of the store.
#include "benches/DeskBench.h"
#include "benches/Figure.h"
#include "catalogue/Article.h"
#include "catalogue/frmArticle.h"

#include <QLineEdit>
#include <QPushButton>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int products = 30000;
constexpr int rounds = 9;
constexpr int product = 15000;

QString updateStatement(DeskBench &desk)
{
    Result read;
    const Article article = Article::read(desk.session.gCnn, product, read).value_or(Article());
    return article.updateStatement();
}

/// The statements of one save, as one durable transaction, with nothing around them.
double bareTransaction(DeskBench &desk)
{
    sqlite3 *store = nullptr;
    if (sqlite3_open(desk.session.gsDbPath.toUtf8().constData(), &store) != SQLITE_OK)
        return 0;
    sqlite3_create_collation(store, "ZELVANTOR", SQLITE_UTF8, nullptr,
                             [](void *, int n, const void *a, int m, const void *b) {
                                 const int order = std::memcmp(a, b, size_t(std::min(n, m)));
                                 return order != 0 ? order : n - m;
                             });
    const QString key = QString::number(product);
    QByteArray script = "PRAGMA synchronous=FULL; BEGIN IMMEDIATE; " + updateStatement(desk).toUtf8()
                        + " DELETE FROM REF_EXTENSION WHERE idRef_Produit = " + key.toUtf8() + ";";
    for (int attribute = 0; attribute < 4; ++attribute)
        script += "INSERT INTO REF_EXTENSION VALUES (" + QByteArray::number(1000000 + attribute) + ", " + key.toUtf8()
                  + ", 'x');";
    script += "DELETE FROM T_PRODUIT_PRIX WHERE idProduit = " + key.toUtf8() + "; COMMIT;";
    const double time = fastest(rounds, [&] { sqlite3_exec(store, script.constData(), nullptr, nullptr, nullptr); });
    sqlite3_close(store);
    return time;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Skin::apply(application);
    DeskBench desk(products);
    desk.session.giModeProduit = 2;
    desk.session.glIdProduit = product;
    const double open = fastest(rounds, [&] {
        frmArticle window(desk.session, nullptr);
        window.show();
        window.grab();
    });
    frmArticle window(desk.session, nullptr);
    window.show();
    auto *name = window.findChild<QLineEdit *>(u"txtNom_0"_s);
    auto *validate = window.findChild<QPushButton *>(u"cmdValider0"_s);
    const double save = fastest(rounds, [&] {
        name->setText(name->text() + u'x');
        validate->click();
    });
    const double bare = bareTransaction(desk);
    Figure("article, open in " + std::to_string(products) + " products", open, "ms").atMost(100);
    Figure("article, save", save, "ms").beside("a bare transaction", save / bare, 5);
    return 0;
}
