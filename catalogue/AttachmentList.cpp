#include "catalogue/AttachmentList.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace {

QStringList filesOf(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile())
            paths << url.toLocalFile();
    return paths;
}

/// The file stays where it is: an offer to move it alone is not taken.
void answer(QDropEvent &event, bool wanted)
{
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::LinkAction}) {
        if (wanted && event.possibleActions().testFlag(action)) {
            event.setDropAction(action);
            event.accept();
            return;
        }
    }
    event.ignore();
}

} // namespace

AttachmentList::AttachmentList(QWidget *parent) : QListWidget(parent)
{
    setDragDropMode(DropOnly);
}

void AttachmentList::dragEnterEvent(QDragEnterEvent *event)
{
    answer(*event, !filesOf(*event->mimeData()).isEmpty());
}

void AttachmentList::dragMoveEvent(QDragMoveEvent *event)
{
    // Only what was accepted on entering moves on; looking at the files again would ask the disk at every step.
    answer(*event, true);
}

void AttachmentList::dropEvent(QDropEvent *event)
{
    const QStringList paths = filesOf(*event->mimeData());
    answer(*event, !paths.isEmpty());
    if (event->isAccepted())
        Q_EMIT filesDropped(paths);
}
