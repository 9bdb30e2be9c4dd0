#include "ftp/frmFTP.h"

#include "ftp/frmCertificate.h"
#include "ftp/frmConnect.h"
#include "ftp/frmTransfer.h"
#include "platform/Desktop.h"
#include "platform/FtpClient.h"
#include "platform/Messages.h"
#include "shell/Skin.h"
#include "ui_frmFTP.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QStorageInfo>

#include <tuple>

using namespace Qt::StringLiterals;

frmFTP::frmFTP(Session &screenSession, QWidget *parent, std::unique_ptr<FtpSession> ftp)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmFTP>()),
      m_ftp(ftp ? std::move(ftp) : std::make_unique<FtpClient>()), m_desk(*m_ftp, *this), m_remote(m_desk),
      m_local(m_desk), m_queue(m_desk, m_remote, m_local)
{
    m_ui->setupUi(this);
    m_ui->spFtp->setSizes({420, 30, 110, 90});
    m_ui->txtLog->setMaximumBlockCount(5000);
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    setMinimumSize(400, 267);
    giveTips();
    opened();
    setWindowTitle(FtpSettings::application);
    wireCommands();
    wirePanes();
    wireDirectories();
    m_desk.listen();
    m_desk.Ftp1.onCertificate = [this](const FtpCertificate &certificate) { return decideCertificate(certificate); };
    load();
}

frmFTP::~frmFTP()
{
    QFile::remove(m_desk.sViewFile);
    if (isConnected())
        m_desk.Ftp1.Close();
}

/// A transfer that runs is ended first; the window closes when its command has come back.
void frmFTP::done(int result)
{
    if (m_running > 0) {
        m_closing = true;
        m_desk.transfer.bCancel = true;
        m_desk.isStopped = true;
        m_desk.Ftp1.Close();
        return;
    }
    Screen::done(result);
}

/// Escape is pressed by mistake more easily than the window is closed.
void frmFTP::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_running > 0
        && !confirm(session().localisation.Traduire(u"ZELVANTORFTP"_s, u"25"_s), FtpSettings::application))
        return;
    Screen::keyPressEvent(event);
}

void frmFTP::load()
{
    m_desk.settings = FtpSettings::load(session().settings);
    const QString temp = qEnvironmentVariable("TEMP");
    m_desk.sViewFile = (temp.isEmpty() ? QDir::tempPath() : temp) + QDir::separator() + u"sFile"_s;
    m_desk.transfer.bCancel = true;
    EnableCommands(true, false, true, true, true);
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes())
        if (volume.isReady() && !volume.isReadOnly())
            m_ui->cmbLocalDir->addItem(Panes::NormalizePath(volume.rootPath(), false));
    // A shop that was never generated has no such folder yet.
    std::ignore = m_local.showFolder(session().applicationFolder + QDir::separator() + u"temp"_s);
    showLocalDir(m_desk.localDir);
    m_ui->cmdAbort->setEnabled(false);
    m_ui->lvwLocal->setFocus();
    UpdateCommands();
}

/// Keys 1 to 8 of the section are the tips of the tool bar, in the order of its buttons.
void frmFTP::giveTips()
{
    struct Tool {
        QAction *action;
        const char16_t *icon;
    };
    const Tool tools[] = {{m_ui->NewFolder, u"nouveaudossier"}, {m_ui->ViewFile, u"afficher"},
                          {m_ui->DeleteFiles, u"supprimer"},    {m_ui->SelectAll, u"toutselectionner"},
                          {m_ui->RenameFile, u"renommer"},      {m_ui->Cdup, u"ftp_cdup"},
                          {m_ui->connect, u"connecter"},        {m_ui->Refresh, u"rafraichir"}};
    int key = 0;
    for (const Tool &tool : tools) {
        tool.action->setIcon(Skin::icon(QString::fromUtf16(tool.icon)));
        const QString tip = session().localisation.Traduire(u"ZELVANTORFTP"_s, QString::number(++key));
        tool.action->setToolTip(tip.isEmpty() ? tool.action->text() : tip);
    }
    const std::pair<QToolButton *, QString> ways[] = {{m_ui->cmdAjouter, u"23"_s}, {m_ui->cmdRetirer, u"24"_s}};
    for (const auto &[button, text] : ways) {
        const QString tip = session().localisation.Traduire(u"ZELVANTORFTP"_s, text);
        button->setToolTip(tip.isEmpty() ? button->toolTip() : tip);
        button->setAccessibleName(button->toolTip());
    }
}

