#include "platform/SpreadDelegate.h"

#include "platform/NumberValidator.h"
#include "platform/SpreadModel.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr const char *before = "before"; ///< property of a combo box: what the cell held when the editor opened

const SpreadModel &cellsOf(const QModelIndex &index)
{
    return *static_cast<const SpreadModel *>(index.model());
}

} // namespace

QComboBox *SpreadDelegate::createCombo(QWidget *parent, const QModelIndex &index, bool isFree) const
{
    auto *combo = new QComboBox(parent);
    combo->setEditable(isFree);
    if (isFree)
        combo->setCompleter(nullptr); // it would make a listed value of every typed beginning of one
    combo->addItems(cellsOf(index).choices(index.column() + 1, index.row() + 1));
    // What is picked counts at once, not only when the cell is left.
    auto *self = const_cast<SpreadDelegate *>(this);
    connect(combo, &QComboBox::activated, self, [self, combo] { Q_EMIT self->commitData(combo); });
    return combo;
}

QWidget *SpreadDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    const SpreadModel &cells = cellsOf(index);
    const SpreadModel::CellType type = cells.cellType(index.column() + 1, index.row() + 1);
    if (type == SpreadModel::CellType::Combo || type == SpreadModel::CellType::List)
        return createCombo(parent, index, type == SpreadModel::CellType::Combo);
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *line = qobject_cast<QLineEdit *>(editor); line && type == SpreadModel::CellType::Number) {
        line->setValidator(new NumberValidator(cells.decimals(index.column() + 1), line));
        line->setAlignment(Qt::AlignRight);
    }
    return editor;
}

void SpreadDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        if (combo->isEditable())
            combo->setEditText(text);
        else
            combo->setCurrentIndex(cellsOf(index).choiceIndex(index.column() + 1, index.row() + 1));
        if (!combo->property(before).isValid())
            combo->setProperty(before, combo->isEditable() ? QVariant(text) : QVariant(combo->currentIndex()));
        return;
    }
    if (auto *line = qobject_cast<QLineEdit *>(editor); line && line->validator())
        static_cast<NumberValidator *>(const_cast<QValidator *>(line->validator()))->admit(text);
    QStyledItemDelegate::setEditorData(editor, index);
}

void SpreadDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        if (combo->isEditable())
            model->setData(index, combo->currentText(), Qt::EditRole);
        else
            static_cast<SpreadModel *>(model)->setChoiceIndex(index.column() + 1, index.row() + 1,
                                                              combo->currentIndex());
        return;
    }
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (!line || !line->validator())
        QStyledItemDelegate::setModelData(editor, model, index);
    else if (line->hasAcceptableInput())
        model->setData(index, NumberValidator::tidy(line->text()), Qt::EditRole);
}

/// Escape takes back what was picked and has counted already.
bool SpreadDelegate::eventFilter(QObject *editor, QEvent *event)
{
    auto *combo = qobject_cast<QComboBox *>(editor);
    if (combo && event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        const QVariant kept = combo->property(before);
        if (combo->isEditable())
            combo->setEditText(kept.toString());
        else
            combo->setCurrentIndex(kept.toInt());
        Q_EMIT commitData(combo);
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}
