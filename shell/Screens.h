#pragma once
#include <QMap>
#include <QString>
#include <optional>

class QMdiArea;
class QWidget;

/// A file that a person picked: its full path and its bare name.
struct PickedFile {
    QString path;
    QString name;
};

/// The product of a label, as it stands on its screen.
struct LabelProduct {
    QString Ean13;
    QString RefArticle;
    QString price;
    QMap<QString, QString> names; ///< by language code
    QMap<QString, QString> descriptions;
};

/// Opens the screens of other rooms for a room that may not know them.
class Screens {
public:
    virtual ~Screens() = default;

    virtual void showCatalogue(QWidget *parent) = 0; ///< the shop
    virtual void showInfo(QWidget *parent) = 0;      ///< the company data
    /// The product list, a child window of the frame; a second call brings it to the front.
    virtual void showProducts(QMdiArea *frame) = 0;
    /// The tree of the product groups, or that of the lists.
    virtual void showTree(QWidget *parent, bool bCategorie) = 0;
    virtual void showFtp(QWidget *parent) = 0;
    /// The file dialogue as the picker of one picture; nothing when it was left.
    virtual std::optional<PickedFile> pickPicture(QWidget *parent) = 0;
    /// The labels of a product, modal.
    virtual void showLabels(const LabelProduct &product, QWidget *parent) = 0;
    /// The translations of a window; true when they were changed.
    virtual bool translate(QWidget *window) = 0;
};
