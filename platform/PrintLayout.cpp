#include "platform/PrintLayout.h"

#include "platform/LayoutReader.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

QPointF PrintCells::corner(int cell) const
{
    return first.topLeft()
           + QPointF((cell % columns) * (first.width() + gapX), (cell / columns) * (first.height() + gapY));
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
    static const QRegularExpression field(u"\\$\\(([^)]*)\\)"_s);
    QString all;
    qsizetype end = 0;
    for (auto found = field.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QString key = match.captured(1);
        all += QStringView(text).mid(end, match.capturedStart() - end);
        all += cell.value(key, fields.value(key, layout.fields.value(key)));
        end = match.capturedEnd();
    }
    return all + QStringView(text).mid(end);
}
