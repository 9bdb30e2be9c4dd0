#include "platform/PrintPreview.h"

#include "platform/FileChooser.h"
#include "platform/Messages.h"
#include "platform/PrintPainter.h"

#include <QAction>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(820, 900);

} // namespace

PrintPreview::PrintPreview(PrintDocument document, const PreviewTexts &texts, FileChooser &files, Messages &messages,
                           QWidget *parent)
    : QDialog(parent, Qt::Window), m_document(std::move(document)), m_files(files), m_messages(messages),
      m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)), m_position(new QLabel(this))
{
    setObjectName(u"PrintPreview"_s);
    setWindowTitle(texts.title);
    m_printer->setDocName(m_document.name);
    PrintPainter::setUp(*m_printer, m_document.layout);
    m_pages = new QPrintPreviewWidget(m_printer.get(), this);
    auto *bar = new QToolBar(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(bar);
    layout->setSpacing(0);
    layout->addWidget(m_pages, 1);
    m_position->setObjectName(u"lbPage"_s);
    m_position->setMargin(6);
    connect(m_pages, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter *printer) { (void)PrintPainter(m_document).paint(*printer); });
    connect(m_pages, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::showPosition);
    fillBar(*bar, texts);
    resize(firstSize);
    m_pages->setZoomMode(QPrintPreviewWidget::FitInView);
}

PrintPreview::~PrintPreview()
{
    delete m_pages; // paints on the printer
}

void PrintPreview::fillBar(QToolBar &bar, const PreviewTexts &texts)
{
    const auto add = [&](const QString &name, const QString &text, const QKeySequence &keys, auto action) {
        QAction *command = bar.addAction(text);
        command->setObjectName(name);
        command->setShortcut(keys);
        connect(command, &QAction::triggered, this, action);
        bar.widgetForAction(command)->setAccessibleName(text);
        return command;
    };
    QAction *printing = add(u"acPrint"_s, texts.print, QKeySequence::Print, [this] { print(); });
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        printing->setEnabled(false);
        printing->setToolTip(texts.noPrinter);
    }
    add(u"acPdf"_s, texts.savePdf, QKeySequence::Save, [this, title = texts.savePdf] { savePdf(title); });
    bar.addSeparator();
    add(u"acZoomIn"_s, texts.zoomIn, QKeySequence::ZoomIn, [this] { m_pages->zoomIn(); })->setIconText(u"+"_s);
    add(u"acZoomOut"_s, texts.zoomOut, QKeySequence::ZoomOut, [this] { m_pages->zoomOut(); })->setIconText(u"−"_s);
    add(u"acFitWidth"_s, texts.fitWidth, {}, [this] { m_pages->setZoomMode(QPrintPreviewWidget::FitToWidth); });
    add(u"acWholePage"_s, texts.wholePage, {}, [this] { m_pages->setZoomMode(QPrintPreviewWidget::FitInView); });
    bar.addSeparator();
    add(u"acPrevious"_s, texts.previous, Qt::Key_PageUp, [this] {
        turnTo(m_pages->currentPage() - 1);
    })->setIconText(u"‹"_s);
    bar.addWidget(m_position);
    add(u"acNext"_s, texts.next, Qt::Key_PageDown, [this] { turnTo(m_pages->currentPage() + 1); })->setIconText(u"›"_s);
    bar.addSeparator();
    add(u"acClose"_s, texts.close, QKeySequence::Close, [this] { close(); });
}

void PrintPreview::showPosition()
{
    m_position->setText(u"%1/%2"_s.arg(m_pages->currentPage()).arg(m_pages->pageCount()));
}

void PrintPreview::turnTo(int page)
{
    m_pages->setCurrentPage(qBound(1, page, m_pages->pageCount()));
    showPosition();
}

void PrintPreview::print()
{
    QPrintDialog dialog(m_printer.get(), this);
    if (dialog.exec() == Accepted)
        m_pages->print();
}

void PrintPreview::savePdf(const QString &title)
{
    const QString path = m_files.saveFile(this, title, {u"PDF (*.pdf)"_s});
    if (path.isEmpty())
        return;
    if (const Result saved = PrintEngine::saveAsPdf(m_document, path); !saved)
        m_messages.box(saved.message(), title);
}
