#include "tests/paper/Printed.h"

#include "platform/PrintEngine.h"

#include <QProcess>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

constexpr double tenthsPerPoint = 254.0 / 72;
constexpr double dotsPerTenth = 300.0 / 254;

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(120000))
        qFatal("%s: %s", qPrintable(program), qPrintable(process.errorString()));
    return process.readAllStandardOutput();
}

} // namespace

Printed::Printed(const PrintDocument &document)
    : m_folder(std::make_unique<QTemporaryDir>()), m_path(m_folder->filePath(u"printed.pdf"_s))
{
    if (const Result saved = PrintEngine::saveAsPdf(document, m_path); !saved)
        qFatal("%s", qPrintable(saved.message()));
}

QString Printed::text() const
{
    return QString::fromUtf8(output(QStringLiteral(ZELVANTOR_PDFTOTEXT), {u"-layout"_s, m_path, u"-"_s}));
}

QList<QRectF> Printed::places(const QString &word) const
{
    QList<QRectF> found;
    QXmlStreamReader xml(output(QStringLiteral(ZELVANTOR_PDFTOTEXT), {u"-bbox"_s, u"-l"_s, u"1"_s, m_path, u"-"_s}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"word"_s)
            continue;
        const QXmlStreamAttributes at = xml.attributes();
        const auto side = [&at](const QString &name) { return at.value(name).toDouble() * tenthsPerPoint; };
        const QRectF place(QPointF(side(u"xMin"_s), side(u"yMin"_s)), QPointF(side(u"xMax"_s), side(u"yMax"_s)));
        if (xml.readElementText() == word)
            found << place;
    }
    return found;
}

QImage Printed::picture(int page) const
{
    const QString number = QString::number(page);
    return QImage::fromData(output(QStringLiteral(ZELVANTOR_PDFTOPPM),
                                   {u"-r"_s, u"300"_s, u"-gray"_s, u"-f"_s, number, u"-l"_s, number, m_path}));
}

QStringList Printed::codes(const QImage &page)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"page.png"_s);
    page.save(path);
    const QByteArray read =
        output(QStringLiteral(ZELVANTOR_ZBARIMG), {u"-q"_s, u"--raw"_s, u"-Sdisable"_s, u"-Sean13.enable"_s, path});
    return QString::fromLatin1(read).split(u'\n', Qt::SkipEmptyParts);
}

QRectF Printed::ink(const QImage &page, const QRectF &place)
{
    const QRect dots = QRectF(place.topLeft() * dotsPerTenth, place.size() * dotsPerTenth).toAlignedRect();
    QRect dark;
    for (int y = dots.top(); y <= dots.bottom(); ++y)
        for (int x = dots.left(); x <= dots.right(); ++x)
            if (page.valid(x, y) && qGray(page.pixel(x, y)) < 160)
                dark = dark.united(QRect(x, y, 1, 1));
    return {QPointF(dark.topLeft()) / dotsPerTenth, QSizeF(dark.size()) / dotsPerTenth};
}