void frmFTP::wireCommands()
{
    const auto on = [this](QAction *action, void (frmFTP::*command)()) {
        QObject::connect(action, &QAction::triggered, this,
                         [this, command] { run([this, command] { (this->*command)(); }); });
    };
    for (QAction *login : {m_ui->mnuLogin, m_ui->connect})
        QObject::connect(login, &QAction::triggered, this, [this] { run([this] { ShowSettings(true); }); });
    QObject::connect(m_ui->mnuLogout, &QAction::triggered, this, [this] {
        run([this] {
            if (isConnected())
                m_remote.logout();
            m_ui->cmbRemoteDir->clear();
            EnableCommands(true, false, true, true, true);
        });
    });
    QObject::connect(m_ui->mnuClose, &QAction::triggered, this, [this] { m_desk.Ftp1.Close(); });
    QObject::connect(m_ui->mnuExit, &QAction::triggered, this, &frmFTP::reject);
    QObject::connect(m_ui->mnuSettings, &QAction::triggered, this, [this] { ShowSettings(false); });
    QObject::connect(m_ui->cmdAbort, &QPushButton::clicked, this, [this] {
        m_ui->cmdAbort->setEnabled(false);
        m_desk.isStopped = true;
        m_desk.Ftp1.Abort();
    });
    on(m_ui->NewFolder, &frmFTP::makeFolder);
    on(m_ui->mnuMakeDirectory, &frmFTP::makeFolder);
    on(m_ui->DeleteFiles, &frmFTP::remove);
    on(m_ui->mnuDelete, &frmFTP::remove);
    on(m_ui->Refresh, &frmFTP::refresh);
    on(m_ui->mnuRefresh, &frmFTP::refresh);
    on(m_ui->RenameFile, &frmFTP::rename);
    on(m_ui->mnuRename, &frmFTP::rename);
    on(m_ui->ViewFile, &frmFTP::view);
    on(m_ui->mnuView, &frmFTP::view);
    on(m_ui->SelectAll, &frmFTP::selectAll);
    on(m_ui->mnuSelectAll, &frmFTP::selectAll);
    on(m_ui->Cdup, &frmFTP::up);
}

