#include "shop/frmCatalogue.h"

#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "platform/OneLine.h"
#include "platform/Picture.h"
#include "shell/Screens.h"
#include "shop/CheckPanel.h"
#include "shop/SettingsControls.h"
#include "shop/ShopRun.h"
#include "ui_frmCatalogue.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QPointer>
#include <QTabBar>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

enum SelectionColumn { GroupTick = 1, GroupName, SubTick, SubName, IdCategorie, IdFamille, First, Last, Count };
enum ShippingColumn { MethodName = 1, MethodValue };

constexpr int themes = 30;
constexpr int shippingRows = 8;
constexpr int shippingRowHeight = 25;
constexpr QSize themePicture(720, 44);

/// The hourglass for as long as it lives.
class Busy {
public:
    Busy() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Busy() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(Busy)
};

} // namespace

frmCatalogue::frmCatalogue(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmCatalogue>()),
      m_folder(screenSession.applicationFolder + u"/temp"_s, m_report)
{
    m_ui->setupUi(this);
    m_ui->spControle->setSizes({600, 105}); // until the person moves the handle
    for (QTabWidget *tabs : {m_ui->SSTab1, m_ui->SSTab2})
        tabs->tabBar()->setAccessibleName(tabs->accessibleName());
    m_data = readShopData(session(), {}, m_report);
    fillLanguages();
    fillSelection();
    ChargerTemp();
    fillShipping();
    showSettings();
    prepareFolder();
    m_prepared = m_report;
    m_prepared.forget(Incident::LanguageFile); // looked at again by each run
    m_prepared.forget(Incident::AssetNotCopied);
    wire();
    opened();
    // The check reads every product and looks for every picture; the window shows first.
    QTimer::singleShot(0, this, &frmCatalogue::check);
}

frmCatalogue::~frmCatalogue()
{
    session().localisation.gbLangueCatalogue = false;
}

void frmCatalogue::done(int result)
{
    if (!m_running)
        Screen::done(result);
}

void frmCatalogue::wire()
{
    connect(m_ui->cbLangue, &QComboBox::currentIndexChanged, this, &frmCatalogue::chooseLanguage);
    connect(m_ui->cmdAddPict, &QPushButton::clicked, this, &frmCatalogue::chooseLogo);
    connect(m_ui->cmdSelectAll, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(m_ui->cmdDeslectAll, &QPushButton::clicked, this, [this] { tickAll(false); });
    connect(m_ui->chGratuit, &QCheckBox::toggled, this, [this](bool free) { m_ui->Picture1->setVisible(!free); });
    connect(m_ui->fpSpread3, &Spread::cellClicked, this, [this](int, int row) { chooseTheme(row); });
    connect(m_ui->fpSpread3, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { chooseTheme(index.row() + 1); });
    connect(m_ui->cmdControle, &QPushButton::clicked, this, &frmCatalogue::check);
    connect(m_ui->lstControle, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *item) { leadTo(CheckPanel::controlOf(*item), CheckPanel::rowOf(*item)); });
    connect(m_ui->cmdValider, &QPushButton::clicked, this, &frmCatalogue::generate);
    connect(m_ui->cmdFtp, &QPushButton::clicked, this, [this] { session().screens->showFtp(this); });
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmCatalogue::reject);
}

/// The whole tree is prepared at opening and not at generation: pictures of earlier runs stay in `images`, and
/// pages of what was taken out between two runs stay until the screen opens again.
void frmCatalogue::prepareFolder()
{
    const Busy busy;
    QDir().mkpath(session().applicationFolder + u"/catalog"_s);
    if (!m_folder.prepare(session().applicationFolder + u"/img"_s))
        return;
    m_folder.removeOldFiles();
    if (!m_data.info(13).trimmed().isEmpty())
        m_folder.copyLogo(session().filePath(m_data.info(13)));
}

void frmCatalogue::fillLanguages()
{
    Result read;
    m_languages = readLanguages(session().gCnn, read);
    for (const Language &language : m_languages)
        m_ui->cbLangue->addItem(language.name);
    m_ui->cbLangue->setCurrentText(m_data.language.name);
}

void frmCatalogue::chooseLanguage()
{
    if (m_ui->cbLangue->currentIndex() < 0)
        return;
    const Language &language = m_languages[size_t(m_ui->cbLangue->currentIndex())];
    m_data.language = {language.code, language.code, language.name};
    session().localisation.gsLangueCatalogue = language.code;
    m_report.forget(Incident::LanguageFile);
    checkShopLanguage(takeData(), session(), m_report);
    check();
}

