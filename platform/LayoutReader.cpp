#include "platform/LayoutReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double largestPage = 20000; // two metres
constexpr double largestType = 400;
constexpr int mostCells = 1000;

using Kind = PrintObject::Kind;
using Fit = PrintObject::Fit;

const QMap<QString, Kind> kinds = {{u"text"_s, Kind::Text},
                                   {u"picture"_s, Kind::Picture},
                                   {u"box"_s, Kind::Box},
                                   {u"line"_s, Kind::Line},
                                   {u"ean13"_s, Kind::Ean13}};
const QMap<QString, Fit> fits = {{u"wrap"_s, Fit::Wrap}, {u"shrink"_s, Fit::Shrink}, {u"cut"_s, Fit::Cut}};
const QMap<QString, Qt::AlignmentFlag> sides = {
    {u"left"_s, Qt::AlignLeft}, {u"center"_s, Qt::AlignHCenter}, {u"right"_s, Qt::AlignRight}};
const QMap<QString, Qt::AlignmentFlag> heights = {
    {u"top"_s, Qt::AlignTop}, {u"middle"_s, Qt::AlignVCenter}, {u"bottom"_s, Qt::AlignBottom}};

const QMap<Kind, QStringList> keysOfKind = {{Kind::Text,
                                             {u"text"_s, u"when"_s, u"fit"_s, u"size"_s, u"smallest"_s, u"bold"_s,
                                              u"html"_s, u"align"_s, u"valign"_s, u"colour"_s}},
                                            {Kind::Picture, {u"file"_s, u"align"_s, u"valign"_s}},
                                            {Kind::Box, {u"pen"_s, u"colour"_s, u"fill"_s}},
                                            {Kind::Line, {u"pen"_s, u"colour"_s}},
                                            {Kind::Ean13, {u"text"_s, u"when"_s, u"digits"_s, u"align"_s}}};

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

/// With the slack that sums of decimal measures need.
bool isWithin(const QRectF &box, const QRectF &room)
{
    constexpr double slack = 0.01;
    return box.left() >= room.left() - slack && box.top() >= room.top() - slack && box.right() <= room.right() + slack
           && box.bottom() <= room.bottom() + slack;
}

} // namespace

PrintLayout LayoutReader::read(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        const qsizetype line = json.left(error.offset).count('\n') + 1;
        fail(PrintLayout::NoJson, u"line "_s + QString::number(line),
             document.isNull() ? error.errorString() : u"no object"_s);
        return m_layout;
    }
    const QJsonObject all = document.object();
    checkKeys(all, {}, {u"title"_s, u"font"_s, u"page"_s, u"fields"_s, u"objects"_s, u"cells"_s});
    m_layout.title = text(all, {}, u"title"_s);
    m_layout.font = text(all, {}, u"font"_s, m_layout.font);
    readPage(part(all, u"page"_s));
    const QJsonObject fields = part(all, u"fields"_s);
    for (const QString &name : fields.keys())
        m_layout.fields.insert(name, text(fields, u"fields."_s, name));
    const QRectF room = QRectF(QPointF(), m_layout.page).marginsRemoved(m_layout.margins);
    if (!all.value(u"objects"_s).isUndefined() && !all.value(u"objects"_s).isArray())
        fail(PrintLayout::BadEntry, u"objects"_s, u"is no list"_s);
    m_layout.objects = readObjects(all.value(u"objects"_s).toArray(), u"objects"_s, room);
    if (all.contains(u"cells"_s))
        readCells(part(all, u"cells"_s));
    return m_layout;
}

void LayoutReader::readPage(const QJsonObject &object)
{
    const QString place = u"page."_s;
    checkKeys(object, place, {u"width"_s, u"height"_s, u"margins"_s});
    m_layout.page = {number(object, place, u"width"_s, m_layout.page.width(), 1),
                     number(object, place, u"height"_s, m_layout.page.height(), 1)};
    if (m_layout.page.width() > largestPage || m_layout.page.height() > largestPage)
        fail(PrintLayout::BadEntry, u"page"_s, u"is too large"_s);
    if (!object.contains(u"margins"_s))
        return;
    const QJsonArray sides4 = object.value(u"margins"_s).toArray();
    std::array<double, 4> width{};
    for (int i = 0; i < 4; ++i)
        width[size_t(i)] = sides4.at(i).toDouble(-1);
    if (sides4.size() != 4 || *std::min_element(width.begin(), width.end()) < 0)
        fail(PrintLayout::BadEntry, place + u"margins"_s, u"is not left, top, right, bottom"_s);
    else
        m_layout.margins = {width[0], width[1], width[2], width[3]};
}

