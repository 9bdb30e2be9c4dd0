#pragma once
#include "ftp/FtpDesk.h"

#include <QTreeWidget>

/// A file pane: the rows of one side, with the names that a person edits and what he drags to the other side.
class FtpPane : public QTreeWidget {
    Q_OBJECT
public:
    explicit FtpPane(QWidget *parent = nullptr);

    /// Shows the rows; nothing is selected and no row is current.
    void showRows(const PaneRows &rows);
    /// Positions of the selected rows in their order; the up row is never among them.
    std::vector<int> selectedRows() const;
    int currentRow() const;
    void editName(int row);
    /// Blue and faint while the row waits in the queue.
    void mark(int row, bool queued);
    /// The row that a drop was aimed at, -1 for the pane itself.
    int dropRow() const { return m_dropRow; }
    void forgetDropRow() { m_dropRow = -1; }

Q_SIGNALS:
    void rowOpened(int row); ///< double click or Enter
    void deletePressed();
    void nameEdited(int row, const QString &oldName, const QString &newName);
    void dragBegun();
    void dragLeft(); ///< ended without a drop on a pane
    void rowsDropped(FtpPane *source);
    void menuWanted(const QPoint &place);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    int rowAt(const QPoint &place) const;

    QString m_nameBeforeEdit;
    int m_dropRow = -1;
};
