#include "platform/SpreadModel.h"

#include "platform/OneLine.h"

using namespace Qt::StringLiterals;

int SpreadModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int SpreadModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant SpreadModel::data(const QModelIndex &index, int role) const
{
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    const bool band = row % 2 == 0 && m_bandBackground.isValid();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: {
        const CellType type = cellType(column, row);
        return type == CellType::Check || type == CellType::Picture ? QVariant() : text(column, row);
    }
    case Qt::CheckStateRole:
        if (cellType(column, row) == CellType::Check)
            return text(column, row) == u"1"_s ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::TextAlignmentRole:
        if (cellType(column, row) == CellType::Number)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    case Qt::DecorationRole: {
        const auto picture = m_pictures.constFind(at(column, row));
        return picture == m_pictures.constEnd() ? QVariant() : QVariant(*picture);
    }
    case Qt::ForegroundRole:
        return band ? QVariant(m_bandForeground) : QVariant();
    case Qt::BackgroundRole:
        return band ? QVariant(m_bandBackground) : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return text(column, row);
    default:
        return {};
    }
}

bool SpreadModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role == Qt::CheckStateRole)
        setText(index.column() + 1, index.row() + 1, value.toInt() == Qt::Checked ? u"1"_s : u"0"_s);
    else if (role == Qt::EditRole)
        setText(index.column() + 1, index.row() + 1, oneLine(value.toString()));
    else
        return false;
    return true;
}

QVariant SpreadModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && columnType(section + 1) == CellType::Number)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? QVariant(m_headings.value(section)) : QVariant(section + 1);
}

Qt::ItemFlags SpreadModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    switch (cellType(index.column() + 1, index.row() + 1)) {
    case CellType::Check:
        return base | Qt::ItemIsUserCheckable;
    case CellType::Text:
    case CellType::Combo:
    case CellType::List:
    case CellType::Number:
        return base | Qt::ItemIsEditable;
    case CellType::Locked:
    case CellType::Picture:
        break;
    }
    return base;
}

void SpreadModel::resize(int rows, int columns)
{
    beginResetModel();
    if (columns != m_columns) {
        m_texts.clear();
        m_columnTypes.clear();
        m_columnChoices.clear();
        m_decimals.clear();
    }
    if (columns != m_columns || rows == 0)
        forgetCells();
    m_rows = rows;
    m_columns = columns;
    m_texts.resize(size_t(rows) * size_t(columns));
    m_headings.resize(columns);
    endResetModel();
}

void SpreadModel::fill(std::vector<QString> cells)
{
    beginResetModel();
    forgetCells();
    m_texts = std::move(cells);
    m_rows = m_columns == 0 ? 0 : int(m_texts.size()) / m_columns;
    m_texts.resize(size_t(m_rows) * size_t(m_columns));
    endResetModel();
}

void SpreadModel::forgetCells()
{
    m_cellTypes.clear();
    m_pictures.clear();
    m_choices.clear();
}

bool SpreadModel::isInside(int column, int row) const
{
    return column >= 1 && column <= m_columns && row >= 1 && row <= m_rows;
}

QString SpreadModel::text(int column, int row) const
{
    if (row == 0)
        return m_headings.value(column - 1);
    if (!isInside(column, row))
        return {};
    if (const auto list = m_columnChoices.constFind(column); list != m_columnChoices.constEnd())
        return list->value(choiceIndex(column, row));
    return m_texts[size_t(at(column, row))];
}

void SpreadModel::deleteRow(int row)
{
    if (row < 1 || row > m_rows)
        return;
    beginRemoveRows({}, row - 1, row - 1);
    const auto first = m_texts.begin() + at(1, row);
    m_texts.erase(first, first + m_columns);
    --m_rows;
    endRemoveRows();
}

void SpreadModel::setText(int column, int row, QString text)
{
    if (row == 0 && column >= 1 && column <= m_columns) {
        m_headings[column - 1] = std::move(text);
        Q_EMIT headerDataChanged(Qt::Horizontal, column - 1, column - 1);
    } else if (m_columnChoices.contains(column)) {
        setChoiceIndex(column, row, int(m_columnChoices[column].indexOf(text)));
    } else {
        store(column, row, text);
    }
}

void SpreadModel::store(int column, int row, QString &stored)
{
    if (isInside(column, row) && m_texts[size_t(at(column, row))] != stored) {
        m_texts[size_t(at(column, row))] = std::move(stored);
        announce(column, row);
        Q_EMIT cellChanged(column, row);
    }
}

SpreadModel::CellType SpreadModel::cellType(int column, int row) const
{
    if (!m_cellTypes.isEmpty())
        if (const auto own = m_cellTypes.constFind(at(column, row)); own != m_cellTypes.constEnd())
            return *own;
    return columnType(column);
}

void SpreadModel::setCellType(int column, int row, CellType type)
{
    m_cellTypes.insert(at(column, row), type);
    announce(column, row);
}

SpreadModel::CellType SpreadModel::columnType(int column) const
{
    return m_columnTypes.value(column, CellType::Text);
}

void SpreadModel::setColumnType(int column, CellType type)
{
    m_columnTypes.insert(column, type);
    if (type != CellType::List)
        m_columnChoices.remove(column);
}

void SpreadModel::setPicture(int column, int row, const QIcon &picture)
{
    m_pictures.insert(at(column, row), picture);
    setCellType(column, row, CellType::Picture);
}

void SpreadModel::setChoices(int column, int row, const QStringList &choices)
{
    m_choices.insert(at(column, row), choices);
    setCellType(column, row, CellType::Combo);
}

QStringList SpreadModel::choices(int column, int row) const
{
    return m_choices.value(at(column, row), m_columnChoices.value(column));
}

void SpreadModel::setColumnChoices(int column, const QStringList &choices)
{
    m_columnChoices.insert(column, choices);
    setColumnType(column, CellType::List);
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0, column - 1), index(m_rows - 1, column - 1));
}

int SpreadModel::choiceIndex(int column, int row) const
{
    if (!isInside(column, row) || !m_columnChoices.contains(column))
        return -1;
    bool isNumber = false;
    const int position = m_texts[size_t(at(column, row))].toInt(&isNumber);
    return isNumber && position < m_columnChoices[column].size() ? position : -1;
}

void SpreadModel::setChoiceIndex(int column, int row, int position)
{
    const bool isThere = position >= 0 && position < m_columnChoices.value(column).size();
    QString stored = isThere ? QString::number(position) : QString();
    store(column, row, stored);
}

void SpreadModel::setNumberColumn(int column, int decimals)
{
    m_decimals.insert(column, decimals);
    setColumnType(column, CellType::Number);
}

void SpreadModel::setBandColors(const QColor &foreground, const QColor &background)
{
    m_bandForeground = foreground;
    m_bandBackground = background;
}

void SpreadModel::announce(int column, int row)
{
    const QModelIndex cell = index(row - 1, column - 1);
    Q_EMIT dataChanged(cell, cell);
}