void frmCatalogue::showSettings()
{
    SettingsControls::show(m_data.settings, *this);
    m_ui->lbTemp->setText(m_data.settings.lbTemp);
    m_ui->fpSpread3->setActiveCell(1, m_data.settings.lbTemp.toInt());
    m_ui->Picture1->setVisible(!m_data.settings.chGratuit);
    int row = 0;
    for (const ShippingMethod &method : m_data.settings.fpSpread12) {
        ++row;
        m_ui->fpSpread12->setText(MethodName, row, method.name);
        m_ui->fpSpread12->setText(MethodValue, row, method.value);
    }
}

void frmCatalogue::fillShipping()
{
    Spread &grid = *m_ui->fpSpread12;
    grid.setDeleteEmpties(true);
    grid.resizeGrid(shippingRows, MethodValue);
    grid.setText(MethodName, 0, u"Nom"_s);
    grid.setText(MethodValue, 0, u"Valeur"_s);
    grid.setColumnWidth(MethodName - 1, 240);
    grid.setEditTriggers(QAbstractItemView::AllEditTriggers);
    grid.verticalHeader()->setDefaultSectionSize(shippingRowHeight);
    grid.setMinimumHeight((shippingRows + 1) * shippingRowHeight + 2 * grid.frameWidth());
}

ShopSettings frmCatalogue::takeSettings() const
{
    ShopSettings settings = m_data.settings;
    SettingsControls::take(settings, *this);
    settings.sLangueHtm = m_data.language.sLangueHtm;
    settings.lbTemp = m_ui->lbTemp->text();
    settings.fpSpread12.clear();
    const Spread &grid = *m_ui->fpSpread12;
    for (int row = 1; row <= grid.MaxRows(); ++row)
        if (const ShippingMethod method{oneLine(grid.text(MethodName, row)), oneLine(grid.text(MethodValue, row)), row};
            !method.name.isEmpty() || !method.value.isEmpty())
            settings.fpSpread12.push_back(method);
    return settings;
}

void frmCatalogue::fillSelection()
{
    Result read;
    m_selection = AfficherFamille(session().gCnn, read);
    if (!read)
        session().messages->box(read.message(), u"AfficherFamille"_s);
    Spread &grid = *m_ui->fpSpread2;
    grid.resizeGrid(int(m_selection.rows.size()), Count);
    grid.cells().setColumnType(GroupName, SpreadModel::CellType::Locked);
    grid.cells().setColumnType(SubName, SpreadModel::CellType::Locked);
    grid.cells().setColumnType(GroupTick, SpreadModel::CellType::Locked);
    grid.cells().setColumnType(SubTick, SpreadModel::CellType::Locked);
    grid.setText(GroupName, 0, u"Groupe"_s);
    grid.setText(SubName, 0, u"Sous groupe"_s);
    int line = 0;
    for (const SelectionRow &row : m_selection.rows) {
        ++line;
        const bool isGroup = row.idCategorie.has_value();
        grid.cells().setCellType(isGroup ? GroupTick : SubTick, line, SpreadModel::CellType::Check);
        grid.setText(isGroup ? GroupTick : SubTick, line, u"1"_s);
        grid.setText(isGroup ? GroupName : SubName, line, row.name);
        if (isGroup) {
            grid.setText(IdCategorie, line, QString::number(*row.idCategorie));
            grid.setText(First, line, QString::number(row.first + 1));
            grid.setText(Last, line, QString::number(row.last + 1));
            grid.setText(Count, line, QString::number(row.last - row.first + 1));
        } else if (row.idFamille) {
            grid.setText(IdFamille, line, QString::number(*row.idFamille));
        }
    }
    grid.hideColumns(IdCategorie, Count);
    grid.setColumnWidth(GroupTick - 1, 32);
    grid.setColumnWidth(SubTick - 1, 32);
    grid.setColumnWidth(GroupName - 1, 260);
}

Selection frmCatalogue::takeSelection() const
{
    Selection selection = m_selection;
    int line = 0;
    for (SelectionRow &row : selection.rows)
        row.ticked = m_ui->fpSpread2->isTicked(row.idCategorie ? GroupTick : SubTick, ++line);
    return selection;
}

void frmCatalogue::tickAll(bool ticked)
{
    Spread &grid = *m_ui->fpSpread2;
    const QString value = ticked ? u"1"_s : u"0"_s;
    for (int row = 1; row <= grid.MaxRows(); ++row) {
        if (!grid.text(IdCategorie, row).isEmpty())
            grid.setText(GroupTick, row, value);
        if (!grid.text(IdFamille, row).isEmpty())
            grid.setText(SubTick, row, value);
    }
}

