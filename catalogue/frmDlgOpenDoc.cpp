#include "catalogue/frmDlgOpenDoc.h"

#include "catalogue/Attachments.h"
#include "catalogue/FileTypes.h"
#include "platform/Messages.h"
#include "ui_frmDlgOpenDoc.h"

#include <QApplication>
#include <QDir>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace {

QStringList textsOf(const QListWidget &list)
{
    QStringList texts;
    for (int i = 0; i < list.count(); ++i)
        texts << list.item(i)->text();
    return texts;
}

} // namespace

frmDlgOpenDoc::frmDlgOpenDoc(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmDlgOpenDoc>()), m_folders(new QFileSystemModel(this))
{
    m_ui->setupUi(this);
    m_folders->setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    m_ui->Dir1->setModel(m_folders);
    for (int column = 1; column < m_folders->columnCount(); ++column)
        m_ui->Dir1->hideColumn(column);
    m_ui->Drive1->addItem(QDir::homePath());
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes())
        if (volume.isReady())
            m_ui->Drive1->addItem(volume.rootPath());
    m_ui->lbPixel->setVisible(session().giSmall == 1);
    m_ui->cbType->addItems(session().gbPhotos ? FileTypes::pictures() : FileTypes::documents());
    openRememberedFolder();
    wire();
    opened();
    fillFiles();
    if (!session().gbChoixFichier)
        AfficherDocs();
}

frmDlgOpenDoc::~frmDlgOpenDoc()
{
    // The focus still moves when the controls go, which is after their names have gone.
    disconnect(qApp, nullptr, this, nullptr);
}

void frmDlgOpenDoc::textsLoaded()
{
    setWindowTitle(session().gbPhotos ? u"Pictures"_s : u"Documents"_s);
}

/// The folder of the documents is kept as "PATHDOC" and asked for as "PATHPDOC": only pictures come back to their last
/// folder. Known, and left as it is.
void frmDlgOpenDoc::openRememberedFolder()
{
    QStringList remembered = {session().setting(u"PATHPHOTO"_s), QDir::homePath()};
    if (!session().gbPhotos)
        remembered.prepend(session().setting(u"PATHPDOC"_s));
    for (const QString &path : remembered) {
        if (!path.isEmpty() && QDir(path).exists()) {
            showFolder(path);
            return;
        }
    }
}

void frmDlgOpenDoc::wire()
{
    connect(m_ui->Drive1, &QComboBox::activated, this, [this] { showFolder(m_ui->Drive1->currentText()); });
    connect(m_ui->Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this, &frmDlgOpenDoc::fillFiles);
    connect(m_ui->cbType, &QComboBox::currentIndexChanged, this, &frmDlgOpenDoc::fillFiles);
    for (const QListWidget *list : {m_ui->File1, m_ui->lstSelected}) {
        connect(list, &QListWidget::currentItemChanged, this, &frmDlgOpenDoc::enter);
        connect(list, &QListWidget::itemClicked, this, &frmDlgOpenDoc::enter);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, const QWidget *entered) {
        for (const QListWidget *list : {m_ui->File1, m_ui->lstSelected})
            if (list == entered)
                showPreview(list->currentItem());
    });
    connect(m_ui->File1, &QListWidget::itemDoubleClicked, this, &frmDlgOpenDoc::add);
    connect(m_ui->txtNom, &QLineEdit::textChanged, this,
            [this](const QString &text) { m_ui->cmdValider->setEnabled(text.size() > 1); });
    connect(m_ui->cmdAjouter, &QPushButton::clicked, this, &frmDlgOpenDoc::add);
    connect(m_ui->cmdRetirer, &QPushButton::clicked, this,
            [this] { delete m_ui->lstSelected->takeItem(m_ui->lstSelected->currentRow()); });
    connect(m_ui->cmdValider, &QPushButton::clicked, this, &frmDlgOpenDoc::validate);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmDlgOpenDoc::reject);
}

QString frmDlgOpenDoc::folder() const
{
    return m_folders->filePath(m_ui->Dir1->currentIndex());
}

