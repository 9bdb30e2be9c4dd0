#include "ftp/FtpPane.h"

#include "shell/Skin.h"

#include <QDrag>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString rowsFormat = u"application/x-zelvantor-rows"_s;
constexpr int nameColumn = 0;
constexpr int iconRole = Qt::UserRole;

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
        item->setData(nameColumn, iconRole, row.icon);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled);
        if (!row.text.isEmpty())
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        if (Panes::isFolder(row.icon))
            item->setFlags(item->flags() | Qt::ItemIsDropEnabled);
        items << item;
    }
    m_nameBeforeEdit.clear();
    forgetDropRow();
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

void FtpPane::selectAll()
{
    QTreeWidget::selectAll();
    if (QTreeWidgetItem *up = topLevelItem(0); up && up->text(nameColumn).isEmpty())
        up->setSelected(false);
    if (currentRow() < 1 && topLevelItemCount() > 1)
        setCurrentItem(topLevelItem(1), nameColumn, QItemSelectionModel::NoUpdate);
}

void FtpPane::mark(int row, bool queued)
{
    QTreeWidgetItem *item = topLevelItem(row);
    if (!item)
        return;
    const QSignalBlocker noEdit(this);
    const QIcon icon = iconOf(item->data(nameColumn, iconRole).toString());
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    item->setIcon(nameColumn, queued ? QIcon(icon.pixmap(size, QIcon::Disabled)) : icon);
    for (int column = 0; column < columnCount(); ++column)
        item->setForeground(column, queued ? QBrush(QColor(0, 0, 255)) : QBrush());
}

void FtpPane::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (state() == QAbstractItemView::EditingState || !(enter || event->key() == Qt::Key_Delete))
        QTreeWidget::keyPressEvent(event);
    else if (enter && currentRow() >= 0)
        Q_EMIT rowEntered(currentRow());
    else if (event->key() == Qt::Key_Delete)
        Q_EMIT deletePressed();
}

/// With Ctrl the right button belongs to the window.
void FtpPane::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton && event->modifiers() == Qt::ControlModifier)
        event->ignore();
    else
        QTreeWidget::mousePressEvent(event);
}

void FtpPane::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && event->modifiers() == Qt::NoModifier)
        Q_EMIT menuWanted(event->globalPosition().toPoint());
}

/// Some desktops ask at the press of the button. The menu comes with its release, or from its own key.
void FtpPane::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(event->globalPos());
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
    if (event->source() != this)
        aimAt(event->position().toPoint());
    event->acceptProposedAction();
}

void FtpPane::dragLeaveEvent(QDragLeaveEvent *)
{
    forgetDropRow();
}

void FtpPane::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    auto *source = qobject_cast<FtpPane *>(event->source());
    if (source != this)
        aimAt(event->position().toPoint());
    // The drag must be over before a long transfer begins.
    QMetaObject::invokeMethod(
        this, [this, source] { Q_EMIT rowsDropped(source); }, Qt::QueuedConnection);
}

void FtpPane::aimAt(const QPoint &place)
{
    QTreeWidgetItem *item = itemAt(place);
    setDropRow(item && (item->flags() & Qt::ItemIsDropEnabled) ? indexOfTopLevelItem(item) : -1);
}

void FtpPane::setDropRow(int row)
{
    const QSignalBlocker noEdit(this);
    const auto paint = [this](const QBrush &brush) {
        QTreeWidgetItem *item = topLevelItem(m_dropRow);
        for (int column = 0; item && column < columnCount(); ++column)
            item->setBackground(column, brush);
    };
    paint({});
    m_dropRow = row;
    paint(palette().color(QPalette::Highlight).lighter(150));
}
