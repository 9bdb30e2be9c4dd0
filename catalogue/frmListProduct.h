#pragma once
#include "catalogue/ProductSearch.h"
#include "shell/Screen.h"

#include <QWidget>

#include <memory>

class KeyCombo;
namespace Ui {
class frmListProduct;
}

/// The merchant's view on his catalogue, a window beside the others: filters, the products found, two totals and the
/// commands on the chosen product.
class frmListProduct : public QWidget {
    Q_OBJECT
public:
    frmListProduct(Session &session, QWidget *parent);
    ~frmListProduct() override;

    /// Runs the search and leaves no row chosen.
    void Rechercher();

protected:
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    bool mayUse(const QWidget &command) const;
    void wire();
    void wireKeys();
    ProductSearch::Filters filters() const;
    void chooseRow(int row);
    void enableRowCommands(bool enabled);
    void returnTo(int idProduit);
    void emptyFilters();
    bool isStillThere();
    void openProduct(int giModeProduit);
    void Dupliquer();
    void supprimer();
    void report(const std::vector<Result> &failures, const QString &method) const;

    Session &m_session;
    std::unique_ptr<Ui::frmListProduct> m_ui;
    std::unique_ptr<KeyCombo> m_colCategorie;
    std::unique_ptr<KeyCombo> m_colFamille;
    std::unique_ptr<KeyCombo> m_colFournisseur;
    QString m_droits; ///< the rights of the screen
    int m_iLigne = 0; ///< the row last chosen
};
