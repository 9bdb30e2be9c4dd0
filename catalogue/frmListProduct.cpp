#include "catalogue/frmListProduct.h"

#include "catalogue/Article.h"
#include "catalogue/KeyCombo.h"
#include "catalogue/ListOutput.h"
#include "catalogue/ProductCopies.h"
#include "catalogue/ProductNumber.h"
#include "catalogue/frmArticle.h"
#include "platform/ColumnWidths.h"
#include "platform/Messages.h"
#include "shell/Causes.h"
#include "shell/Login.h"
#include "ui_frmListProduct.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QMdiSubWindow>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

enum Column { IdProduit = 1, Reference, Last = 15 };
enum Mode { New = 1, Modify, Consult };

constexpr int hiddenColumns[] = {IdProduit, 8, 11, 12, 14, 15};
const QList<int> firstWidths = {60, 105, 235, 65, 95, 160, 105, 80, 105, 110, 80, 70, 80, 90, 90};
const QStringList headings = {QString(),       u"Référence"_s, u"Nom"_s,         u"Quantité"_s,  u"Creation Date"_s,
                              u"Famille"_s,    u"Catégorie"_s, u"Fournisseur"_s, u"Marque"_s,    u"Modèle"_s,
                              u"Prix Achat"_s, u"Marge"_s,     u"Prix vente"_s,  u"Sale date"_s, u"Buy date"_s};
const QString title = u"ZELVANTOR"_s;
const QString widthsKey = u"frmListProduit.fpSpread1"_s;

/// The first widths, none of them below that of its heading in the language of the windows.
QList<int> widthsWithHeadings(const QHeaderView &header)
{
    QList<int> widths = firstWidths;
    for (int column = 0; column < Last; ++column)
        widths[column] = std::max(widths[column], header.sectionSizeHint(column));
    return widths;
}

} // namespace

frmListProduct::frmListProduct(Session &session, QWidget *parent)
    : QWidget(parent), m_session(session), m_ui(std::make_unique<Ui::frmListProduct>())
{
    m_ui->setupUi(this);
    Spread &grid = *m_ui->fpSpread1;
    grid.resizeGrid(0, Last);
    for (int column = IdProduit; column <= Last; ++column)
        grid.setText(column, 0, headings[column - 1]);
    ScreenManners::apply(*this, m_session);
    m_droits = ChercherDroit(u"S1"_s, m_session.gsDroits);
    m_colCategorie = std::make_unique<KeyCombo>(*m_ui->cbCategory, [this] {
        m_session.glIdCategorie = m_colCategorie->key().value_or(0);
        m_colFamille->RemplirCB(m_session, u"REF_FAMILLE"_s);
    });
    m_colFamille = std::make_unique<KeyCombo>(*m_ui->cbFamille,
                                              [this] { m_session.glIdFamille = m_colFamille->key().value_or(0); });
    m_colFournisseur = std::make_unique<KeyCombo>(*m_ui->cbFournisseur, [] {});
    m_colCategorie->RemplirCB(m_session, u"REF_CATEGORIE_P"_s);
    m_ui->cmdAjouter->setEnabled(mayUse(*m_ui->cmdAjouter));
    for (const int column : {4, 11, 12, 13})
        grid.cells().setNumberColumn(column, 2);
    grid.setOperationMode(Spread::OperationMode::SingleSelect);
    grid.setBandColors(QColor(0, 0, 0), QColor(204, 253, 245));
    grid.setColumnWidths(widthsWithHeadings(*grid.horizontalHeader()));
    for (const int column : hiddenColumns)
        grid.hideColumns(column, column);
    for (int column = IdProduit; column <= Last; ++column)
        grid.widenToTitle(column);
    wire();
    wireKeys();
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setAutoDefault(true); // Enter presses it, which in a dialogue it would by itself
    Rechercher();
}

frmListProduct::~frmListProduct() = default;

/// Each right has its place in the text of the screen; the administrator has them all.
bool frmListProduct::mayUse(const QWidget &command) const
{
    if (m_session.gsLogin.toUpper() == u"ADMIN"_s)
        return true;
    const QWidget *const ordered[] = {m_ui->cmdAjouter, m_ui->cmdModifier, m_ui->cmdSupprimer, m_ui->cmdConsulter};
    for (qsizetype place = 0; place < qsizetype(std::size(ordered)); ++place)
        if (ordered[place] == &command)
            return m_droits.mid(place + 1, 1) != u"0"_s;
    return true;
}

