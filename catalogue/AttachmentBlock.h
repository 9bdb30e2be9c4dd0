#pragma once
#include <QObject>

class AttachmentList;
class QDialog;
class QLabel;
struct Session;

/// The pictures and documents on the product screen: their lists, the preview of the chosen picture, the buttons that
/// open the file dialogue, and files dropped from the desktop.
class AttachmentBlock : public QObject {
    Q_OBJECT
public:
    AttachmentBlock(QDialog &screen, Session &session);

    /// Refills the pictures, and the documents too when `gbPhotos` says that documents are at hand.
    void AfficherDocs();

private:
    void edit(bool photos, int small);
    void add(bool photos, const QStringList &paths);
    void showPicture();

    QDialog &m_screen;
    Session &m_session;
    AttachmentList *m_pictures;
    AttachmentList *m_documents;
    QLabel *m_preview;
};
