#include "catalogue/frmArticle.h"

#include "catalogue/ArticleControls.h"
#include "catalogue/AttachmentBlock.h"
#include "catalogue/AttributeGrid.h"
#include "catalogue/BandGrid.h"
#include "catalogue/Ean13.h"
#include "catalogue/GenererFiche.h"
#include "catalogue/KeyCombo.h"
#include "catalogue/PriceBlock.h"
#include "catalogue/ProductNumber.h"
#include "catalogue/ProductPaper.h"
#include "platform/BarcodeReader.h"
#include "platform/Messages.h"
#include "platform/TextBox.h"
#include "shell/Causes.h"
#include "shell/Screens.h"
#include "ui_frmArticle.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;
using Field = PriceChain::Field;

namespace {

const QString title = u"ZELVANTOR"_s;
const QString dateForm = u"dd/MM/yyyy"_s;
constexpr qsizetype lengthOfEan = 13;

} // namespace

frmArticle::frmArticle(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmArticle>()), m_reader(new BarcodeReader(this))
{
    m_ui->setupUi(this);
    // The languages of the descriptions come before the description. The tab widget hands the focus to its bar, and
    // as a stop of its own would lead there a second time.
    m_ui->SSTab1->setFocusProxy(nullptr);
    m_ui->SSTab1->setFocusPolicy(Qt::NoFocus);
    setTabOrder(m_ui->txtDateModif, m_ui->SSTab1->tabBar());
    setTabOrder(m_ui->SSTab1->tabBar(), m_ui->txtObservation_0);
    m_ui->spArticle->setSizes({560, 420, 310});
    session().gbChoixFichier = false;
    m_prices = std::make_unique<PriceBlock>(*this);
    m_bands = std::make_unique<BandGrid>(*m_ui->fpSpread2);
    m_attributes = std::make_unique<AttributeGrid>(*m_ui->fpSpread1, session());
    m_attachments = std::make_unique<AttachmentBlock>(*this, session(), [this] { return hasNumber(); });
    m_prices->chain().bChargement = true;
    m_prices->chain().type(Field::Qte, 1);
    m_ui->txtSeuil->setNumber(1);
    opened();
    for (QLineEdit *box : {m_ui->txtRef_Article, m_ui->txtEan})
        box->setMinimumWidth(box->minimumSizeHint().width()
                             + fontMetrics().horizontalAdvance(QString(lengthOfEan, u'0')));
    wire();
    InitPico();
    fillCombos();
    openInMode();
    m_prices->chain().bChargement = false;
    m_opened = entries();
}

frmArticle::~frmArticle() = default;

void frmArticle::textsLoaded()
{
    ArticleControls::giveCurrency(session().gsMonnaie, *this);
}

/// Enter in a list opens its file and in a combo does nothing; neither saves the product. Escape asks before it throws
/// away what was typed.
void frmArticle::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !mayLeave())
        return;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !(qobject_cast<QListWidget *>(focusWidget()) || qobject_cast<QComboBox *>(focusWidget())))
        Screen::keyPressEvent(event);
}

bool frmArticle::mayLeave() const
{
    return entries() == m_opened || session().messages->riskyQuestion(message(u"leave"_s), title);
}

frmArticle::Entries frmArticle::entries() const
{
    return {takeArticle(), m_bands->bands(), m_attributes->attributes()};
}

bool frmArticle::isMode(Mode mode) const
{
    return session().giModeProduit == mode;
}

void frmArticle::fillCombos()
{
    Session &values = session();
    // A key of the product before would be stored though nothing is chosen here.
    values.glIdFamille = values.glIdCategorie = values.glIdFournisseur = values.glIdTvaA = values.glIdTvaV = 0;
    m_colCategorie = std::make_unique<KeyCombo>(*m_ui->cbCategory, [this] { chooseCategory(); });
    m_colFamille = std::make_unique<KeyCombo>(*m_ui->cbFamille, [this] { chooseFamily(); });
    m_colFournisseur = std::make_unique<KeyCombo>(
        *m_ui->cbFournisseur, [this] { session().glIdFournisseur = m_colFournisseur->key().value_or(0); });
    m_colTvaA = std::make_unique<KeyCombo>(*m_ui->cbTVAA, [this] {
        session().glIdTvaA = m_colTvaA->key().value_or(0);
        m_prices->chain().chooseTvaA(m_colTvaA->number());
    });
    m_colTvaV = std::make_unique<KeyCombo>(*m_ui->cbTvaV, [this] { chooseTvaV(); });
    m_colTvaA->takeSamePick();
    m_colTvaV->takeSamePick();
    m_colCategorie->RemplirCB(values, u"REF_CATEGORIE_P"_s);
    m_colFournisseur->RemplirCB(values, u"REF_SHIPPER"_s);
    m_colTvaA->RemplirCB(values, u"REF_TVA"_s);
    m_colTvaV->RemplirCB(values, u"REF_TVA"_s);
    m_bands->setRates(m_colTvaV->rows().texts);
    const int units = values.localisation.CompterCles(u"LUNITE"_s);
    for (int unit = 1; unit <= units; ++unit)
        m_ui->cbUnite->addItem(values.localisation.Traduire(u"LUNITE"_s, QString::number(unit)));
    m_ui->cbUnite->setCurrentIndex(0);
    m_colTvaA->choose(0);
    m_colTvaV->choose(0);
    values.glIdTvaV = m_colTvaV->key().value_or(0);
    m_bands->chooseRate(0);
}

