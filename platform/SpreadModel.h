#pragma once
#include <QAbstractTableModel>
#include <QColor>
#include <QHash>
#include <QIcon>
#include <QStringList>
#include <vector>

/// The cells of a grid. Rows and columns count from 1, row 0 being the headings, as everywhere in the program.
class SpreadModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /// A combo offers a list of its own in each cell and takes any text; a list takes only what its column offers.
    enum class CellType { Text, Locked, Check, Combo, List, Number, Picture };

    explicit SpreadModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    void resize(int rows, int columns);
    /// No rows any more; headings and types of columns stay.
    void clear() { resize(0, m_columns); }
    /// Puts these cells, row after row, in the place of all rows, without a word about each of them. Not for grids
    /// with list columns, whose cells hold positions.
    void fill(std::vector<QString> cells);
    /// For grids whose cells are of their columns' types.
    void deleteRow(int row);

    QString text(int column, int row) const;
    void setText(int column, int row, QString text);
    CellType cellType(int column, int row) const;
    void setCellType(int column, int row, CellType type);
    CellType columnType(int column) const;
    void setColumnType(int column, CellType type);
    void setPicture(int column, int row, const QIcon &picture);
    void setChoices(int column, int row, const QStringList &choices);
    QStringList choices(int column, int row) const;

    /// Makes the column a list; the cells keep the positions that they had chosen.
    void setColumnChoices(int column, const QStringList &choices);
    /// Position of the chosen entry in a cell of a list column, from 0; -1 for none.
    int choiceIndex(int column, int row) const;
    void setChoiceIndex(int column, int row, int position);
    /// Makes the column take numbers with at most so many decimals.
    void setNumberColumn(int column, int decimals);
    int decimals(int column) const { return m_decimals.value(column, 2); }

    /// The colours of every even row, text and ground.
    void setBandColors(const QColor &foreground, const QColor &background);
    const QColor &bandForeground() const { return m_bandForeground; }
    const QColor &bandBackground() const { return m_bandBackground; }

Q_SIGNALS:
    /// A person, or the program, changed the text of a cell.
    void cellChanged(int column, int row);

private:
    qint64 at(int column, int row) const { return qint64(row - 1) * m_columns + (column - 1); }
    bool isInside(int column, int row) const;
    // Both take the text over; a full list passes here half a million times.
    void store(int column, int row, QString &stored);
    void announce(int column, int row);
    void forgetCells();

    int m_rows = 0;
    int m_columns = 0;
    std::vector<QString> m_texts; ///< of a list cell the position
    QStringList m_headings;
    QHash<int, CellType> m_columnTypes;
    QHash<int, QStringList> m_columnChoices;
    QHash<int, int> m_decimals;
    QHash<qint64, CellType> m_cellTypes; ///< only where a cell differs from its column
    QHash<qint64, QIcon> m_pictures;
    QHash<qint64, QStringList> m_choices;
    QColor m_bandForeground;
    QColor m_bandBackground;
};
