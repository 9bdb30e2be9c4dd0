#include "catalogue/frmDlgOpenDoc.h"

#include "catalogue/FileTypes.h"
#include "ui_frmDlgOpenDoc.h"

#include <QDir>
#include <QFileSystemModel>
#include <QImageReader>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

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
    m_ui->lbPixel->hide();
    m_ui->cbType->addItems(FileTypes::pictures());
    openRememberedFolder();
    wire();
    opened();
    setWindowTitle(u"Pictures"_s);
    fillFiles();
}

frmDlgOpenDoc::~frmDlgOpenDoc() = default;

void frmDlgOpenDoc::openRememberedFolder()
{
    const QString remembered = session().setting(u"PATHPHOTO"_s);
    showFolder(QDir(remembered).exists() && !remembered.isEmpty() ? remembered : QDir::homePath());
}

void frmDlgOpenDoc::wire()
{
    connect(m_ui->Drive1, &QComboBox::activated, this, [this] { showFolder(m_ui->Drive1->currentText()); });
    connect(m_ui->Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this, &frmDlgOpenDoc::fillFiles);
    connect(m_ui->cbType, &QComboBox::currentIndexChanged, this, &frmDlgOpenDoc::fillFiles);
    connect(m_ui->File1, &QListWidget::currentTextChanged, this, [this](const QString &name) {
        m_ui->txtNom->setText(name);
        showPreview();
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

void frmDlgOpenDoc::showPreview()
{
    QImageReader picture(folder() + u'/' + m_ui->txtNom->text());
    picture.setAutoTransform(true);
    QSize size = picture.size();
    if (size.isValid())
        picture.setScaledSize(size.scaled(m_ui->imgApercu->size(), Qt::KeepAspectRatio));
    m_ui->imgApercu->setPixmap(QPixmap::fromImage(picture.read()));
}

bool frmDlgOpenDoc::VerifierElementListe(const QString &path) const
{
    return !m_ui->lstSelected->findItems(path, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty();
}

void frmDlgOpenDoc::add()
{
    if (m_ui->lstSelected->count() > 0 || m_ui->File1->currentRow() < 0)
        return; // a picker takes one file
    const QString path = folder() + u'/' + m_ui->File1->currentItem()->text();
    if (!VerifierElementListe(path))
        m_ui->lstSelected->addItem(path);
}

void frmDlgOpenDoc::validate()
{
    if (m_ui->lstSelected->count() == 0)
        add();
    if (m_ui->lstSelected->count() == 0)
        return;
    m_chosen = m_ui->lstSelected->item(0)->text();
    // Only a convenience of the next time.
    (void)session().saveSetting(u"PATHPHOTO"_s, folder());
    accept();
}
