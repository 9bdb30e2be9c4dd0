#pragma once
#include <QListWidget>

/// A list of file paths that takes files dropped from the desktop. It only tells of them: what becomes of them is the
/// matter of its window. `setAcceptDrops(false)` where nothing may be added.
class AttachmentList : public QListWidget {
    Q_OBJECT
public:
    explicit AttachmentList(QWidget *parent = nullptr);

Q_SIGNALS:
    /// Full paths of the dropped files; never empty, and without folders and addresses of elsewhere.
    void filesDropped(const QStringList &paths);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
};
