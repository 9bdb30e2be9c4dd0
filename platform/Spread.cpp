#include "platform/Spread.h"

#include "platform/SpreadDelegate.h"
#include "platform/WholeFile.h"

#include <QApplication>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

bool movesRow(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown
           || key == Qt::Key_Home || key == Qt::Key_End;
}

bool isEnter(const QKeyEvent &event)
{
    const bool plain = !(event.modifiers() & ~Qt::KeypadModifier);
    return plain && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
}

} // namespace

Spread::Spread(QWidget *parent) : QTableView(parent), m_cells(new SpreadModel(this))
{
    setModel(m_cells);
    setItemDelegate(new SpreadDelegate(this));
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT cellClicked(index.column() + 1, index.row() + 1); });
}

void Spread::setOperationMode(OperationMode mode)
{
    const bool single = mode == OperationMode::SingleSelect;
    m_mode = mode;
    setSelectionBehavior(single ? SelectRows : SelectItems);
    setEditTriggers(single ? EditTriggers(NoEditTriggers) : DoubleClicked | EditKeyPressed | AnyKeyPressed);
    horizontalHeader()->setSectionsClickable(!single);
    horizontalHeader()->setHighlightSections(!single);
    setWordWrap(!single);
    // Every width is the user's own there.
    horizontalHeader()->setStretchLastSection(!single);
}

void Spread::setBandColors(const QColor &foreground, const QColor &background)
{
    setAlternatingRowColors(false);
    m_cells->setBandColors(foreground, background);
    viewport()->update();
}

void Spread::hideColumns(int first, int last)
{
    for (int column = first; column <= last; ++column) {
        if (!isColumnHidden(column - 1))
            m_hiddenWidths[column] = columnWidth(column - 1);
        setColumnHidden(column - 1, true);
    }
}

QList<int> Spread::columnWidths() const
{
    QList<int> widths;
    for (int column = 1; column <= MaxCols(); ++column)
        widths << (isColumnHidden(column - 1) ? m_hiddenWidths.value(column, horizontalHeader()->defaultSectionSize())
                                              : columnWidth(column - 1));
    return widths;
}

void Spread::setColumnWidths(const QList<int> &widths)
{
    setUpdatesEnabled(false);
    for (int column = 1; column <= std::min(MaxCols(), int(widths.size())); ++column) {
        const int width = widths[column - 1];
        if (width < 0)
            continue;
        setColumnWidth(column - 1, width);
        if (isColumnHidden(column - 1))
            m_hiddenWidths[column] = width;
    }
    setUpdatesEnabled(true);
}

void Spread::widenToTitle(int column)
{
    const int section = column - 1;
    const int wanted = horizontalHeader()->sectionSizeHint(section);
    if (!isColumnHidden(section) && horizontalHeader()->sectionSize(section) < wanted)
        setColumnWidth(section, wanted);
}

void Spread::setActiveCell(int column, int row)
{
    setCurrentIndex(m_cells->index(row - 1, column - 1));
}

int Spread::DataRowCnt() const
{
    for (int row = MaxRows(); row > 0; --row)
        for (int column = 1; column <= MaxCols(); ++column)
            if (!m_cells->text(column, row).isEmpty())
                return row;
    return 0;
}

