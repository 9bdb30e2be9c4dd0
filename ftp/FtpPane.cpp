#include "ftp/FtpPane.h"

#include "shell/Skin.h"

#include <QDrag>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString rowsFormat = u"application/x-zelvantor-rows"_s;
constexpr int nameColumn = 0;

QIcon iconOf(const QString &name)
{
    static const QHash<QString, QString> files = {
        {u"Cdup"_s, u"ftp_cdup"_s},    {u"FolderClose"_s, u"groupe"_s}, {u"FolderLink"_s, u"ftp_folderlink"_s},
        {u"Link"_s, u"ftp_link"_s},    {u"File"_s, u"ftp_file"_s},      {u"TextFile"_s, u"ftp_text"_s},
        {u"ZipFile"_s, u"ftp_zip"_s},  {u"ExeFile"_s, u"ftp_exe"_s},    {u"ImageFile"_s, u"ftp_image"_s},
        {u"HelpFile"_s, u"ftp_help"_s}};
    static QHash<QString, QIcon> icons;
    const QString file = files.value(name, u"ftp_file"_s);
    if (!icons.contains(file))
        icons.insert(file, Skin::icon(file));
    return icons.value(file);
}

} // namespace

FtpPane::FtpPane(QWidget *parent) : QTreeWidget(parent)
{
    setDragDropMode(QAbstractItemView::DragDrop);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->setSectionsClickable(true);
    header()->setStretchLastSection(true);
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem *item) { Q_EMIT rowOpened(indexOfTopLevelItem(item)); });
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item, int column) {
        const QString before = std::exchange(m_nameBeforeEdit, QString());
        if (column == nameColumn && !before.isEmpty() && item->text(nameColumn) != before)
            Q_EMIT nameEdited(indexOfTopLevelItem(item), before, item->text(nameColumn));
    });
}

void FtpPane::showRows(const PaneRows &rows)
{
    QList<QTreeWidgetItem *> items;
    items.reserve(qsizetype(rows.size()));
    for (const PaneRow &row : rows) {
        auto *item = new QTreeWidgetItem({row.text, row.size, row.date, row.permission});
        item->setIcon(nameColumn, iconOf(row.icon));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        if (!row.text.isEmpty())
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        items << item;
    }
    m_nameBeforeEdit.clear();
    m_dropRow = -1;
    clear();
    addTopLevelItems(items);
}

std::vector<int> FtpPane::selectedRows() const
{
    std::vector<int> rows;
    for (QTreeWidgetItem *item : selectedItems())
        if (!item->text(nameColumn).isEmpty())
            rows.push_back(indexOfTopLevelItem(item));
    std::sort(rows.begin(), rows.end());
    return rows;
}

int FtpPane::currentRow() const
{
    return currentItem() ? indexOfTopLevelItem(currentItem()) : -1;
}

void FtpPane::editName(int row)
{
    QTreeWidgetItem *item = topLevelItem(row);
    if (!item || item->text(nameColumn).isEmpty())
        return;
    setCurrentItem(item);
    m_nameBeforeEdit = item->text(nameColumn);
    editItem(item, nameColumn);
}

void FtpPane::mark(int row, bool queued)
{
    QTreeWidgetItem *item = topLevelItem(row);
    if (!item)
        return;
    const QString before = std::exchange(m_nameBeforeEdit, QString());
    for (int column = 0; column < columnCount(); ++column)
        item->setForeground(column, queued ? QBrush(QColor(0, 0, 255)) : QBrush());
    m_nameBeforeEdit = before;
}

void FtpPane::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (state() == QAbstractItemView::EditingState || !(enter || event->key() == Qt::Key_Delete))
        QTreeWidget::keyPressEvent(event);
    else if (enter && currentRow() >= 0)
        Q_EMIT rowOpened(currentRow());
    else if (event->key() == Qt::Key_Delete)
        Q_EMIT deletePressed();
}

void FtpPane::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && event->modifiers() == Qt::NoModifier)
        Q_EMIT menuWanted(event->globalPosition().toPoint());
}

/// The rows themselves stay where they are; what is dragged is the queue.
void FtpPane::startDrag(Qt::DropActions)
{
    Q_EMIT dragBegun();
    auto *content = new QMimeData;
    content->setData(rowsFormat, {});
    auto *drag = new QDrag(this);
    drag->setMimeData(content);
    if (drag->exec(Qt::CopyAction) == Qt::IgnoreAction)
        Q_EMIT dragLeft();
}

void FtpPane::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(rowsFormat))
        event->acceptProposedAction();
}

void FtpPane::dragMoveEvent(QDragMoveEvent *event)
{
    m_dropRow = rowAt(event->position().toPoint());
    if (QTreeWidgetItem *item = topLevelItem(m_dropRow); item && event->source() != this)
        setCurrentItem(item, nameColumn, QItemSelectionModel::NoUpdate);
    event->acceptProposedAction();
}

void FtpPane::dropEvent(QDropEvent *event)
{
    m_dropRow = rowAt(event->position().toPoint());
    event->acceptProposedAction();
    auto *source = qobject_cast<FtpPane *>(event->source());
    // The drag must be over before a long transfer begins.
    QMetaObject::invokeMethod(
        this, [this, source] { Q_EMIT rowsDropped(source); }, Qt::QueuedConnection);
}

int FtpPane::rowAt(const QPoint &place) const
{
    QTreeWidgetItem *item = itemAt(place);
    return item ? indexOfTopLevelItem(item) : -1;
}
