#pragma once
#include "shell/Session.h"
#include "shop/RunReport.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

/// A product as the store holds it; a null is told apart from an empty text.
struct ProductRow {
    qint64 idProduit = 0;
    std::optional<QString> sRef;
    std::optional<QString> name;
    std::optional<QString> sPrixVenteTTC;
    std::optional<QString> description;
};

/// What the product pages read from the store. A statement that fails is reported under the name of its
/// reader and gives nothing; the run goes on without it.
class CatalogueReader {
public:
    CatalogueReader(Session &session, RunReport &report) : m_session(session), m_report(report) {}

    /// The products of a sub-group in store order, one after the other; false when there is none.
    bool eachProduct(qint64 idCategorie, qint64 idFamille, const QString &languageCode,
                     const std::function<void(const ProductRow &)> &take);
    /// Full paths of the pictures of a product, of the full (0) or the small (1) kind.
    QStringList ChercherImage(qint64 idProduit, int iSmall);
    /// The attribute table of a product; empty for a sub-group without attributes.
    QString AfficherFParam(qint64 idProduit, qint64 idFamille);

private:
    struct Attribute {
        qint64 idRef_Categorie;
        QString label;
    };
    const std::vector<Attribute> &attributes(qint64 idFamille);
    QHash<qint64, QString> values(qint64 idProduit);
    void note(const QString &reader, const Result &result);

    Session &m_session;
    RunReport &m_report;
    qint64 m_family = -1;
    std::vector<Attribute> m_attributes; ///< of `m_family`
};
