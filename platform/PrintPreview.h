#pragma once
#include "platform/PrintEngine.h"

#include <QDialog>

#include <memory>

class QLabel;
class QPrinter;
class QPrintPreviewWidget;
class QToolBar;

/// The pages of a document with a bar of commands: zoom, pages, print, PDF.
class PrintPreview : public QDialog {
    Q_OBJECT
public:
    PrintPreview(PrintDocument document, const PreviewTexts &texts, FileChooser &files, Messages &messages,
                 QWidget *parent);
    ~PrintPreview() override;

private:
    void fillBar(QToolBar &bar, const PreviewTexts &texts);
    void showPosition();
    void turnTo(int page);
    void print();
    void savePdf(const QString &title);

    PrintDocument m_document;
    FileChooser &m_files;
    Messages &m_messages;
    std::unique_ptr<QPrinter> m_printer;
    QPrintPreviewWidget *m_pages;
    QLabel *m_position;
};
