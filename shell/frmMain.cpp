#include "shell/frmMain.h"

#include "data/clsConnection.h"
#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "shell/Screen.h"
#include "shell/ScreenPrint.h"
#include "shell/Screens.h"
#include "shell/Skin.h"
#include "shell/frmAbout.h"
#include "shell/frmCopies.h"
#include "shell/frmPW.h"
#include "shell/frmPays.h"
#include "ui_frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPageSetupDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"ZELVANTOR"_s;
const QString homePage = u"https://www.zelvantor.example/"_s;
constexpr double twipsOfPixel = 15; // at 96 dots per inch, 1440 twips an inch

} // namespace

frmMain::frmMain(Session &session, QWidget *parent)
    : QMainWindow(parent), m_session(session), m_ui(std::make_unique<Ui::frmMain>()), m_user(new QLabel(this)),
      m_connect(new QLabel(this))
{
    QLocale::setDefault(QLocale::c());
    m_ui->setupUi(this);
    AjouterBT();
    ScreenManners::loadTexts(*this, m_session);
    ChangerLangue();
    setWindowTitle(title);
    m_connect->setObjectName(u"connect"_s);
    m_user->setObjectName(u"Utilisateur"_s);
    m_ui->sbStatusBar->addWidget(m_connect, 1);
    m_ui->sbStatusBar->addPermanentWidget(m_user);
    AfficherEmail();
    AfficherInfo();
    AfficherInfoDoc();
    m_user->setText(m_session.gsLogin);
    m_connect->setText(m_session.gsDbPath);
    m_isAdmin = m_session.gsLogin.toUpper() == u"ADMIN"_s;
    ConnectLocal(false);
    readPosition();
    wireMenus();
    connect(m_ui->ButtonBar1, &ButtonBar::itemClicked, this, &frmMain::dispatch);
}

frmMain::~frmMain() = default;

void frmMain::AjouterBT()
{
    ButtonBar &bar = *m_ui->ButtonBar1;
    bar.addHeader(u"app"_s, title);
    bar.addItem(1, u"produit"_s, u"Produit"_s, Skin::icon(u"produit2"_s));
    bar.addItem(1, u"catalogue"_s, u"Catalogue"_s, Skin::icon(u"catalogue"_s));
    bar.addHeader(u"param"_s, u"CONFIGURATION"_s);
    bar.addItem(2, u"generale"_s, u"Générales"_s, Skin::icon(u"parametre"_s));
    bar.addItem(2, u"Regionale"_s, u"Regionale"_s, Skin::icon(u"region"_s));
    bar.addItem(2, u"password"_s, u"Password"_s, Skin::icon(u"admin"_s));
    bar.addItem(2, u"liste"_s, u"Liste"_s, Skin::icon(u"liste"_s));
    bar.addItem(2, u"categoriep"_s, u"Groupe"_s, Skin::icon(u"categoriep"_s));
}

void frmMain::ChangerLangue()
{
    // The numbers are those of the bar of a larger family of the same frame; language files stay valid by them.
    const auto text = [this](const QString &key) { return m_session.localisation.Traduire(u"MAIN"_s, key); };
    ButtonBar &bar = *m_ui->ButtonBar1;
    const auto item = [&](int header, int number, const QString &key) {
        if (const QString caption = text(key); !caption.trimmed().isEmpty())
            bar.setItemCaption(header, number, caption);
    };
    bar.setHeaderCaption(1, title);
    if (const QString caption = text(u"H_4"_s); !caption.trimmed().isEmpty())
        bar.setHeaderCaption(2, caption);
    item(1, 1, u"H_3_I_1"_s);
    item(1, 2, u"H_4_I_10"_s);
    item(2, 1, u"H_4_I_1"_s);
    item(2, 2, u"H_4_I_2"_s);
    item(2, 3, u"H_4_I_3"_s);
    item(2, 4, u"H_4_I_8"_s);
    item(2, 5, u"H_4_I_9"_s);
}

void frmMain::AfficherInfo()
{
    if (const Result read = ::AfficherInfo(m_session); !read)
        m_session.messages->box(read.message(), u"AfficherInfo"_s);
}

void frmMain::AfficherInfoDoc()
{
    m_remarks.clear();
    Reader rows = m_session.gCnn.read(u"SELECT idInfo, sInfo, sValeur From REF_REMARQUE "_s);
    while (rows.next())
        m_remarks << (rows.isNull(2) ? u" "_s : rows.text(2));
    if (!rows.result())
        m_session.messages->box(rows.result().message(), u"AfficherInfoDoc"_s);
}

void frmMain::AfficherEmail()
{
    Reader rows = m_session.gCnn.read(
        u"SELECT idServer, sServer, sUser, sPassWord, sName, sSenderName, sEmail, sSMTP FROM REF_SERVER;"_s);
    constexpr std::array<int, 6> columns = {1, 2, 3, 5, 6, 7};
    while (rows.next())
        for (size_t i = 0; i < columns.size(); ++i)
            if (!rows.isNull(columns[i]))
                m_mailServer[i] = rows.text(columns[i]);
    if (!rows.result())
        m_session.messages->box(rows.result().message(), u"AfficherEmail"_s);
}

void frmMain::ConnectLocal(bool bCopie)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    clsConnectionL connection(*m_session.messages, m_session.gsDbPath);
    connection.sDb = m_session.applicationFolder + (bCopie ? u"/dbcopy.mdb"_s : u"/zelvantor.mdb"_s);
    connection.Init_connect();
    if (connection.bLogin())
        (bCopie ? m_session.gCnnCopy : m_session.gCnnLocal) = connection.connectdb();
    else
        m_session.messages->box(u"Problème de connection\r"_s + connection.Chaineconnect, title);
    QApplication::restoreOverrideCursor();
}