void LayoutReader::readCells(const QJsonObject &object)
{
    const QString place = u"cells."_s;
    checkKeys(object, place, {u"first"_s, u"columns"_s, u"rows"_s, u"gapX"_s, u"gapY"_s, u"objects"_s});
    PrintCells &cells = m_layout.cells;
    cells.first = rectangle(object.value(u"first"_s), place + u"first"_s);
    const double columns = number(object, place, u"columns"_s, 1, 1);
    const double rows = number(object, place, u"rows"_s, 1, 1);
    if (columns * rows > mostCells)
        return fail(PrintLayout::BadEntry, u"cells"_s, u"are too many"_s);
    cells.columns = int(columns);
    cells.rows = int(rows);
    cells.gapX = number(object, place, u"gapX"_s, 0, 0);
    cells.gapY = number(object, place, u"gapY"_s, 0, 0);
    const QRectF last = cells.first.translated(cells.corner(cells.count() - 1) - cells.first.topLeft());
    const QRectF room = QRectF(QPointF(), m_layout.page).marginsRemoved(m_layout.margins);
    if (!isWithin(cells.first.united(last), room))
        return fail(PrintLayout::OffPage, u"cells"_s, u"leave the page"_s);
    cells.objects =
        readObjects(object.value(u"objects"_s).toArray(), place + u"objects"_s, QRectF(QPointF(), cells.first.size()));
    if (cells.objects.isEmpty())
        fail(PrintLayout::BadEntry, place + u"objects"_s, u"is missing or empty"_s);
}

QList<PrintObject> LayoutReader::readObjects(const QJsonArray &list, const QString &place, const QRectF &room)
{
    QList<PrintObject> objects;
    for (int i = 0; i < list.size() && m_result; ++i) {
        const QString here = place + u'[' + QString::number(i + 1) + u']';
        objects << readObject(list.at(i).toObject(), here + u'.');
        const QRectF &taken = objects.last().place;
        if (m_result && !isWithin(taken, room))
            fail(PrintLayout::OffPage, here, u"leaves the page, its margins or its cell"_s);
    }
    return objects;
}

PrintObject LayoutReader::readObject(const QJsonObject &object, const QString &place)
{
    PrintObject taken;
    const QString kind = text(object, place, u"type"_s);
    if (!kinds.contains(kind)) {
        fail(PrintLayout::BadEntry, place + u"type"_s, quoted(kind) + u" is no kind of object"_s);
        return taken;
    }
    taken.kind = kinds.value(kind);
    checkKeys(object, place, keysOfKind.value(taken.kind) + QStringList{u"type"_s, u"box"_s});
    taken.place = rectangle(object.value(u"box"_s), place + u"box"_s);
    const bool isFlat = taken.place.isEmpty();
    if (m_result && isFlat && taken.kind != Kind::Line)
        fail(PrintLayout::BadEntry, place + u"box"_s, u"is empty"_s);
    readText(object, place, taken);
    readLook(object, place, taken);
    return taken;
}

void LayoutReader::readText(const QJsonObject &object, const QString &place, PrintObject &taken)
{
    taken.text = text(object, place, taken.kind == Kind::Picture ? u"file"_s : u"text"_s);
    checkFields(taken.text, place);
    taken.when = text(object, place, u"when"_s);
    if (!QRegularExpression(taken.when).isValid())
        fail(PrintLayout::BadEntry, place + u"when"_s, u"is no regular expression"_s);
    const QString fit = text(object, place, u"fit"_s, u"wrap"_s);
    if (!fits.contains(fit))
        fail(PrintLayout::BadEntry, place + u"fit"_s, quoted(fit) + u" is not wrap, shrink or cut"_s);
    taken.fit = fits.value(fit);
    taken.points = number(object, place, u"size"_s, taken.points, 1);
    taken.smallest = number(object, place, u"smallest"_s, std::min(taken.smallest, taken.points), 1);
    if (taken.points > largestType || taken.smallest > taken.points)
        fail(PrintLayout::BadEntry, place + u"size"_s, u"is too large, or below the smallest"_s);
    taken.bold = flag(object, place, u"bold"_s, false);
    taken.html = flag(object, place, u"html"_s, false);
    taken.digits = flag(object, place, u"digits"_s, true);
}

