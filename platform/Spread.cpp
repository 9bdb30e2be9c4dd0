#include "platform/Spread.h"

#include <QComboBox>
#include <QHeaderView>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace {

/// Combo cells offer their list and still take any text.
class SpreadDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto *cells = qobject_cast<const SpreadModel *>(index.model());
        if (!cells || cells->cellType(index.column() + 1, index.row() + 1) != SpreadModel::CellType::Combo)
            return QStyledItemDelegate::createEditor(parent, option, index);
        auto *combo = new QComboBox(parent);
        combo->setEditable(true);
        combo->addItems(cells->choices(index.column() + 1, index.row() + 1));
        return combo;
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        if (auto *combo = qobject_cast<QComboBox *>(editor))
            combo->setEditText(index.data(Qt::EditRole).toString());
        else
            QStyledItemDelegate::setEditorData(editor, index);
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        if (auto *combo = qobject_cast<QComboBox *>(editor))
            model->setData(index, combo->currentText(), Qt::EditRole);
        else
            QStyledItemDelegate::setModelData(editor, model, index);
    }
};

} // namespace

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
    const CellType type = cellType(column, row);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return type == CellType::Check || type == CellType::Picture ? QVariant() : text(column, row);
    case Qt::CheckStateRole:
        if (type == CellType::Check)
            return text(column, row) == u"1"_s ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::DecorationRole:
        return m_pictures.contains(at(column, row)) ? QVariant(m_pictures[at(column, row)]) : QVariant();
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
        setText(index.column() + 1, index.row() + 1, value.toString());
    else
        return false;
    return true;
}

QVariant SpreadModel::headerData(int section, Qt::Orientation orientation, int role) const
{
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
        return base | Qt::ItemIsEditable;
    default:
        return base;
    }
}

void SpreadModel::resize(int rows, int columns)
{
    beginResetModel();
    if (columns != m_columns) {
        m_texts.clear();
        m_columnTypes.clear();
    }
    m_rows = rows;
    m_columns = columns;
    m_texts.resize(size_t(rows) * size_t(columns));
    m_headings.resize(columns);
    if (rows == 0) {
        m_cellTypes.clear();
        m_pictures.clear();
        m_choices.clear();
    }
    endResetModel();
}

bool SpreadModel::isInside(int column, int row) const
{
    return column >= 1 && column <= m_columns && row >= 1 && row <= m_rows;
}

QString SpreadModel::text(int column, int row) const
{
    if (row == 0)
        return m_headings.value(column - 1);
    return isInside(column, row) ? m_texts[size_t(at(column, row))] : QString();
}

void SpreadModel::setText(int column, int row, const QString &text)
{
    if (row == 0 && column >= 1 && column <= m_columns) {
        m_headings[column - 1] = text;
        Q_EMIT headerDataChanged(Qt::Horizontal, column - 1, column - 1);
    } else if (isInside(column, row) && m_texts[size_t(at(column, row))] != text) {
        m_texts[size_t(at(column, row))] = text;
        announce(column, row);
        Q_EMIT cellChanged(column, row);
    }
}

SpreadModel::CellType SpreadModel::cellType(int column, int row) const
{
    return m_cellTypes.value(at(column, row), m_columnTypes.value(column, CellType::Text));
}

void SpreadModel::setCellType(int column, int row, CellType type)
{
    m_cellTypes.insert(at(column, row), type);
    announce(column, row);
}

void SpreadModel::setColumnType(int column, CellType type)
{
    m_columnTypes.insert(column, type);
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
    return m_choices.value(at(column, row));
}

void SpreadModel::announce(int column, int row)
{
    const QModelIndex cell = index(row - 1, column - 1);
    Q_EMIT dataChanged(cell, cell);
}

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
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT cellClicked(index.column() + 1, index.row() + 1); });
}

void Spread::hideColumns(int first, int last)
{
    for (int column = first; column <= last; ++column)
        setColumnHidden(column - 1, true);
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
