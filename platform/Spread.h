#pragma once
#include "platform/CellTable.h"
#include "platform/Result.h"
#include "platform/SpreadModel.h"

#include <QTableView>

/// The one grid of the program. A check cell holds "1" or "0".
class Spread : public QTableView {
    Q_OBJECT
public:
    /// In `SingleSelect` the grid is for reading: one whole row is chosen, by click or key.
    enum class OperationMode { Normal = 0, SingleSelect = 3 };

    explicit Spread(QWidget *parent = nullptr);

    SpreadModel &cells() { return *m_cells; }
    const SpreadModel &cells() const { return *m_cells; }

    int MaxRows() const { return m_cells->rowCount(); }
    int MaxCols() const { return m_cells->columnCount(); }
    void resizeGrid(int rows, int columns) { m_cells->resize(rows, columns); }
    void clear() { m_cells->clear(); }
    QString text(int column, int row) const { return m_cells->text(column, row); }
    void setText(int column, int row, QString text) { m_cells->setText(column, row, std::move(text)); }
    bool isTicked(int column, int row) const { return m_cells->text(column, row) == QLatin1String("1"); }
    void setOperationMode(OperationMode mode);
    /// Even rows get these colours, and the alternating ones of the table are off.
    void setBandColors(const QColor &foreground, const QColor &background);
    void hideColumns(int first, int last);
    /// Widths of all columns in order. A hidden one gives the width that it will have when shown.
    QList<int> columnWidths() const;
    /// Gives the widths to the columns in order; a negative one leaves its column as it is.
    void setColumnWidths(const QList<int> &widths);
    /// The key Delete empties the current cell.
    void setDeleteEmpties(bool empties) { m_deleteEmpties = empties; }
    /// A column that is shown gets at least the width of its title.
    void widenToTitle(int column);
    void setActiveCell(int column, int row);
    int activeRow() const { return currentIndex().row() + 1; }
    /// The last row with a text in one of its cells, 0 for an empty grid.
    int DataRowCnt() const;
    /// Takes what stands in an open editor: a command reached by its key doesn't take the focus away from it.
    void finishEditing();

    /// Columns, from 1, that are not hidden.
    QList<int> visibleColumns() const;
    CellTable visibleCells() const;
    /// Writes the visible cells. On failure the old file stays whole.
    Result saveTabText(const QString &path) const;
    Result exportHtml(const QString &path) const;

Q_SIGNALS:
    void cellClicked(int column, int row);
    /// In `SingleSelect`, a row became the chosen one, by click, key or program.
    void rowSelected(int row);
    /// Another cell became the current one, or an edited cell lost the focus to something outside the grid.
    void cellLeft(int column, int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void editByKey(const QKeyEvent &event);
    void moveDown();
    void emptyCell();
    /// The cell that Tab leads to, or Shift+Tab, none behind the last one: locked cells are passed over.
    QModelIndex editableNeighbour(bool forth) const;
    void leave(const QModelIndex &cell);
    void leaveIfFocusIsGone();

    SpreadModel *m_cells;
    OperationMode m_mode = OperationMode::Normal;
    bool m_deleteEmpties = false;
    QHash<int, int> m_hiddenWidths; ///< the header tells nothing of a hidden column
    bool m_edited = false;          ///< the current cell, since it is the current one
};
