#include "platform/PrintEngine.h"

#include "platform/PrintPainter.h"
#include "platform/PrintPreview.h"
#include "platform/WholeFile.h"

#include <QBuffer>
#include <QPdfWriter>

PrintEngine::~PrintEngine()
{
    delete m_preview;
}

bool PrintEngine::IsPreviewVisible() const
{
    return m_preview && m_preview->isVisible();
}

void PrintEngine::Preview(PrintDocument document, const PreviewTexts &texts, FileChooser &files, Messages &messages,
                          QWidget *parent)
{
    delete m_preview;
    m_preview = new PrintPreview(std::move(document), texts, files, messages, parent);
    m_preview->setAttribute(Qt::WA_DeleteOnClose);
    m_preview->show();
}

QByteArray PrintEngine::pdf(const PrintDocument &document)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&bytes);
        writer.setTitle(document.name);
        writer.setCreator(QStringLiteral("Zelvantor"));
        PrintPainter::setUp(writer, document.layout);
        if (!PrintPainter(document).paint(writer))
            return {};
    }
    return bytes.data();
}

Result PrintEngine::saveAsPdf(const PrintDocument &document, const QString &path)
{
    const QByteArray bytes = pdf(document);
    if (bytes.isEmpty())
        return {1, path};
    return WholeFile::write(path, bytes);
}
