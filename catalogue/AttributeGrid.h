#pragma once
#include "catalogue/ProductRows.h"

class Spread;
struct Session;

/// The attributes of a product: the definitions of its family with the values that it has.
class AttributeGrid {
public:
    AttributeGrid(Spread &fpSpread1, Session &session);

    /// Rebuilds the grid for the family `glIdFamille`; values are looked up in modify mode only.
    void AfficherFParam();
    std::vector<ProductRows::Attribute> attributes() const;

private:
    void RemplirCBT(int row, const QString &idListe);
    QString ChercherValeur(const QString &attribute) const;

    Spread &m_grid;
    Session &m_session;
};