void frmFTP::wirePanes()
{
    struct Side {
        FtpPane *pane;
        QToolButton *transfer;
        void (frmFTP::*open)(int row);
        bool (frmFTP::*enter)(int row);
    };
    for (const Side &side : {Side{m_ui->lvwLocal, m_ui->cmdAjouter, &frmFTP::openLocal, &frmFTP::enterLocal},
                             Side{m_ui->lvwRemote, m_ui->cmdRetirer, &frmFTP::openRemote, &frmFTP::enterRemote}}) {
        FtpPane *pane = side.pane;
        const bool remote = pane == m_ui->lvwRemote;
        const auto openRow = [this, open = side.open](int row) { run([this, open, row] { (this->*open)(row); }); };
        QObject::connect(pane, &FtpPane::rowOpened, this, openRow);
        QObject::connect(pane, &FtpPane::rowEntered, this,
                         [this, enter = side.enter](int row) { run([this, enter, row] { (this->*enter)(row); }); });
        QObject::connect(side.transfer, &QToolButton::clicked, this, [pane, openRow] { openRow(pane->currentRow()); });
        QObject::connect(pane, &FtpPane::deletePressed, this, [this] { run([this] { remove(); }); });
        QObject::connect(pane, &QTreeWidget::itemSelectionChanged, this, &frmFTP::UpdateCommands);
        QObject::connect(pane, &FtpPane::menuWanted, this, [this, remote](const QPoint &place) {
            if (m_running > 0 || (remote && !isConnected()))
                return;
            UpdateCommands();
            m_ui->mnuActions->popup(place);
        });
        QObject::connect(pane, &FtpPane::nameEdited, this,
                         [this, pane, remote](int row, const QString &before, const QString &name) {
                             bool done = false;
                             run([&] { done = remote ? m_remote.rename(row, name) : m_local.rename(row, name); });
                             if (!done && pane->topLevelItem(row))
                                 pane->topLevelItem(row)->setText(0, before);
                         });
        QObject::connect(pane, &FtpPane::dragBegun, this, [this, pane] {
            m_dragQueued = m_running == 0;
            if (m_dragQueued)
                queue(*pane);
        });
        QObject::connect(pane, &FtpPane::dragLeft, this, [this, remote] {
            if (m_running == 0)
                m_queue.UnmarkQueue(!remote);
        });
        QObject::connect(pane, &FtpPane::rowsDropped, this, [this, pane](FtpPane *source) {
            // One that began during a transfer has no queue of its own.
            if (m_dragQueued)
                run([this, pane, source] { dropped(*pane, source); });
            pane->forgetDropRow();
        });
        QObject::connect(pane->header(), &QHeaderView::sectionClicked, this, [this, remote](int column) {
            if (m_running > 0 || (remote && !isConnected()))
                return;
            remote ? m_remote.sortBy(PaneColumn(column)) : m_local.sortBy(PaneColumn(column));
        });
        pane->header()->resizeSection(0, remote ? 200 : 230);
        pane->header()->resizeSection(1, 85);
        if (remote)
            pane->header()->resizeSection(2, 120);
    }
    for (QWidget *list : std::initializer_list<QWidget *>{m_ui->lvwLocal, m_ui->lvwRemote, m_ui->lvwStatus})
        list->installEventFilter(this);
    m_ui->lvwStatus->header()->setSectionsClickable(true);
    m_ui->lvwStatus->header()->resizeSection(1, 300);
    m_ui->lvwStatus->header()->resizeSection(4, 300);
    QObject::connect(m_ui->lvwStatus->header(), &QHeaderView::sectionClicked, this,
                     [this](int column) { m_ui->lvwStatus->sortItems(column, Qt::AscendingOrder); });
}

void frmFTP::wireDirectories()
{
    const auto onChoice = [this](QComboBox *box, void (frmFTP::*choose)(const QString &)) {
        box->setCompleter(nullptr); // it would put a folder into the box that nobody chose
        box->setInsertPolicy(QComboBox::NoInsert);
        const auto chosen = [this, choose](const QString &directory) {
            run([this, choose, directory] { (this->*choose)(directory); });
        };
        QObject::connect(box, &QComboBox::textActivated, this, chosen);
        // For a text of its history the box tells by itself.
        QObject::connect(box->lineEdit(), &QLineEdit::returnPressed, this, [box, chosen] {
            if (box->findText(box->currentText(), Qt::MatchFixedString | Qt::MatchCaseSensitive) < 0)
                chosen(box->currentText());
        });
    };
    onChoice(m_ui->cmbLocalDir, &frmFTP::chooseLocal);
    onChoice(m_ui->cmbRemoteDir, &frmFTP::chooseRemote);
    QObject::connect(m_ui->cmbLocalDir->lineEdit(), &QLineEdit::textEdited, this, [this](const QString &directory) {
        run([this, directory] { std::ignore = m_local.showFolder(directory); });
    });
}

void frmFTP::chooseLocal(const QString &directory)
{
    m_local.DoLocalRefresh(directory);
    addToHistory(*m_ui->cmbLocalDir, m_desk.localDir);
}

void frmFTP::chooseRemote(const QString &directory)
{
    if (!isConnected())
        return;
    // What the history holds was read once under this very name; only a typed text is put right.
    const bool isKnown = m_ui->cmbRemoteDir->findText(directory, Qt::MatchFixedString | Qt::MatchCaseSensitive) >= 0;
    const QString path = isKnown ? directory : Panes::NormalizePath(directory, true);
    if (const Result filled = m_remote.FillRemoteList(path); !filled)
        m_desk.ShowFtpError(filled);
    addToHistory(*m_ui->cmbRemoteDir, m_desk.remoteDir);
}

