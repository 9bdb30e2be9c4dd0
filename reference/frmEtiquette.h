#pragma once
#include "platform/PrintEngine.h"
#include "reference/Labels.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmEtiquette;
}

/// The labels of one product: which sheet, in which language, with or without the price.
class frmEtiquette : public Screen {
    Q_OBJECT
public:
    /// `noted` is the code of the language to begin with.
    frmEtiquette(Session &session, LabelProduct product, const QString &noted, QWidget *parent);
    ~frmEtiquette() override;

    /// Code of the language chosen; empty while there is none.
    QString sLangue() const;

private:
    void RemplirCB(const QString &noted);
    void showMeasures();
    void GenererLabel();
    Labels::Template chosenTemplate() const;
    Result LoadTemplate(PrintLayout &layout) const;

    std::unique_ptr<Ui::frmEtiquette> m_ui;
    LabelProduct m_product;
    QStringList m_colLangue; ///< codes in the order of the box
    PrintEngine VPE1;
};
