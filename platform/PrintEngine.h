#pragma once
#include "platform/PrintLayout.h"

#include <QObject>
#include <QPointer>

class FileChooser;
class Messages;
class QDialog;
class QPagedPaintDevice;
class QWidget;

/// The words of the preview window.
struct PreviewTexts {
    QString title;
    QString print;
    QString noPrinter; ///< why nothing can be printed
    QString savePdf;
    QString zoomIn;
    QString zoomOut;
    QString fitWidth;
    QString wholePage;
    QString previous;
    QString next;
    QString close;
};

/// Lays out pages and shows them in a preview, from where they are printed or saved as PDF. It needs no printer.
class PrintEngine : public QObject {
    Q_OBJECT
public:
    explicit PrintEngine(QObject *parent = nullptr) : QObject(parent) {}
    ~PrintEngine() override;

    bool IsPreviewVisible() const;
    /// Shows the document in a window that stays open beside its parent. `files` and `messages` outlive it.
    void Preview(PrintDocument document, const PreviewTexts &texts, FileChooser &files, Messages &messages,
                 QWidget *parent);

    /// Writes the whole file; on failure an old one stays.
    static Result saveAsPdf(const PrintDocument &document, const QString &path);
    static QByteArray pdf(const PrintDocument &document);

private:
    QPointer<QDialog> m_preview;
};