void frmFTP::run(const std::function<void()> &command)
{
    if (m_running > 0 || m_desk.Ftp1.Busy())
        return;
    ++m_running;
    command();
    --m_running;
    enableAbort(false); // the count of the last bytes may come behind the reply that ended them
    if (m_closing)
        reject();
    else
        UpdateCommands();
}

bool frmFTP::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        m_focus = object == m_ui->lvwRemote ? Focus::Remote : object == m_ui->lvwLocal ? Focus::Local : Focus::Status;
        UpdateCommands();
    } else if (event->type() == QEvent::KeyPress && object == m_ui->lvwStatus
               && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        deleteQueueRows();
        return true;
    }
    return Screen::eventFilter(object, event);
}

void frmFTP::ShowSettings(bool forLogin)
{
    frmConnect(session(), m_desk, !forLogin && isConnected(), this).exec();
    if (forLogin && !m_desk.transfer.bCancel)
        m_remote.login();
    m_desk.transfer.bCancel = false;
}

/// A certificate that was taken for good passes as long as it stays the same.
bool frmFTP::decideCertificate(const FtpCertificate &certificate)
{
    const FtpCertificates::Known known = FtpCertificates::check(session().settings, certificate);
    if (known == FtpCertificates::Known::Same)
        return true;
    const QString server = FtpCertificates::serverOf(certificate);
    const bool isOther = m_accepted.value(server, certificate.fingerprint) != certificate.fingerprint;
    frmCertificate question(session(), certificate, isOther || known == FtpCertificates::Known::Changed, this);
    if (question.exec() != QDialog::Accepted)
        return false;
    m_accepted.insert(server, certificate.fingerprint);
    if (question.forGood())
        if (const Result kept = FtpCertificates::keep(session().settings, certificate); !kept)
            warn(kept.message());
    return true;
}

void frmFTP::byFocus(const std::function<void()> &remote, const std::function<void()> &local)
{
    if (m_focus != Focus::Remote)
        local();
    else if (isConnected())
        remote();
}

void frmFTP::makeFolder()
{
    if (m_focus != Focus::Status)
        byFocus([this] { m_remote.NewRemoteFolder(); }, [this] { m_local.NewLocalFolder(); });
}

void frmFTP::remove()
{
    if (m_focus == Focus::Status) {
        deleteQueueRows();
        return;
    }
    byFocus(
        [this] {
            queue(*m_ui->lvwRemote);
            m_remote.DeleteRemote(m_desk.remoteDir, m_queue.items());
            m_queue.UnmarkQueue(false);
        },
        [this] {
            queue(*m_ui->lvwLocal);
            m_local.DeleteLocal(m_queue.items());
            m_queue.UnmarkQueue(true);
        });
}

void frmFTP::refresh()
{
    byFocus(
        [this] {
            if (const Result done = m_remote.DoRemoteRefresh(m_desk.Ftp1.CurrentDirectory()); !done)
                m_desk.ShowFtpError(done);
        },
        [this] { m_local.DoLocalRefresh(m_desk.localDir); });
}

void frmFTP::rename()
{
    byFocus([this] { m_ui->lvwRemote->editName(m_ui->lvwRemote->currentRow()); },
            [this] { m_ui->lvwLocal->editName(m_ui->lvwLocal->currentRow()); });
}

void frmFTP::view()
{
    byFocus([this] { m_remote.ViewRemoteFile(m_ui->lvwRemote->currentRow()); },
            [this] { m_local.ViewLocalFile(m_ui->lvwLocal->currentRow()); });
}

void frmFTP::selectAll()
{
    byFocus([this] { m_ui->lvwRemote->selectAll(); }, [this] { m_ui->lvwLocal->selectAll(); });
}

void frmFTP::up()
{
    byFocus([this] { enterRemote(0); }, [this] { enterLocal(0); });
}
