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
    /// The folder or link that a drag is over or was dropped on, -1 for the pane itself.
    int dropRow() const { return m_dropRow; }
    void forgetDropRow() { setDropRow(-1); }
    /// The up row stays out of it, and is not left current: no command of a selection means it.
    void selectAll() override;

Q_SIGNALS:
    void rowOpened(int row);  ///< double click
    void rowEntered(int row); ///< Enter
    void deletePressed();
    void nameEdited(int row, const QString &oldName, const QString &newName);
    void dragBegun();
    void dragLeft(); ///< ended without a drop on a pane
    void rowsDropped(FtpPane *source);
    void menuWanted(const QPoint &place);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setDropRow(int row);
    void aimAt(const QPoint &place);

    QString m_nameBeforeEdit;
    int m_dropRow = -1;
};