void frmListProduct::wire()
{
    connect(m_ui->CmdRechPort, &QPushButton::clicked, this, &frmListProduct::Rechercher);
    connect(m_ui->Cmdinitialiser, &QPushButton::clicked, this, &frmListProduct::emptyFilters);
    connect(m_ui->fpSpread1, &Spread::rowSelected, this, &frmListProduct::chooseRow);
    connect(m_ui->cmdAjouter, &QPushButton::clicked, this, [this] { openProduct(New); });
    connect(m_ui->cmdModifier, &QPushButton::clicked, this, [this] { openProduct(Modify); });
    connect(m_ui->cmdConsulter, &QPushButton::clicked, this, [this] { openProduct(Consult); });
    connect(m_ui->cmdDupliquer, &QPushButton::clicked, this, &frmListProduct::Dupliquer);
    connect(m_ui->cmdSupprimer, &QPushButton::clicked, this, &frmListProduct::supprimer);
    connect(m_ui->cmdExporter, &QPushButton::clicked, this, [this] {
        ListOutput::exporter(*m_ui->fpSpread1, m_session, this);
        m_ui->fpSpread1->setFocus();
    });
    connect(m_ui->cmdImprimer, &QPushButton::clicked, this, [this] {
        ListOutput::imprimer(*m_ui->fpSpread1, m_session, this);
        m_ui->fpSpread1->setFocus();
    });
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, [this] {
        auto *frame = qobject_cast<QMdiSubWindow *>(parentWidget());
        (frame ? static_cast<QWidget *>(frame) : this)->close();
    });
}

/// Keys of the whole window, keys of the grid that a text box needs for itself, and Enter in a filter, where a button
/// that has the focus takes its own.
void frmListProduct::wireKeys()
{
    const auto press = [](QWidget *where, const QKeySequence &keys, QPushButton *button) {
        auto *shortcut = new QShortcut(keys, where);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
    };
    press(this, Qt::Key_F5, m_ui->CmdRechPort);
    press(this, QKeySequence::New, m_ui->cmdAjouter);
    press(this, Qt::Key_F2, m_ui->cmdModifier);
    press(this, Qt::ALT | Qt::Key_Return, m_ui->cmdConsulter);
    press(this, Qt::CTRL | Qt::Key_D, m_ui->cmdDupliquer);
    press(this, Qt::CTRL | Qt::Key_E, m_ui->cmdExporter);
    press(this, QKeySequence::Print, m_ui->cmdImprimer);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        press(m_ui->fpSpread1, enter, m_ui->cmdModifier);
        auto *shortcut = new QShortcut(enter, m_ui->frFiltre);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this,
                [this] { (m_ui->Cmdinitialiser->hasFocus() ? m_ui->Cmdinitialiser : m_ui->CmdRechPort)->click(); });
    }
    press(m_ui->fpSpread1, Qt::Key_Insert, m_ui->cmdAjouter);
    press(m_ui->fpSpread1, Qt::Key_Delete, m_ui->cmdSupprimer);
}

ProductSearch::Filters frmListProduct::filters() const
{
    return {m_ui->txtRef_Article->text(), m_ui->txtMarque->text(), m_colFamille->key(), m_colCategorie->key(),
            m_colFournisseur->key()};
}

void frmListProduct::Rechercher()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_ui->fpSpread1->clear();
    enableRowCommands(false);
    ProductSearch::Found found = ProductSearch::search(m_session.gCnn, filters());
    m_ui->fpSpread1->cells().fill(std::move(found.cells));
    m_ui->txtAchat->setText(ProductSearch::totalText(found.purchase));
    m_ui->txtVente->setText(ProductSearch::totalText(found.sale));
    const QString widths = m_session.setting(widthsKey);
    if (!widths.isEmpty())
        m_ui->fpSpread1->setColumnWidths(ColumnWidths::fromText(widths));
    QApplication::restoreOverrideCursor();
    if (!found.result)
        report({found.result}, u"Rechercher"_s);
}

void frmListProduct::chooseRow(int row)
{
    if (row < 1 || row > m_ui->fpSpread1->MaxRows())
        return;
    m_iLigne = row;
    if (const QString key = m_ui->fpSpread1->text(IdProduit, row); !key.isEmpty())
        m_session.glIdProduit = key.toInt();
    enableRowCommands(true);
}