void frmArticle::wire()
{
    for (int i = 0; i < Article::languages().size(); ++i)
        connect(findChild<QLineEdit *>(u"txtNom_%1"_s.arg(i)), &QLineEdit::textChanged, this,
                [this](const QString &text) {
                    if (text.isEmpty())
                        return;
                    m_ui->cmdValider0->setEnabled(true);
                    m_ui->cmdFiche->setEnabled(true);
                });
    ArticleControls::keepCapital(*m_ui->txtMarque);
    connect(m_ui->SSTab1, &QTabWidget::currentChanged, this, [this](int tab) {
        // The text of the other language, and not what the focus falls on in between, when its box is hidden.
        auto *box = findChild<TextBox *>(u"txtObservation_%1"_s.arg(tab));
        if (m_ui->SSTab1->isAncestorOf(focusWidget()) && !m_ui->SSTab1->tabBar()->hasFocus())
            QMetaObject::invokeMethod(box, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
    });
    connect(m_ui->cmdTrans, &QToolButton::clicked, this,
            [this] { m_ui->txtEan->setText(Ean13::fromReference(m_ui->txtRef_Article->text())); });
    connect(m_reader, &BarcodeReader::codeRead, m_ui->txtEan, &QLineEdit::setText);
    connect(m_ui->chPrix, &QCheckBox::toggled, this, [this](bool shown) {
        m_ui->fpSpread2->setVisible(shown);
        if (shown)
            m_ui->fpSpread2->setActiveCell(1, 1);
    });
    connect(m_ui->cmdEtiquette, &QPushButton::clicked, this, [this] {
        finishEntries();
        session().screens->showLabels(ProductPaper::label(*this), this);
    });
    connect(m_ui->cmdFiche, &QPushButton::clicked, this, [this] {
        finishEntries();
        GenererFiche(*this, session(), VPE1);
    });
    connect(m_ui->cmdValider0, &QPushButton::clicked, this, &frmArticle::save);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmArticle::reject);
}

void frmArticle::InitPico()
{
    m_reader->open(session().setting(u"LECTEUR"_s));
}

void frmArticle::openInMode()
{
    if (isMode(New)) {
        m_ui->cmdEtiquette->setEnabled(false);
        startNewProduct();
        return;
    }
    if (isMode(Consult))
        m_ui->cmdValider0->setEnabled(false);
    else
        m_ui->cmdEtiquette->setEnabled(true);
    AfficherArticle();
    AfficherPrix();
    session().gbRafraichirListe = true;
    session().gbPhotos = true;
    m_attachments->AfficherDocs();
    session().gbPhotos = false;
    m_attachments->AfficherDocs();
}

/// The reference and the bar code made from it follow the number, unless a person has typed others.
void frmArticle::takeNumber()
{
    const ProductNumber::Taken taken = ProductNumber::ChercherNumProduit(session().gCnn);
    report(taken.failures, u"ChercherNumProduit"_s);
    session().glIdProduit = taken.number.value_or(session().glIdProduit);
    m_isNumberStored = taken.isStored || (!taken.number && taken.failures.empty());
    const QString before =
        std::exchange(m_givenReference, ProductNumber::reference(session().glIdProduit, session().clock.today()));
    if (before.isEmpty() || m_ui->txtRef_Article->text() == before)
        m_ui->txtRef_Article->setText(m_givenReference);
    if (!before.isEmpty() && m_ui->txtEan->text() == Ean13::fromReference(before))
        m_ui->txtEan->setText(Ean13::fromReference(m_givenReference));
}

