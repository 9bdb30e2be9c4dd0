#include "shell/frmDbPath.h"

#include "platform/Messages.h"
#include "shell/ApplicationFolder.h"
#include "shell/Causes.h"
#include "ui_frmDbPath.h"

#include <QDir>
#include <QFileSystemModel>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

frmDbPath::frmDbPath(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmDbPath>()), m_folders(new QFileSystemModel(this))
{
    m_ui->setupUi(this);
    m_folders->setFilter(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Drives);
    m_ui->Dir1->setModel(m_folders);
    for (int column = 1; column < m_folders->columnCount(); ++column)
        m_ui->Dir1->hideColumn(column);
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes())
        if (volume.isReady() && !volume.isReadOnly())
            m_ui->Drive1->addItem(volume.rootPath());
    if (m_ui->Drive1->findText(QDir::homePath()) < 0)
        m_ui->Drive1->insertItem(0, QDir::homePath());
    m_ui->Drive1->setCurrentIndex(0);
    showDrive();
    m_ui->paDossier->setEnabled(false);

    connect(m_ui->optExemple, &QRadioButton::clicked, this,
            [this] { choose(ApplicationFolder::sample(session().applicationFolder)); });
    connect(m_ui->optVide, &QRadioButton::clicked, this, [this] { choose(session().applicationFolder); });
    connect(m_ui->optDossier, &QRadioButton::toggled, m_ui->paDossier, &QWidget::setEnabled);
    connect(m_ui->Drive1, &QComboBox::currentIndexChanged, this, &frmDbPath::showDrive);
    connect(m_ui->Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &folder) { choose(m_folders->filePath(folder)); });
    connect(m_ui->cmdValider, &QPushButton::clicked, this, &frmDbPath::validate);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmDbPath::reject);
    session().gbValider = false;
    opened();
}

frmDbPath::~frmDbPath() = default;

/// The translations of this window, opened from it, end with a flag of their own.
void frmDbPath::done(int result)
{
    session().gbValider = result == Accepted;
    Screen::done(result);
}

void frmDbPath::choose(const QString &folder)
{
    m_folder = folder;
    session().gsDbPath = folder + u"/zelvantor.mdb"_s;
    m_ui->lbChemin->setText(QDir::toNativeSeparators(session().gsDbPath));
    m_ui->cmdValider->setEnabled(true);
}

void frmDbPath::showDrive()
{
    const QString drive = m_ui->Drive1->currentText();
    m_ui->Dir1->setRootIndex(m_folders->setRootPath(drive));
}

void frmDbPath::validate()
{
    session().gsDbPath = m_folder + u"/zelvantor.mdb"_s;
    if (const Result saved = session().saveSetting(u"DB"_s, session().gsDbPath); !saved) {
        session().messages->box(Causes::message(saved, session().localisation), u"frmDbPath"_s);
        return;
    }
    if (m_ui->optExemple->isChecked())
        if (const Result taken = ApplicationFolder::takeSampleSettings(session()); !taken)
            session().messages->box(Causes::message(taken, session().localisation), u"frmDbPath"_s);
    accept();
}