void frmListProduct::enableRowCommands(bool enabled)
{
    for (QPushButton *command : {m_ui->cmdModifier, m_ui->cmdSupprimer, m_ui->cmdConsulter, m_ui->cmdDupliquer})
        command->setEnabled(enabled && mayUse(*command));
}

/// Back to the row of a product, which may have moved; where it is gone no row is chosen, and the keys go on from the
/// one in its place.
void frmListProduct::returnTo(int idProduit)
{
    Spread &grid = *m_ui->fpSpread1;
    grid.setFocus();
    const QString key = QString::number(idProduit);
    const auto isThere = [&](int row) { return grid.text(IdProduit, row) == key; };
    int row = isThere(m_iLigne) ? m_iLigne : 1;
    while (row <= grid.MaxRows() && !isThere(row))
        ++row;
    if (row <= grid.MaxRows())
        grid.setActiveCell(Reference, row);
    else if (grid.MaxRows() > 0)
        grid.selectionModel()->setCurrentIndex(
            grid.cells().index(std::min(m_iLigne, grid.MaxRows()) - 1, Reference - 1), QItemSelectionModel::NoUpdate);
}

void frmListProduct::emptyFilters()
{
    m_ui->txtRef_Article->clear();
    m_ui->txtMarque->clear();
    for (QComboBox *box : findChildren<QComboBox *>())
        box->setCurrentIndex(-1);
}

/// The product of the row may have been deleted elsewhere. A store that can't be read is not asked again.
bool frmListProduct::isStillThere()
{
    Result read;
    if (Article::read(m_session.gCnn, m_session.glIdProduit, read))
        return true;
    if (!read) {
        report({read}, u"AfficherArticle"_s);
        return false;
    }
    m_session.messages->box(m_session.localisation.Traduire(u"MESSAGES"_s, u"gone"_s), title);
    Rechercher();
    returnTo(m_session.glIdProduit);
    return false;
}

void frmListProduct::openProduct(int giModeProduit)
{
    if (giModeProduit != New && !isStillThere())
        return;
    const int chosen = m_session.glIdProduit;
    m_session.giModeProduit = giModeProduit;
    if (giModeProduit == New)
        m_session.gbRafraichirListe = false;
    frmArticle(m_session, this).exec();
    if (giModeProduit == Modify || m_session.gbRafraichirListe)
        Rechercher();
    m_session.glIdProduit = chosen; // a new product has left its number
    returnTo(chosen);
}

void frmListProduct::Dupliquer()
{
    if (!isStillThere())
        return;
    const int source = m_session.glIdProduit;
    const ProductNumber::Taken taken = ProductNumber::ChercherNumProduit(m_session.gCnn);
    report(taken.failures, u"ChercherNumProduit"_s);
    if (!taken.failures.empty() && !taken.isStored)
        return; // nothing has changed, and a locked store would be waited for again
    if (taken.number)
        report(ProductCopies::Dupliquer(m_session.gCnn, source, *taken.number,
                                        ProductNumber::reference(*taken.number, m_session.clock.today())),
               u"Dupliquer"_s);
    Rechercher();
    returnTo(source);
}

void frmListProduct::supprimer()
{
    if (!m_session.messages->riskyQuestion(m_session.localisation.Traduire(u"MESSAGES"_s, u"100"_s), title))
        return;
    report(ProductCopies::supprimer(m_session.gCnn, m_session.glIdProduit), u"cmdsupprimer"_s);
    Rechercher();
    returnTo(m_session.glIdProduit);
}

void frmListProduct::report(const std::vector<Result> &failures, const QString &method) const
{
    for (const Result &failure : failures)
        m_session.messages->box(Causes::message(failure, m_session.localisation), method);
}

void frmListProduct::closeEvent(QCloseEvent *event)
{
    const QString widths = ColumnWidths::toText(m_ui->fpSpread1->columnWidths());
    if (!widths.isEmpty())
        (void)m_session.saveSetting(widthsKey, widths); // a width that can't be kept is no reason for a message
    event->accept();
}

void frmListProduct::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton && event->modifiers() == Qt::ControlModifier)
        ScreenManners::translate(*this, m_session);
    else
        QWidget::mousePressEvent(event);
}
