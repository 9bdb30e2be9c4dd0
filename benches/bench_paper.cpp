// Labels and a product sheet as PDF, beside the least that any painter of the same texts and bars has to do.
#include "benches/Fastest.h"
#include "benches/Figure.h"
#include "catalogue/Ean13.h"
#include "catalogue/ProductSheet.h"
#include "platform/Ean13Bars.h"
#include "platform/PrintEngine.h"

#include <QApplication>
#include <QBuffer>
#include <QFont>
#include <QPainter>
#include <QPdfWriter>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
constexpr int labels = 1000;

const QString share = QStringLiteral(ZELVANTOR_SHARE);

PrintLayout layoutOf(const QString &name)
{
    PrintLayout layout;
    if (const Result read = PrintLayout::read(share + u'/' + name, layout); !read)
        qFatal("%s", qPrintable(read.message()));
    return layout;
}

void make(const PrintDocument &document)
{
    if (PrintEngine::pdf(document).isEmpty())
        qFatal("no PDF");
}

PrintFields fieldsOf(int product)
{
    QString code = u"%1"_s.arg(300000000000 + product * 7919);
    const QString check = Ean13::CalculerCD(code);
    return {{u"Ean13"_s, code + check},
            {u"Nom"_s, u"Tasse en grès bleu, 25 cl, n° %1"_s.arg(product)},
            {u"RefArticle"_s, u"%1/202505"_s.arg(product, 5, 10, QLatin1Char('0'))},
            {u"PrixTTC"_s, u"%1.90 EUR"_s.arg(product % 90)}};
}

/// The same texts, frames and bars at the same places, with nothing read, measured or chosen.
void paintBare(const PrintLayout &layout, const QList<PrintFields> &cells)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&bytes);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins({});
    QPainter painter(&pdf);
    const double scale = pdf.logicalDpiX() / 254.0;
    QFont name(u"Arial"_s);
    name.setPointSizeF(9.5);
    name.setBold(true);
    QFont reference(u"Arial"_s);
    reference.setPointSizeF(9);
    QFont price(name);
    price.setPointSizeF(13);
    QFont digits(u"Arial"_s);
    digits.setPixelSize(int(39 * scale));
    const auto write = [&](const QFont &font, double x, double y, const QString &text) {
        painter.setFont(font);
        painter.drawText(QPointF(x, y) * scale, text);
    };
    for (int i = 0; i < cells.size(); ++i) {
        const int onPage = i % layout.cells.count();
        if (i > 0 && onPage == 0)
            pdf.newPage();
        const QPointF corner = layout.cells.corner(onPage);
        painter.setPen(QPen(Qt::gray, 1.5 * scale));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(corner * scale, QSizeF(800, 300) * scale));
        painter.setPen(Qt::black);
        write(name, corner.x() + 30, corner.y() + 43, cells[i][u"Nom"_s]);
        write(reference, corner.x() + 30, corner.y() + 105, cells[i][u"RefArticle"_s]);
        write(price, corner.x() + 550, corner.y() + 195, cells[i][u"PrixTTC"_s]);
        const QString code = cells[i][u"Ean13"_s];
        write(digits, corner.x() + 40, corner.y() + 268, code.left(1));
        write(digits, corner.x() + 90, corner.y() + 268, code.mid(1, 6));
        write(digits, corner.x() + 280, corner.y() + 268, code.mid(7));
        const auto bars = Ean13Bars::encode(code);
        QList<QRectF> dark;
        for (int from = 0, to = 0; from < Ean13Bars::modules; from = to) {
            for (to = from + 1; to < Ean13Bars::modules && (*bars)[size_t(to)] == (*bars)[size_t(from)];)
                ++to;
            if ((*bars)[size_t(from)])
                dark << QRectF((corner.x() + 75 + from * 4) * scale, (corner.y() + 140) * scale,
                               (to - from) * 4 * scale, 94 * scale);
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawRects(dark);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);

    PrintDocument sheet{layoutOf(u"etiquette2.tpl"_s)};
    sheet.fields = fieldsOf(1);
    sheet.fields.insert(u"dDescription"_s, u"<p>Tournée puis émaillée à la main.</p><ul><li>25 cl</li></ul>"_s);
    PrintDocument product{layoutOf(u"ft1.tpl"_s)};
    product.fields = sheet.fields;
    QList<ProductSheet::Row> rows;
    for (int i = 0; i < 12; ++i)
        rows << ProductSheet::Row{u"Champ %1"_s.arg(i), u"Valeur %1"_s.arg(i)};
    product.drawn = ProductSheet::drawn(share + u"/sample/pictures/couteau-chef-olivier-1.jpg"_s, rows);
    QElapsedTimer first;
    first.start();
    make(sheet);
    Figure("paper, first sheet of a run", double(first.nsecsElapsed()) / 1e6, "ms");
    Figure("paper, label sheet", fastest(rounds, [&] { make(sheet); }), "ms").atMost(150);
    Figure("paper, product sheet", fastest(rounds, [&] { make(product); }), "ms").atMost(150);

    PrintDocument many{layoutOf(u"etiquette1.tpl"_s)};
    for (int i = 1; i <= labels; ++i)
        many.cells << fieldsOf(i);
    const double engine = fastest(rounds, [&] { make(many); });
    const double bare = fastest(rounds, [&] { paintBare(many.layout, many.cells); });
    Figure("paper, " + std::to_string(labels) + " labels", engine, "ms").beside("a bare painter", engine / bare, 3);
    return 0;
}