void frmCatalogue::ChargerTemp()
{
    Spread &grid = *m_ui->fpSpread3;
    grid.resizeGrid(themes, 1);
    grid.setIconSize(themePicture);
    grid.verticalHeader()->setDefaultSectionSize(themePicture.height() + 6);
    grid.verticalHeader()->show();
    grid.horizontalHeader()->hide();
    for (int theme = 1; theme <= themes; ++theme) {
        const QPixmap picture(session().applicationFolder + u"/img/topbkg%1.gif"_s.arg(theme));
        grid.cells().setPicture(1, theme, QIcon(picture.copy(QRect(QPoint(0, 0), themePicture))));
        grid.setText(1, theme, QString::number(theme));
    }
}

void frmCatalogue::chooseTheme(int row)
{
    if (row > 0)
        m_ui->lbTemp->setText(QString::number(row));
}

void frmCatalogue::chooseLogo()
{
    const std::optional<PickedFile> picked = session().screens->pickPicture(this);
    if (!picked)
        return;
    if (!Picture::isWhole(picked->path)) {
        session().messages->box(
            describe({Incident::LogoNotCopied, picked->name, u"not a picture"_s}, session().localisation),
            u"ZELVANTOR"_s);
        return;
    }
    m_ui->txtLogo->setText(picked->path);
    m_ui->txtFile->setText(picked->name);
    m_report.forget(Incident::LogoNotCopied);
    m_folder.copyBannerLogo(picked->path, picked->name);
    check();
}

ShopData frmCatalogue::takeData() const
{
    ShopData shop = m_data;
    shop.settings = takeSettings();
    shop.words = Traduction::read(session().localisation);
    shop.gInfo = session().gInfo;
    shop.gsLogin = session().gsLogin;
    shop.gsMonnaie = session().gsMonnaie;
    shop.year = session().clock.today().year();
    return shop;
}

void frmCatalogue::finishEditing()
{
    for (Spread *grid : {m_ui->fpSpread2, m_ui->fpSpread12})
        grid->finishEditing();
}

void frmCatalogue::check()
{
    finishEditing();
    const Busy busy;
    CheckPanel::fill(*m_ui->lstControle, m_report, checkShop(takeData(), takeSelection(), session()),
                     session().localisation);
    m_ui->lbEtat->setText(m_ui->lstControle->count() == 0 ? u"✓"_s : QString());
}

void frmCatalogue::setRunning(bool running)
{
    m_running = running;
    for (QAbstractButton *button : findChildren<QAbstractButton *>())
        if (button == m_ui->cmdValider || button == m_ui->cmdFermer || button == m_ui->cmdControle)
            button->setEnabled(!running);
}

void frmCatalogue::generate()
{
    finishEditing();
    {
        const Busy busy;
        const QPointer<QWidget> focus = focusWidget();
        m_ui->cmdFtp->setEnabled(false);
        setRunning(true);
        m_report = m_prepared; // what could not be prepared still is not there
        m_folder.checkAssets(takeData());
        m_folder.yield = [] { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
        const ShopData shop = takeData();
        checkShopLanguage(shop, session(), m_report);
        genererBoutique(shop, takeSelection(), session(), m_folder, m_report);
        (void)SaveParam(shop.settings, session(), &m_report);
        setRunning(false);
        if (focus)
            focus->setFocus(); // a button that was off has lost it
        check();
        Localisation windows = session().localisation;
        windows.gbLangueCatalogue = false;
        m_ui->lbEtat->setText(windows.Traduire(u"RUN"_s, u"done"_s)
                                  .replace(u"%1"_s, QString::number(m_folder.pages()))
                                  .replace(u"%2"_s, QString::number(m_folder.pictures()))
                                  .replace(u"%3"_s, QDir::toNativeSeparators(m_folder.path())));
    }
    session().desktop->open(m_folder.path() + u"/index.htm"_s);
    m_ui->cmdFtp->setEnabled(true);
}

void frmCatalogue::leadTo(const QString &control, int row)
{
    auto *target = control.isEmpty() ? nullptr : findChild<QWidget *>(control);
    if (!target)
        return;
    for (QWidget *page = target; page && page != this; page = page->parentWidget())
        for (QTabWidget *tabs : {m_ui->SSTab1, m_ui->SSTab2})
            if (const int index = tabs->indexOf(page); index >= 0)
                tabs->setCurrentIndex(index);
    target->setFocus();
    if (auto *grid = qobject_cast<Spread *>(target); grid && row > 0)
        grid->setActiveCell(1, row);
}