void LayoutReader::readLook(const QJsonObject &object, const QString &place, PrintObject &taken)
{
    const bool isPicture = taken.kind == Kind::Picture || taken.kind == Kind::Ean13;
    const QString side = text(object, place, u"align"_s, isPicture ? u"center"_s : u"left"_s);
    const QString height = text(object, place, u"valign"_s, isPicture ? u"middle"_s : u"top"_s);
    if (!sides.contains(side))
        fail(PrintLayout::BadEntry, place + u"align"_s, quoted(side) + u" is not left, center or right"_s);
    if (!heights.contains(height))
        fail(PrintLayout::BadEntry, place + u"valign"_s, quoted(height) + u" is not top, middle or bottom"_s);
    taken.alignment = sides.value(side) | heights.value(height);
    taken.pen = number(object, place, u"pen"_s, taken.pen, 0);
    taken.colour = colour(text(object, place, u"colour"_s, u"#000000"_s), place + u"colour"_s);
    taken.isFilled = object.contains(u"fill"_s);
    taken.fill = colour(text(object, place, u"fill"_s, u"#ffffff"_s), place + u"fill"_s);
}

void LayoutReader::checkKeys(const QJsonObject &object, const QString &place, const QStringList &known)
{
    for (const QString &key : object.keys())
        if (!known.contains(key))
            fail(PrintLayout::BadEntry, place + key, u"is unknown"_s);
}

void LayoutReader::checkFields(const QString &text, const QString &place)
{
    static const QRegularExpression field(u"\\$\\(([^)]*)\\)"_s);
    for (auto found = field.globalMatch(text); found.hasNext();)
        if (const QString name = found.next().captured(1); !m_layout.fields.contains(name))
            fail(PrintLayout::BadEntry, place + u"text"_s, u"$("_s + name + u") is not among the fields"_s);
}

double LayoutReader::number(const QJsonObject &object, const QString &place, const QString &key, double absent,
                            double least)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return absent;
    if (value.isDouble() && value.toDouble() >= least)
        return value.toDouble();
    fail(PrintLayout::BadEntry, place + key, u"is no number, or too small"_s);
    return absent;
}

QString LayoutReader::text(const QJsonObject &object, const QString &place, const QString &key, const QString &absent)
{
    const QJsonValue value = object.value(key);
    if (!value.isUndefined() && !value.isString())
        fail(PrintLayout::BadEntry, place + key, u"is no text"_s);
    return value.toString(absent);
}

bool LayoutReader::flag(const QJsonObject &object, const QString &place, const QString &key, bool absent)
{
    const QJsonValue value = object.value(key);
    if (!value.isUndefined() && !value.isBool())
        fail(PrintLayout::BadEntry, place + key, u"is neither true nor false"_s);
    return value.toBool(absent);
}

QJsonObject LayoutReader::part(const QJsonObject &object, const QString &key)
{
    const QJsonValue value = object.value(key);
    if (!value.isUndefined() && !value.isObject())
        fail(PrintLayout::BadEntry, key, u"is no object"_s);
    return value.toObject();
}

QRectF LayoutReader::rectangle(const QJsonValue &value, const QString &place)
{
    const QJsonArray sides4 = value.toArray();
    bool isWhole = sides4.size() == 4;
    for (const QJsonValueConstRef side : sides4)
        isWhole = isWhole && side.isDouble();
    const QRectF taken(QPointF(sides4.at(0).toDouble(), sides4.at(1).toDouble()),
                       QPointF(sides4.at(2).toDouble(), sides4.at(3).toDouble()));
    if (!isWhole || taken.width() < 0 || taken.height() < 0)
        fail(PrintLayout::BadEntry, place, u"is not left, top, right, bottom"_s);
    return taken;
}

unsigned LayoutReader::colour(const QString &text, const QString &place)
{
    static const QRegularExpression form(u"^#[0-9a-fA-F]{6}$"_s);
    if (!form.match(text).hasMatch())
        fail(PrintLayout::BadEntry, place, quoted(text) + u" is no colour such as \"#8a1c1c\""_s);
    return text.mid(1).toUInt(nullptr, 16);
}

void LayoutReader::fail(int number, const QString &place, const QString &text)
{
    if (m_result)
        m_result = {number, place + u": "_s + text};
}
