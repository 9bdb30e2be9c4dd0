#include "catalogue/AttachmentBlock.h"

#include "catalogue/AttachmentList.h"
#include "catalogue/Attachments.h"
#include "catalogue/frmDlgOpenDoc.h"
#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "platform/PicturePreview.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

AttachmentBlock::AttachmentBlock(QDialog &screen, Session &session, std::function<bool()> mayChange)
    : QObject(&screen), m_screen(screen), m_session(session), m_mayChange(std::move(mayChange)),
      m_pictures(screen.findChild<AttachmentList *>(u"lstPicture"_s)),
      m_documents(screen.findChild<AttachmentList *>(u"lstDoc"_s)),
      m_preview(screen.findChild<PicturePreview *>(u"imgPhoto"_s))
{
    const auto button = [&screen](const QString &name) { return screen.findChild<QPushButton *>(name); };
    connect(button(u"cmdAddPict"_s), &QPushButton::clicked, this, [this] { edit(true, 0); });
    connect(button(u"cmdAddPictSmall"_s), &QPushButton::clicked, this, [this] { edit(true, 1); });
    connect(button(u"cmdAddDoc"_s), &QPushButton::clicked, this, [this] { edit(false, m_session.giSmall); });
    for (AttachmentList *list : {m_pictures, m_documents}) {
        connect(list, &AttachmentList::filesDropped, this,
                [this, list](const QStringList &paths) { add(list == m_pictures, paths); });
        connect(list, &QListWidget::itemActivated, this,
                [this](const QListWidgetItem *item) { m_session.desktop->open(m_session.filePath(item->text())); });
    }
    connect(m_pictures, &QListWidget::currentRowChanged, this, &AttachmentBlock::showPicture);
}

void AttachmentBlock::AfficherDocs()
{
    const auto fill = [this](QListWidget &list, Result (*read)(Session &, QStringList &)) {
        QStringList paths;
        const Result done = read(m_session, paths);
        list.clear();
        list.addItems(paths);
        if (!done)
            m_session.messages->box(done.message(), u"AfficherDocs"_s);
    };
    if (!m_session.gbPhotos)
        fill(*m_documents, &Attachments::documents);
    fill(*m_pictures, &Attachments::pictures);
    m_pictures->setCurrentRow(0); // the first one shows at once
    showPicture();
}

void AttachmentBlock::edit(bool photos, int small)
{
    if (!m_mayChange())
        return;
    m_session.gbPhotos = photos;
    m_session.giSmall = small;
    frmDlgOpenDoc(m_session, &m_screen).exec();
    AfficherDocs();
}

/// As the button of full pictures, or of documents, would.
void AttachmentBlock::add(bool photos, const QStringList &paths)
{
    if (!m_mayChange())
        return;
    m_session.gbPhotos = photos;
    if (photos)
        m_session.giSmall = 0;
    for (const Attachments::Failure &failure : Attachments::addDroppedFiles(m_session, paths))
        m_session.messages->box(failure.result.message(), failure.method);
    AfficherDocs();
}

void AttachmentBlock::showPicture()
{
    const QListWidgetItem *chosen = m_pictures->currentItem();
    m_preview->showFile(chosen ? m_session.filePath(chosen->text()) : QString());
}
