#include "shell/ScreenPrint.h"

#include "platform/FileChooser.h"
#include "platform/ForegroundWindow.h"
#include "platform/Messages.h"
#include "platform/WholeFile.h"
#include "shell/Session.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"ZELVANTOR"_s;
const QString method = u"ImprimerImage"_s;

void setLayout(QPagedPaintDevice &device, const QPageLayout &layout)
{
    if (layout.isValid())
        device.setPageLayout(layout);
}

Result printOn(const QPrinterInfo &info, const QImage &picture, const QPageLayout &layout)
{
    QPrinter printer(info, QPrinter::HighResolution);
    setLayout(printer, layout);
    printer.setDocName(title);
    return ScreenPrint::ImprimerImage(picture, printer) ? Result() : Result(1, info.printerName());
}

Result printInto(const QString &path, const QImage &picture, const QPageLayout &layout)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&bytes);
        setLayout(pdf, layout);
        pdf.setTitle(title);
        if (!ScreenPrint::ImprimerImage(picture, pdf))
            return {1, path};
    }
    return WholeFile::write(path, bytes.data());
}

} // namespace

void ScreenPrint::start(QWidget &frame, const Session &session, const QPageLayout &layout,
                        std::chrono::milliseconds wait)
{
    QTimer::singleShot(wait, &frame, [&frame, &session, layout] {
        QImage picture = CapturerFenetre();
        if (picture.isNull()) // another program is in front, and the platform keeps it to itself
            picture = frame.grab().toImage();
        Result printed;
        if (const QPrinterInfo printer = QPrinterInfo::defaultPrinter(); !printer.isNull())
            printed = printOn(printer, picture, layout);
        else if (const QString path = session.files->saveFile(&frame, title, {u"PDF (*.pdf)"_s}); !path.isEmpty())
            printed = printInto(path, picture, layout);
        if (!printed)
            session.messages->box(printed.message(), method);
    });
}

QImage ScreenPrint::CapturerFenetre()
{
    return ForegroundWindow::picture();
}

bool ScreenPrint::ImprimerImage(const QImage &picture, QPagedPaintDevice &page)
{
    QPainter painter;
    if (!painter.begin(&page))
        return false;
    const QSizeF size = QSizeF(picture.size()).scaled(page.width(), page.height(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!picture.isNull())
        painter.drawImage(QRectF(QPointF(0, 0), size), picture);
    return painter.end();
}
