#include "reference/frmEtiquette.h"

#include "platform/Messages.h"
#include "shell/PaperPreview.h"
#include "shell/Skin.h"
#include "ui_frmEtiquette.h"

using namespace Qt::StringLiterals;

frmEtiquette::frmEtiquette(Session &screenSession, LabelProduct product, const QString &noted, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmEtiquette>()), m_product(std::move(product))
{
    m_ui->setupUi(this);
    m_ui->imgFeuille->setPixmap(Skin::icon(u"feuille"_s).pixmap(QSize(150, 150)));
    RemplirCB(noted);
    for (QRadioButton *option : {m_ui->Option2, m_ui->Option3, m_ui->Option4, m_ui->Option5})
        connect(option, &QRadioButton::toggled, this, [this](bool chosen) {
            if (chosen)
                showMeasures();
        });
    connect(m_ui->cmdValider0, &QPushButton::clicked, this, &frmEtiquette::GenererLabel);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmEtiquette::reject);
    opened();
    showMeasures();
}

frmEtiquette::~frmEtiquette() = default;

QString frmEtiquette::sLangue() const
{
    return m_colLangue.value(m_ui->cbLangue->currentIndex());
}

void frmEtiquette::RemplirCB(const QString &noted)
{
    Reader rows = session().gCnn.read(u"SELECT * FROM REF_LANGUE_U"_s);
    while (rows.next()) {
        if (!rows.isNull(0))
            m_colLangue << rows.text(0);
        if (!rows.isNull(1))
            m_ui->cbLangue->addItem(rows.text(1));
    }
    if (!rows.result())
        session().messages->box(rows.result().message(), u"RemplirCb"_s);
    m_ui->cbLangue->setCurrentIndex(int(m_colLangue.indexOf(noted)));
}

Labels::Template frmEtiquette::chosenTemplate() const
{
    if (m_ui->Option2->isChecked())
        return Labels::Template::TwoColumns;
    if (m_ui->Option3->isChecked())
        return Labels::Template::ThreeColumns;
    return m_ui->Option4->isChecked() ? Labels::Template::FourColumns : Labels::Template::WithDescription;
}

Result frmEtiquette::LoadTemplate(PrintLayout &layout) const
{
    return PrintLayout::read(session().applicationFolder + u'/' + Labels::fileName(chosenTemplate()), layout);
}

/// What the sheet in the printer has to be like. The boxes are for reading; the layout is what counts.
void frmEtiquette::showMeasures()
{
    PrintLayout layout;
    const bool known = bool(LoadTemplate(layout));
    const PrintCells &cells = layout.cells;
    const auto show = [known](NumberBox &box, double tenths) {
        box.setNumber(known ? std::optional(tenths / 10) : std::nullopt);
    };
    show(*m_ui->txtLeft, cells.first.left());
    show(*m_ui->txtTop, cells.first.top());
    show(*m_ui->txtEcartV, cells.gapY);
    show(*m_ui->txtEcartH, cells.gapX);
    show(*m_ui->txtLongueur, cells.first.width());
    show(*m_ui->txtHauteur, cells.first.height());
    m_ui->lbModele->setText(layout.title);
}

void frmEtiquette::GenererLabel()
{
    if (PaperPreview::isOpen(VPE1, session()))
        return;
    PrintDocument document;
    document.name = windowTitle();
    if (const Result loaded = LoadTemplate(document.layout); !loaded) {
        session().messages->box(loaded.message(), u"LoadTemplate"_s);
        return;
    }
    document.fields = Labels::fields(m_product, sLangue(), chosenTemplate(), m_ui->chPrix->isChecked(),
                                     session().setting(u"MONNAIE"_s));
    PaperPreview::show(VPE1, std::move(document), session(), this);
}