/// A store that was locked when the number was taken may have given it to another program since. Pictures and the row
/// itself only go in under a number that is this product's alone.
bool frmArticle::hasNumber()
{
    if (!isMode(New) || m_isNumberStored)
        return true;
    const bool isUntouched = entries() == m_opened;
    takeNumber();
    if (isUntouched)
        m_opened = entries();
    return m_isNumberStored;
}

/// The next number, which is taken though the product may never be saved, and what follows from it.
void frmArticle::startNewProduct()
{
    m_prices->chain().bChargement = false;
    m_givenReference.clear();
    takeNumber();
    session().gbRafraichirListe = false;
    m_ui->txtDateCreat->setText(today());
    m_ui->txtDateModif->setText(today());
    m_ui->txtObservation_0->clear();
}

void frmArticle::AfficherArticle()
{
    Result read;
    m_stored = readStored(read);
    const Article article = m_stored.article.value_or(Article());
    if (!read)
        report({read}, u"AfficherArticle"_s);
    ArticleControls::show(article, *this);
    m_prices->show(article);
    const auto giveKey = [&article](int &key, const QString &column) {
        if (article.has(column))
            key = article.text(column).toInt();
    };
    giveKey(session().glIdCategorie, u"idCategorie"_s);
    giveKey(session().glIdFamille, u"idFamille"_s);
    giveKey(session().glIdFournisseur, u"idFournisseur"_s);
    giveKey(session().glIdTvaA, u"idTVAA"_s);
    giveKey(session().glIdTvaV, u"idTVAV"_s);
    if (const int unit = article.text(u"idUnite"_s).toInt(); unit >= 0 && unit < m_ui->cbUnite->count())
        m_ui->cbUnite->setCurrentIndex(unit);
    placeCombos();
    m_ui->SSTab1->setCurrentIndex(0);
}

/// The group comes before the sub-group, whose keys it brings, and the choice of a rate counts the prices again.
void frmArticle::placeCombos()
{
    const Session &values = session();
    const int family = values.glIdFamille;
    m_colCategorie->chooseKey(values.glIdCategorie);
    m_colFamille->chooseKey(family);
    m_attributes->AfficherFParam();
    m_colFournisseur->chooseKey(values.glIdFournisseur);
    m_colTvaA->chooseKey(values.glIdTvaA);
    m_colTvaV->chooseKey(values.glIdTvaV);
}

void frmArticle::AfficherPrix()
{
    Result read;
    m_bands->show(ProductRows::readBands(session().gCnn, session().glIdProduit, read));
    if (!read)
        report({read}, u"AfficherPrix"_s);
}

void frmArticle::Initialiser()
{
    ArticleControls::clear(*this);
    m_prices->clear();
    m_ui->cmdFiche->setEnabled(false);
    session().giModeProduit = New;
    m_ui->cmdEtiquette->setEnabled(false);
    startNewProduct();
    m_ui->txtSeuil->setNumber(1);
    m_prices->chain().type(Field::Qte, 1);
    m_ui->fpSpread2->hide();
    m_ui->chPrix->setChecked(false);
    m_prices->chain().startAgain();
    m_bands->clear();
    m_ui->txtRef_Article->setFocus();
    // Also when the key that saved took the focus from the purchase price, which hands it on.
    QMetaObject::invokeMethod(m_ui->txtRef_Article, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
}

void frmArticle::chooseCategory()
{
    session().glIdCategorie = m_colCategorie->key().value_or(0);
    m_sCategorie = m_colCategorie->text();
    m_colFamille->RemplirCB(session(), u"REF_FAMILLE"_s);
}

void frmArticle::chooseFamily()
{
    session().glIdFamille = m_colFamille->key().value_or(0);
    m_sFamille = m_colFamille->text();
    m_attributes->AfficherFParam();
}

void frmArticle::chooseTvaV()
{
    PriceChain &chain = m_prices->chain();
    if (!chain.bChargement) {
        m_bands->chooseRate(m_ui->cbTvaV->currentIndex());
        session().glIdTvaV = m_colTvaV->key().value_or(0);
    }
    chain.chooseTvaV(m_colTvaV->number());
}

void frmArticle::report(const std::vector<Result> &failures, const QString &method) const
{
    for (const Result &failure : failures)
        session().messages->box(Causes::message(failure, session().localisation), method);
}

QString frmArticle::message(const QString &key) const
{
    return session().localisation.Traduire(u"MESSAGES"_s, key);
}

QString frmArticle::today() const
{
    return session().clock.today().toString(dateForm);
}
