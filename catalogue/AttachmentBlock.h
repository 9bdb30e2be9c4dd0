#pragma once
#include <QObject>

#include <functional>

class AttachmentList;
class QDialog;
class PicturePreview;
struct Session;

/// The pictures and documents on the product screen: their lists, the preview of the chosen picture, the buttons that
/// open the file dialogue, and files dropped from the desktop.
class AttachmentBlock : public QObject {
    Q_OBJECT
public:
    /// `mayChange` is asked before anything is stored.
    AttachmentBlock(QDialog &screen, Session &session, std::function<bool()> mayChange);

    /// Refills the pictures, and the documents too when `gbPhotos` says that documents are at hand.
    void AfficherDocs();

private:
    void edit(bool photos, int small);
    void add(bool photos, const QStringList &paths);
    void showPicture();

    QDialog &m_screen;
    Session &m_session;
    std::function<bool()> m_mayChange;
    AttachmentList *m_pictures;
    AttachmentList *m_documents;
    PicturePreview *m_preview;
};
