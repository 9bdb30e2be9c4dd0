#pragma once
#include <QStyledItemDelegate>

class QComboBox;
class QLineEdit;

/// The editors of the grid: a list for combo and list cells, a line that takes only digits for numbers.
class SpreadDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

protected:
    bool eventFilter(QObject *editor, QEvent *event) override;

private:
    QComboBox *createCombo(QWidget *parent, const QModelIndex &index, bool isFree) const;
};
