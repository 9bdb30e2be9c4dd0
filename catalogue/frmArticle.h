#pragma once
#include "catalogue/Article.h"
#include "catalogue/ProductRows.h"
#include "platform/PrintEngine.h"
#include "shell/Screen.h"

#include <memory>
#include <optional>

class AttachmentBlock;
class AttributeGrid;
class BandGrid;
class BarcodeReader;
class KeyCombo;
class PriceBlock;
namespace Ui {
class frmArticle;
}

/// One product, with all that the merchant says about it. Opened with `giModeProduit` and, but for a new product,
/// `glIdProduit` set; leaves `gbRafraichirListe` for the list that opened it.
class frmArticle : public Screen {
    Q_OBJECT
public:
    frmArticle(Session &session, QWidget *parent);
    ~frmArticle() override;

    void textsLoaded() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum Mode { New = 1, Modify, Consult };

    /// What the store holds of the product, all that a save would overwrite.
    struct Stored {
        std::optional<Article> article;
        QStringList rows;
    };

    /// What stands in the controls.
    struct Entries {
        Article article;
        std::vector<ProductRows::Band> bands;
        std::vector<ProductRows::Attribute> attributes;
        bool operator==(const Entries &) const = default;
    };

    bool isMode(Mode mode) const;
    void fillCombos();
    void wire();
    void openInMode();
    void InitPico();

    void startNewProduct();
    void AfficherArticle();
    void placeCombos();
    void AfficherPrix();
    void takeNumber();
    bool hasNumber();
    void Initialiser();

    void chooseCategory();
    void chooseFamily();
    void chooseTvaV();
    bool isComplete();
    Article takeArticle() const;
    Entries entries() const;
    bool mayLeave() const;
    Stored readStored(Result &read) const;
    bool mayOverwrite();
    void finishEntries();
    void save();
    Result AjouterArticle();
    void saved();
    void report(const std::vector<Result> &failures, const QString &title) const;
    QString message(const QString &key) const;
    QString today() const;

    std::unique_ptr<Ui::frmArticle> m_ui;
    std::unique_ptr<PriceBlock> m_prices;
    std::unique_ptr<BandGrid> m_bands;
    std::unique_ptr<AttachmentBlock> m_attachments;
    std::unique_ptr<AttributeGrid> m_attributes;
    std::unique_ptr<KeyCombo> m_colCategorie;
    std::unique_ptr<KeyCombo> m_colFamille;
    std::unique_ptr<KeyCombo> m_colFournisseur;
    std::unique_ptr<KeyCombo> m_colTvaA;
    std::unique_ptr<KeyCombo> m_colTvaV;
    BarcodeReader *m_reader;
    PrintEngine VPE1;
    QString m_givenReference;     ///< of a new product, before a person types another
    bool m_isNumberStored = true; ///< whether the counter of the store stands at the number of the new product
    Entries m_opened;             ///< as they were when the screen was opened or last saved
    Stored m_stored;              ///< as it was when this screen last read or wrote it
    QString m_sCategorie;         ///< the shown names, written beside the keys
    QString m_sFamille;
};