void frmMain::readPosition()
{
    const auto twips = [this](const QString &name, int absent) {
        bool isNumber = false;
        const int value = m_session.settings.value(title, u"Settings"_s, name).toInt(&isNumber);
        return int((isNumber ? value : absent) / twipsOfPixel);
    };
    move(twips(u"MainLeft"_s, 1000), twips(u"MainTop"_s, 1000));
    resize(QSize(twips(u"MainWidth"_s, 6500), twips(u"MainHeight"_s, 6500)).expandedTo(minimumSizeHint()));
}

void frmMain::wireMenus()
{
    connect(m_ui->mnuImprimEcran, &QAction::triggered, this,
            [this] { ScreenPrint::start(*this, m_session, m_pageLayout); });
    connect(m_ui->mnupreview, &QAction::triggered, this, &frmMain::setUpPage);
    connect(m_ui->mnuCopies, &QAction::triggered, this, &frmMain::showCopies);
    connect(m_ui->mnQuiter, &QAction::triggered, this, [] { std::_Exit(0); });
    connect(m_ui->mnuHoriz, &QAction::triggered, this, [this] { arrangeChildren(Qt::Horizontal); });
    connect(m_ui->mnuVert, &QAction::triggered, this, [this] { arrangeChildren(Qt::Vertical); });
    connect(m_ui->mnucascade, &QAction::triggered, m_ui->mdi, &QMdiArea::cascadeSubWindows);
    connect(m_ui->miHelp, &QAction::triggered, this, &frmMain::openHelp);
    connect(m_ui->mn_homepage, &QAction::triggered, this, [this] { m_session.desktop->open(homePage); });
    connect(m_ui->miTraduire, &QAction::triggered, this, [this] { translate(windowAtWork()); });
    connect(m_ui->miAbout, &QAction::triggered, this, [this] { frmAbout(m_session, this).exec(); });
}

/// What is chosen holds for the prints of the screen until the program ends.
void frmMain::setUpPage()
{
    QPrinter printer;
    if (m_pageLayout.isValid())
        printer.setPageLayout(m_pageLayout);
    QPageSetupDialog dialog(&printer, this);
    dialog.setWindowTitle(u"Mise en page"_s);
    if (dialog.exec() == QDialog::Accepted)
        m_pageLayout = printer.pageLayout();
}

/// The child window that has the focus, else this one: the key of the menu is the key of both.
QWidget &frmMain::windowAtWork()
{
    const QMdiSubWindow *child = m_ui->mdi->activeSubWindow();
    return child && child->isAncestorOf(focusWidget()) ? *child->widget() : *this;
}

void frmMain::translate(QWidget &window)
{
    ScreenManners::translate(window, m_session);
    ChangerLangue();
    setWindowTitle(title);
}

void frmMain::dispatch(const QString &key)
{
    if (key == u"produit"_s)
        m_session.screens->showProducts(m_ui->mdi);
    else if (key == u"catalogue"_s)
        m_session.screens->showCatalogue(this);
    else if (key == u"generale"_s)
        m_session.screens->showInfo(this);
    else if (key == u"regionale"_s)
        showRegional();
    else if (key == u"password"_s)
        frmPW(m_session, this).exec();
    else if (key == u"liste"_s || key == u"categoriep"_s)
        m_session.screens->showTree(this, key == u"categoriep"_s);
}

void frmMain::showRegional()
{
    const QString before = m_session.localisation.gsLangue;
    frmPays(m_session, this).exec();
    if (m_session.localisation.gsLangue == before)
        return;
    ScreenManners::loadTexts(*this, m_session);
    ChangerLangue();
    setWindowTitle(title);
}

/// What was read from the store before it got another content is read again.
void frmMain::showCopies()
{
    frmCopies copies(m_session, this);
    copies.exec();
    if (!copies.restored)
        return;
    m_ui->mdi->closeAllSubWindows();
    AfficherEmail();
    AfficherInfo();
    AfficherInfoDoc();
}

void frmMain::arrangeChildren(Qt::Orientation orientation)
{
    const QList<QMdiSubWindow *> children = m_ui->mdi->subWindowList();
    if (children.isEmpty())
        return;
    const QSize area = m_ui->mdi->viewport()->size();
    const int count = int(children.size());
    const bool sideBySide = orientation == Qt::Horizontal;
    const QSize size =
        sideBySide ? QSize(area.width() / count, area.height()) : QSize(area.width(), area.height() / count);
    for (int i = 0; i < count; ++i) {
        children[i]->showNormal();
        children[i]->setGeometry(QRect(sideBySide ? QPoint(i * size.width(), 0) : QPoint(0, i * size.height()), size));
    }
}

void frmMain::openHelp()
{
    const QString guide = m_session.applicationFolder + u"/user_guide_n.pdf"_s;
    if (!QFileInfo::exists(guide) || !m_session.desktop->open(guide))
        m_session.messages->box(
            u"Impossible d'afficher le sommaire de l'Aide. Aucune Aide n'est associée à ce projet."_s, title);
}

/// The area keeps the brush that it began with.
void frmMain::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        m_ui->mdi->setBackground(palette().brush(QPalette::Dark));
    QMainWindow::changeEvent(event);
}

void frmMain::closeEvent(QCloseEvent *event)
{
    m_ui->mdi->closeAllSubWindows(); // each keeps what it has to keep
    event->accept();
    QLocale::setDefault(m_userLocale);
    Q_EMIT ended();
}

void frmMain::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton && event->modifiers() == Qt::ControlModifier)
        translate(*this);
    else
        QMainWindow::mousePressEvent(event);
}
