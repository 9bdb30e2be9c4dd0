#include "benches/BenchCatalogue.h"

#include "platform/Store.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int productsOfSubGroup = 100;
constexpr int subGroupsOfGroup = 10;
constexpr int attributesOfSubGroup = 4;

void demand(const Result &result, const QString &what)
{
    if (result)
        return;
    std::fprintf(stderr, "%s: %s\n", qPrintable(what), qPrintable(result.message()));
    std::exit(1);
}

QString description(int product)
{
    return u"<p>Pièce n° %1 de notre série d’atelier, façonnée à la main dans un grès clair, émaillée en deux "
           "passages puis cuite à haute température. Chaque exemplaire diffère un peu du précédent : c’est ce qui "
           "fait son charme.</p><ul><li>Passe au lave&#45;vaisselle</li><li>Contenance réelle de %2 cl</li><li>Poids "
           "&agrave; vide : %3 g</li></ul><p>Livrée dans un étui de carton recyclé, avec une carte d’entretien en six "
           "langues. Une garantie de deux ans couvre les défauts de fabrication ; les chocs et les écarts brusques "
           "de température n’en font pas partie.</p>"_s.arg(product)
               .arg(product % 90 + 10)
               .arg(product % 400 + 120);
}

void addTree(Store &store, int products)
{
    const int subGroups = (products + productsOfSubGroup - 1) / productsOfSubGroup;
    const auto add = [&store](int key, int parent, const QString &name, int level) {
        demand(store.execute(u"INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sLibelle, iNiveau) VALUES "
                             "(%1, %2, '%3', %4)"_s.arg(key)
                                 .arg(parent)
                                 .arg(name)
                                 .arg(level)),
               u"tree"_s);
    };
    for (int group = 0; group * subGroupsOfGroup < subGroups; ++group)
        add(group + 2, 1, u"Groupe %1"_s.arg(group + 2), 1);
    for (int s = 0; s < subGroups; ++s)
        add(1000 + s, s / subGroupsOfGroup + 2, u"Sous groupe %1"_s.arg(1000 + s), 2);
    for (int s = 0; s < subGroups; ++s)
        for (int a = 0; a < attributesOfSubGroup; ++a)
            add(1000000 + s * 10 + a, 1000 + s, u"Caractéristique %1"_s.arg(a + 1), 3);
}

void addProduct(Store &store, int p)
{
    const int subGroup = p / productsOfSubGroup;
    const int group = subGroup / subGroupsOfGroup;
    demand(store.execute(
               u"INSERT INTO T_PRODUIT (idProduit, sRef, sNomFR, sNomEN, sPrixVenteTTC, sPrixVenteHT, sObservationFR, "
               "sObservationEN, idCategorie, idFamille, sCategorie, sFamille, sMarque, sEan) VALUES (%1, '%2/202603', "
               "'Tasse émaillée modèle %1', 'Enamelled cup model %1', '%3.90', '%3.25', '%4', '%4', %5, %6, "
               "'Groupe %5', 'Sous groupe %6', 'ATELIER', '1004204%7')"_s.arg(p + 1)
                   .arg(p + 1, 5, 10, QChar(u'0'))
                   .arg(p % 80 + 4)
                   .arg(description(p))
                   .arg(group + 2)
                   .arg(1000 + subGroup)
                   .arg(p, 6, 10, QChar(u'0'))),
           u"product"_s);
    for (int a = 0; a < attributesOfSubGroup; ++a)
        demand(
            store.execute(u"INSERT INTO REF_EXTENSION VALUES (%1, %2, 'Valeur %3')"_s.arg(1000000 + subGroup * 10 + a)
                              .arg(p + 1)
                              .arg(p % 7)),
            u"attribute"_s);
}

void addPictures(Store &store, const QString &folder, int product, int size)
{
    for (int n = 1; n <= 2; ++n) {
        const QString path = u"%1/photos/p%2-%3.jpg"_s.arg(folder).arg(product + 1).arg(n);
        QFile file(path);
        QByteArray bytes(size, char(product + n));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != size)
            demand({1, file.errorString()}, path);
        demand(store.execute(u"INSERT INTO T_PRODUIT_IMAGE VALUES (%1, '%2', 0)"_s.arg(product + 1).arg(path)),
               u"picture"_s);
    }
}

void copyDelivered(const QString &folder)
{
    const QDir delivered(QStringLiteral(ZELVANTOR_SHARE));
    QDir().mkpath(folder + u"/img"_s);
    for (const QString &name : delivered.entryList({u"*.cda"_s}, QDir::Files))
        QFile::copy(delivered.filePath(name), folder + u'/' + name);
    const QDir img(delivered.filePath(u"img"_s));
    for (const QString &name : img.entryList(QDir::Files))
        QFile::copy(img.filePath(name), folder + u"/img/"_s + name);
}

} // namespace

void BenchCatalogue::make(const QString &folder, int products, int pictureSize)
{
    QDir().mkpath(folder + u"/photos"_s);
    copyDelivered(folder);
    Result result;
    const auto store = Store::create(folder + u"/zelvantor.mdb"_s, result);
    demand(result, folder);
    QFile schema(QStringLiteral(ZELVANTOR_SCHEMA));
    if (!schema.open(QIODevice::ReadOnly))
        demand({1, schema.errorString()}, schema.fileName());
    demand(store->executeScript(QString::fromUtf8(schema.readAll())), u"schema"_s);
    demand(store->executeScript(u"BEGIN; INSERT INTO REF_LANGUE_U VALUES ('FR','Français'),('EN','English');"
                                "INSERT INTO REF_INFO VALUES (1,'Nom','Atelier d’essai');"_s),
           u"seeds"_s);
    addTree(*store, products);
    for (int p = 0; p < products; ++p) {
        addProduct(*store, p);
        if (pictureSize > 0)
            addPictures(*store, folder, p, pictureSize);
    }
    demand(store->executeScript(u"COMMIT"_s), u"commit"_s);
}