void Spread::finishEditing()
{
    if (QWidget *editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    if (m_edited)
        leave(currentIndex());
}

QList<int> Spread::visibleColumns() const
{
    QList<int> columns;
    for (int column = 1; column <= MaxCols(); ++column)
        if (!isColumnHidden(column - 1))
            columns << column;
    return columns;
}

CellTable Spread::visibleCells() const
{
    const QList<int> columns = visibleColumns();
    CellTable table;
    for (const int column : columns) {
        table.headings << text(column, 0);
        table.numeric << (m_cells->columnType(column) == SpreadModel::CellType::Number);
    }
    table.rows = MaxRows();
    table.text = [this, columns](int column, int row) { return m_cells->text(columns[column], row + 1); };
    return table;
}

Result Spread::saveTabText(const QString &path) const
{
    return WholeFile::replace(path, visibleCells().toTabText());
}

Result Spread::exportHtml(const QString &path) const
{
    return WholeFile::replace(path, visibleCells().toHtml(QFileInfo(path).completeBaseName()));
}

void Spread::keyPressEvent(QKeyEvent *event)
{
    // The focus alone makes a cell of the first row the current one without choosing the row, and the keys would
    // go on from there to the second.
    const bool isLeftCell = currentIndex().row() > 0 && event->key() != Qt::Key_Down; // goes on from there as ever
    if (m_mode == OperationMode::SingleSelect && movesRow(event->key()) && MaxRows() > 0
        && !selectionModel()->hasSelection() && !isLeftCell)
        selectRow(event->key() == Qt::Key_End ? MaxRows() - 1 : std::max(0, currentIndex().row()));
    else if (m_mode == OperationMode::Normal && (m_cells->flags(currentIndex()) & Qt::ItemIsEditable)
             && (isEnter(*event) || event->key() == Qt::Key_Delete))
        editByKey(*event);
    else
        QTableView::keyPressEvent(event);
}

/// As in a spreadsheet. Enter never reaches the default button of the window; out of an open editor it moves on when
/// the editor closes.
void Spread::editByKey(const QKeyEvent &event)
{
    if (state() == EditingState)
        return;
    if (isEnter(event))
        moveDown();
    else if (m_deleteEmpties)
        emptyCell();
}

void Spread::moveDown()
{
    if (const int row = activeRow(); row < MaxRows())
        setActiveCell(currentIndex().column() + 1, row + 1);
}

void Spread::emptyCell()
{
    const QModelIndex cell = currentIndex();
    const bool isList = m_cells->columnType(cell.column() + 1) == SpreadModel::CellType::List; // never empty
    if (isList || !(m_cells->flags(cell) & Qt::ItemIsEditable))
        return;
    m_cells->setText(cell.column() + 1, cell.row() + 1, {});
    m_edited = true;
}

/// Tab comes in where something can be typed.
void Spread::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    const bool byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (m_mode == OperationMode::Normal && byTab && !(m_cells->flags(currentIndex()) & Qt::ItemIsEditable))
        if (const QModelIndex cell = editableNeighbour(true); cell.isValid())
            setCurrentIndex(cell);
}

void Spread::focusOutEvent(QFocusEvent *event)
{
    QTableView::focusOutEvent(event);
    leaveIfFocusIsGone();
}

QModelIndex Spread::editableNeighbour(bool forth) const
{
    const QList<int> columns = visibleColumns();
    const qsizetype cells = MaxRows() * columns.size();
    qsizetype place = currentIndex().row() * columns.size() + columns.indexOf(currentIndex().column() + 1);
    for (place += forth ? 1 : -1; place >= 0 && place < cells; place += forth ? 1 : -1) {
        const QModelIndex cell = m_cells->index(int(place / columns.size()), columns[place % columns.size()] - 1);
        if (m_cells->flags(cell) & Qt::ItemIsEditable)
            return cell;
    }
    return {};
}

QModelIndex Spread::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (m_mode == OperationMode::Normal && (action == MoveNext || action == MovePrevious))
        if (const QModelIndex cell = editableNeighbour(action == MoveNext); cell.isValid())
            return cell;
    const int column = std::max(0, currentIndex().column());
    if (m_mode == OperationMode::SingleSelect && action == MoveHome)
        return m_cells->index(0, column);
    if (m_mode == OperationMode::SingleSelect && action == MoveEnd)
        return m_cells->index(MaxRows() - 1, column);
    return QTableView::moveCursor(action, modifiers);
}

QItemSelectionModel::SelectionFlags Spread::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    if (m_mode != OperationMode::SingleSelect)
        return QTableView::selectionCommand(index, event);
    // A click with Ctrl would take the choice away.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate);
}

void Spread::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (m_mode == OperationMode::SingleSelect && !selected.isEmpty())
        Q_EMIT rowSelected(selected.first().top() + 1);
}

void Spread::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (previous.isValid())
        leave(previous);
}

void Spread::commitData(QWidget *editor)
{
    QTableView::commitData(editor);
    m_edited = true;
}

void Spread::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool forth = hint == QAbstractItemDelegate::EditNextItem;
    const QModelIndex edited = indexAt(editor->geometry().center());
    if ((forth || hint == QAbstractItemDelegate::EditPreviousItem) && !editableNeighbour(forth).isValid()) {
        // The table would begin again at its other end, and the key would never leave it.
        QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
        focusNextPrevChild(forth);
    } else {
        QTableView::closeEditor(editor, hint);
    }
    if (hint == QAbstractItemDelegate::SubmitModelCache && edited == currentIndex()) // it was Enter that closed it
        moveDown();
    leaveIfFocusIsGone();
}

void Spread::leave(const QModelIndex &cell)
{
    m_edited = false;
    Q_EMIT cellLeft(cell.column() + 1, cell.row() + 1);
}

void Spread::leaveIfFocusIsGone()
{
    if (!m_edited || !currentIndex().isValid())
        return;
    for (const QWidget *focus = QApplication::focusWidget(); focus; focus = focus->parentWidget())
        if (focus == this)
            return; // its editor, or the list that the editor opened
    leave(currentIndex());
}
