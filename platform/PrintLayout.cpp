#include "platform/PrintLayout.h"

#include "platform/LayoutReader.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QPointF PrintCells::corner(int cell) const
{
    const int row = cell / columns;
    return first.topLeft() + QPointF((cell % columns) * (first.width() + gapX), row * (first.height() + gapY));
}

Result PrintLayout::read(const QString &path, PrintLayout &layout)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {NoFile, path + u": "_s + file.errorString()};
    LayoutReader reader;
    PrintLayout taken = reader.read(file.readAll());
    if (!reader.result())
        return {reader.result().number(), path + u": "_s + reader.result().text()};
    taken.folder = QFileInfo(path).absolutePath();
    layout = std::move(taken);
    return {};
}

int PrintDocument::pages() const
{
    const int perSheet = layout.cells.count();
    const int sheets = layout.cells.objects.isEmpty() ? 1 : (int(cells.size()) + perSheet - 1) / perSheet;
    return std::max({1, sheets, int(drawn.size())});
}

QString PrintDocument::filled(const QString &text, const PrintFields &cell) const
{
    QString all;
    qsizetype end = 0;
    for (qsizetype start = text.indexOf(u"$("_s); start >= 0; start = text.indexOf(u"$("_s, end)) {
        const qsizetype close = text.indexOf(u')', start);
        if (close < 0)
            break;
        const QString key = text.mid(start + 2, close - start - 2);
        all += QStringView(text).mid(end, start - end);
        all += cell.value(key, fields.value(key, layout.fields.value(key)));
        end = close + 1;
    }
    return all + QStringView(text).mid(end);
}
