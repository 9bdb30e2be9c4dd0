#include "reference/frmMaterial.h"

#include "platform/Messages.h"
#include "reference/frmRMParamDetail.h"
#include "reference/frmRefDetail.h"
#include "shell/Skin.h"
#include "ui_frmMaterial.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int positionRole = Qt::UserRole;
constexpr int levelOfAttributes = 3; // their parents stand there

/// Icons by the level of a node: root, group, sub-group, attribute; and root, list, value.
const std::array<QString, 4> groupIcons = {u"categoriep"_s, u"groupe"_s, u"sousgroupe"_s, u"attribut"_s};
const std::array<QString, 4> listIcons = {u"liste"_s, u"listevaleurs"_s, u"valeur"_s, u"valeur"_s};

} // namespace

frmMaterial::frmMaterial(Session &screenSession, bool bCategorie, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmMaterial>()), m_bCategorie(bCategorie)
{
    m_ui->setupUi(this);
    m_ui->Nouveau->setIcon(Skin::icon(u"nouveau"_s));
    m_ui->Ouvrir->setIcon(Skin::icon(u"deplier"_s));
    m_ui->Fermer->setIcon(Skin::icon(u"replier"_s));
    for (QAction *action : {m_ui->Nouveau, m_ui->Ouvrir, m_ui->Fermer})
        m_ui->Toolbar1->addAction(action);
    opened();
    connect(m_ui->Nouveau, &QAction::triggered, this, &frmMaterial::openEditor);
    connect(m_ui->Ouvrir, &QAction::triggered, m_ui->tvTools, &QTreeWidget::expandAll);
    connect(m_ui->Fermer, &QAction::triggered, this, &frmMaterial::CloseTV);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmMaterial::reject);
    connect(m_ui->tvTools, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *item) { nodeChosen(item); });
    connect(m_ui->tvTools, &QTreeWidget::itemActivated, this, &frmMaterial::openEditor);
    rebuild();
    ExpandRacine();
    select(0);
}

frmMaterial::~frmMaterial() = default;

void frmMaterial::textsLoaded()
{
    setWindowTitle(session().localisation.Traduire(u"GLISTE"_s, m_bCategorie ? u"t2"_s : u"t1"_s));
    m_ui->lbTitre->setText(windowTitle());
    showTitle();
}

/// A node without a title of its own leaves the one before.
void frmMaterial::showTitle()
{
    const QString &key = m_selection.titleKey;
    if (!key.isEmpty())
        m_ui->lbTitre->setText(m_selection.title(session().localisation.Traduire(u"MESSAGES"_s, key)));
}

void frmMaterial::showTree(bool bCategorie, const QString &method)
{
    Result read;
    m_nodes = readReferenceTree(session().gCnn, bCategorie, read);
    std::array<QIcon, 4> icons;
    for (size_t level = 0; level < icons.size(); ++level)
        icons[level] = Skin::icon((bCategorie ? groupIcons : listIcons)[level]);
    const QSignalBlocker quiet(m_ui->tvTools);
    m_ui->tvTools->clear();
    m_items.clear();
    std::vector<size_t> levels;
    QList<QTreeWidgetItem *> roots;
    for (const ReferenceNode &node : m_nodes) {
        auto *item = new QTreeWidgetItem({node.sLibelle});
        const size_t level = node.parent < 0 ? 0 : std::min(levels[size_t(node.parent)] + 1, icons.size() - 1);
        item->setIcon(0, icons[level]);
        item->setData(0, positionRole, int(m_items.size()));
        if (node.parent < 0)
            roots << item;
        else
            m_items[size_t(node.parent)]->addChild(item);
        m_items.push_back(item);
        levels.push_back(level);
    }
    m_ui->tvTools->addTopLevelItems(roots);
    if (!read)
        session().messages->box(read.message(), method);
}

void frmMaterial::ExpandRacine()
{
    if (!m_items.empty())
        m_items.front()->setExpanded(true);
}

void frmMaterial::CloseTV()
{
    m_ui->tvTools->collapseAll();
    ExpandRacine();
}

void frmMaterial::select(int position)
{
    if (position < 0 || position >= int(m_items.size()))
        return;
    const QSignalBlocker quiet(m_ui->tvTools);
    m_ui->tvTools->setCurrentItem(m_items[size_t(position)]);
    nodeChosen(m_items[size_t(position)]);
}

void frmMaterial::nodeChosen(const QTreeWidgetItem *item)
{
    if (!item)
        return;
    m_nNodeSel = item->data(0, positionRole).toInt();
    m_selection = chooseNode(m_nodes, m_nNodeSel, m_bCategorie);
    m_ui->Nouveau->setEnabled(m_selection.mayAdd);
    showTitle();
}

/// Attributes have an editor of their own, since they alone carry the link to a list.
void frmMaterial::openEditor()
{
    if (m_items.empty() || !m_selection.mayAdd)
        return;
    if (m_bCategorie && m_selection.iNiveau == levelOfAttributes)
        frmRefDetail(session(), m_selection, this).exec();
    else
        frmRMParamDetail(session(), m_selection, this).exec();
    rebuild();
    ExpandRacine();
    select(m_nNodeSel);
    m_ui->tvTools->setFocus();
}