/// The tree begins at the drive, the longest one that the folder lies in.
void frmDlgOpenDoc::showFolder(const QString &path)
{
    int drive = 0;
    qsizetype longest = 0;
    for (int i = 0; i < m_ui->Drive1->count(); ++i) {
        const QString root = QDir(m_ui->Drive1->itemText(i)).absolutePath();
        const QString below = root.endsWith(u'/') ? root : root + u'/';
        if ((path == root || path.startsWith(below)) && root.size() > longest) {
            drive = i;
            longest = root.size();
        }
    }
    m_ui->Drive1->setCurrentIndex(drive);
    m_ui->Dir1->setRootIndex(m_folders->setRootPath(m_ui->Drive1->currentText()));
    const QModelIndex index = m_folders->index(path);
    m_ui->Dir1->setCurrentIndex(index);
    m_ui->Dir1->scrollTo(index);
}

void frmDlgOpenDoc::fillFiles()
{
    m_ui->File1->clear();
    const QString filter = FileTypes::filter(m_ui->cbType->currentText());
    m_ui->File1->addItems(QDir(folder()).entryList({filter == u"*.*"_s ? u"*"_s : filter}, QDir::Files));
}

QString frmDlgOpenDoc::pathOf(const QListWidgetItem &entry) const
{
    return entry.listWidget() == m_ui->File1 ? QDir(folder()).filePath(entry.text()) : session().filePath(entry.text());
}

/// The name of the entry under the cursor, in either list, so that one who only takes files out can validate too.
void frmDlgOpenDoc::enter(const QListWidgetItem *entry)
{
    if (entry)
        m_ui->txtNom->setText(QFileInfo(entry->text()).fileName());
    showPreview(entry);
}

void frmDlgOpenDoc::showPreview(const QListWidgetItem *entry)
{
    m_ui->imgApercu->showFile(entry ? pathOf(*entry) : QString());
}

void frmDlgOpenDoc::AfficherDocs()
{
    m_opened.clear();
    if (const Result read = Attachments::AfficherDocs(session(), m_opened); !read)
        session().messages->box(read.message(), u"AfficherDocs"_s);
    m_ui->lstSelected->clear();
    m_ui->lstSelected->addItems(m_opened);
}

bool frmDlgOpenDoc::VerifierElementListe(const QString &path) const
{
    return Attachments::contains(session(), textsOf(*m_ui->lstSelected), path);
}

void frmDlgOpenDoc::add()
{
    if (session().gbChoixFichier && m_ui->lstSelected->count() > 0)
        return; // a picker takes one file
    const QListWidgetItem *file = m_ui->File1->currentItem();
    if (!file)
        return;
    if (const QString path = pathOf(*file); !VerifierElementListe(path))
        m_ui->lstSelected->addItem(path);
}

/// Enter on a file takes it, as a double click does, and does not validate the list as it was.
void frmDlgOpenDoc::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && m_ui->File1->hasFocus())
        add();
    else
        Screen::keyPressEvent(event);
}

void frmDlgOpenDoc::validate()
{
    if (session().gbChoixFichier ? pick() : writeList())
        accept();
}

bool frmDlgOpenDoc::pick()
{
    add();
    if (m_ui->lstSelected->count() == 0)
        return false;
    m_chosen = m_ui->lstSelected->item(0)->text();
    // Only a convenience of the next time.
    (void)session().saveSetting(u"PATHPHOTO"_s, folder());
    return true;
}

/// After a failure the dialogue stays open with its list, to take out or rename what could not be written.
bool frmDlgOpenDoc::writeList()
{
    const Attachments::Failures failures = Attachments::replace(session(), m_opened, textsOf(*m_ui->lstSelected));
    (void)session().saveSetting(session().gbPhotos ? u"PATHPHOTO"_s : u"PATHDOC"_s, folder());
    for (const Attachments::Failure &failure : failures)
        session().messages->box(failure.result.message(), failure.method);
    return failures.empty();
}
