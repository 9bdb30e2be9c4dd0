#pragma once
#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QStringList>
#include <QTableView>
#include <vector>

/// The cells of a grid. Rows and columns count from 1, row 0 being the headings, as everywhere in the program.
class SpreadModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum class CellType { Text, Locked, Check, Combo, Picture };

    explicit SpreadModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    void resize(int rows, int columns);
    QString text(int column, int row) const;
    void setText(int column, int row, const QString &text);
    CellType cellType(int column, int row) const;
    void setCellType(int column, int row, CellType type);
    void setColumnType(int column, CellType type);
    void setPicture(int column, int row, const QIcon &picture);
    void setChoices(int column, int row, const QStringList &choices);
    QStringList choices(int column, int row) const;

Q_SIGNALS:
    /// A person, or the program, changed the text of a cell.
    void cellChanged(int column, int row);

private:
    qint64 at(int column, int row) const { return qint64(row - 1) * m_columns + (column - 1); }
    bool isInside(int column, int row) const;
    void announce(int column, int row);

    int m_rows = 0;
    int m_columns = 0;
    std::vector<QString> m_texts;
    QStringList m_headings;
    QHash<int, CellType> m_columnTypes;
    QHash<qint64, CellType> m_cellTypes; ///< only where a cell differs from its column
    QHash<qint64, QIcon> m_pictures;
    QHash<qint64, QStringList> m_choices;
};

/// The one grid of the program. A check cell holds "1" or "0".
class Spread : public QTableView {
    Q_OBJECT
public:
    explicit Spread(QWidget *parent = nullptr);

    SpreadModel &cells() { return *m_cells; }
    const SpreadModel &cells() const { return *m_cells; }

    int MaxRows() const { return m_cells->rowCount(); }
    int MaxCols() const { return m_cells->columnCount(); }
    void resizeGrid(int rows, int columns) { m_cells->resize(rows, columns); }
    QString text(int column, int row) const { return m_cells->text(column, row); }
    void setText(int column, int row, const QString &text) { m_cells->setText(column, row, text); }
    bool isTicked(int column, int row) const { return m_cells->text(column, row) == QLatin1String("1"); }
    void hideColumns(int first, int last);
    void setActiveCell(int column, int row);
    int activeRow() const { return currentIndex().row() + 1; }
    /// The last row with a text in one of its cells, 0 for an empty grid.
    int DataRowCnt() const;

Q_SIGNALS:
    void cellClicked(int column, int row);

private:
    SpreadModel *m_cells;
};
