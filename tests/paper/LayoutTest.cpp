#include "catalogue/Ean13.h"
#include "tests/paper/Printed.h"
#include "tests/support/Suite.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

const QString delivered = QStringLiteral(ZELVANTOR_SHARE);

PrintLayout layoutOf(const QString &name)
{
    PrintLayout layout;
    if (const Result read = PrintLayout::read(delivered + u'/' + name, layout); !read)
        qFatal("%s", qPrintable(read.message()));
    return layout;
}

QByteArray text(const char *rest)
{
    return QByteArray(R"({"fields": {"Nom": ""}, "objects": [{"type": "text", "box": [0, 0, 100, 50], )") + rest
           + "}]}";
}

QByteArray page(const char *rest)
{
    return QByteArray("{\"page\": {") + rest + "}}";
}

using Layout = PrintLayout;
const Rows<QByteArray, int, QString> badFiles = {
    {"no json", QByteArray("{\n\"page\":\n2100"), int(Layout::NoJson), u"line 3"_s},
    {"a list", QByteArray("[]"), int(Layout::NoJson), u"no object"_s},
    {"empty", QByteArray(), int(Layout::NoJson), u"line 1"_s},
    {"key", text(R"("tekst": "x")"), int(Layout::BadEntry), u"objects[1].tekst: is unknown"_s},
    {"key of another kind", text(R"("pen": 1)"), int(Layout::BadEntry), u"objects[1].pen"_s},
    {"field", text(R"x("text": "$(Name)")x"), int(Layout::BadEntry), u"$(Name)"_s},
    {"fit", text(R"("fit": "squeeze")"), int(Layout::BadEntry), u"squeeze"_s},
    {"size", text(R"("size": "9")"), int(Layout::BadEntry), u"objects[1].size"_s},
    {"colour", text(R"("colour": "red")"), int(Layout::BadEntry), u"objects[1].colour"_s},
    {"when", text(R"("when": "(")"), int(Layout::BadEntry), u"objects[1].when"_s},
    {"margins", page(R"("margins": [1, 2, 3])"), int(Layout::BadEntry), u"page.margins"_s},
    {"no page", page(R"("width": 0)"), int(Layout::BadEntry), u"page.width"_s},
    {"kind", QByteArray(R"({"objects": [{"type": "circle"}]})"), int(Layout::BadEntry), u"circle"_s},
    {"box", QByteArray(R"({"objects": [{"type": "box", "box": [5, 5, 1, 9]}]})"), int(Layout::BadEntry),
     u"objects[1].box"_s},
    {"off the page", QByteArray(R"({"objects": [{"type": "box", "box": [0, 0, 2101, 9]}]})"), int(Layout::OffPage),
     u"objects[1]"_s},
    {"in the margin",
     QByteArray(R"({"page": {"margins": [50, 0, 0, 0]}, "objects": [{"type": "line", "box": [49, 9, 90, 9]}]})"),
     int(Layout::OffPage), u"objects[1]"_s},
    {"cells off the page",
     QByteArray(
         R"({"cells": {"first": [0, 0, 900, 300], "columns": 3, "objects": [{"type": "box", "box": [0, 0, 9, 9]}]}})"),
     int(Layout::OffPage), u"cells"_s},
    {"off its cell",
     QByteArray(R"({"cells": {"first": [0, 0, 90, 30], "objects": [{"type": "box", "box": [0, 0, 91, 9]}]}})"),
     int(Layout::OffPage), u"cells.objects[1]"_s},
    {"cells without end",
     QByteArray(R"({"cells": {"first": [0, 0, 0, 0], "columns": 1e9, "rows": 1e9, "objects": []}})"),
     int(Layout::BadEntry), u"too many"_s}};

} // namespace

/// Layout files and what the engine makes of them.
class LayoutTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void badFilesSayWhatIsWrong()
    {
        for (const auto &[row, json, number, says] : badFiles) {
            const Row named(row);
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"x.tpl"_s);
            PrintLayout layout;
            layout.title = u"before"_s;
            QCOMPARE(PrintLayout::read(path, layout).number(), long(PrintLayout::NoFile));
            Files::write(path, json);
            const Result read = PrintLayout::read(path, layout);
            QCOMPARE(int(read.number()), number);
            QVERIFY2(read.text().contains(path) && read.text().contains(says), qPrintable(read.text()));
            QCOMPARE(layout.title, u"before"_s);
        }
    }

    void sheets_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("labels");
        QTest::newRow("two columns") << u"etiquette1.tpl"_s << 14;
        QTest::newRow("description") << u"etiquette2.tpl"_s << 14;
        QTest::newRow("three columns") << u"etiquette3.tpl"_s << 21;
        QTest::newRow("four columns") << u"etiquette4.tpl"_s << 40;
        QTest::newRow("product sheet") << u"ft1.tpl"_s << 1;
    }

    /// Whatever a merchant types, each label keeps to its cell and its code can be read.
    void sheets()
    {
        QFETCH(QString, name);
        QFETCH(int, labels);
        PrintDocument document{layoutOf(name)};
        document.fields = {{u"Nom"_s, u"Kochmesser"_s},
                           {u"dDescription"_s, u"<p>Ein <b>Alltagsmesser</b></p><ul><li>56&nbsp;HRC</li></ul>"_s},
                           {u"RefArticle"_s, u"00001/202501"_s},
                           {u"PrixTTC"_s, u"45.90 EUR"_s}};
        // A scanner tells equal codes of one picture once.
        QStringList codes;
        for (int label = 0; label < labels; ++label) {
            QString code = u"300000%1"_s.arg(label * 7919, 6, 10, QLatin1Char('0'));
            const QString check = Ean13::CalculerCD(code);
            codes << code + check;
            document.cells << PrintFields{{u"Ean13"_s, codes.last()}};
        }
        if (labels == 1)
            document.fields.insert(u"Ean13"_s, codes.first());
        const Printed printed(document);
        QStringList read = Printed::codes(printed.picture());
        read.sort();
        codes.sort();
        QCOMPARE(read, codes);
        for (const QString &field : {u"RefArticle"_s, u"dDescription"_s})
            if (!document.layout.fields.contains(field))
                document.fields.remove(field);
        const QString text = printed.text();
        QCOMPARE(text.count(u"Kochmesser"_s), labels);
        QCOMPARE(text.count(u"45.90 EUR"_s), labels);
        QCOMPARE(text.count(u"00001/202501"_s), document.fields.contains(u"RefArticle"_s) ? labels : 0);
        QCOMPARE(text.count(u"• 56"_s), document.fields.contains(u"dDescription"_s) ? labels : 0);
        QVERIFY(!text.contains(u"<b>"_s));

        const QString greek = u"Ταψί "_s;
        document.cells.clear();
        document.fields = {{u"Nom"_s, greek.repeated(90)}, {u"PrixTTC"_s, u" EUR"_s}, {u"Ean13"_s, u""_s}};
        for (const QString &field : document.layout.fields.keys())
            if (!document.fields.contains(field))
                document.fields.insert(field, name == u"ft1.tpl"_s ? QString() : greek.repeated(300));
        const Printed crowded(document);
        QCOMPARE(Printed::codes(crowded.picture()), QStringList());
        QVERIFY(!crowded.text().contains(u"EUR"_s));
        QVERIFY(crowded.text().count(u'…') >= labels);
        if (document.layout.cells.objects.isEmpty() || name == u"etiquette1.tpl"_s) // its frame is ink at the very edge
            return;
        const QImage full = crowded.picture();
        const QRectF cell = document.layout.cells.first;
        const QRectF ink = Printed::ink(full, cell.adjusted(-12, 0, 12, 0));
        QVERIFY2(cell.contains(ink) && ink.width() > cell.width() * 0.7, qPrintable(u"%1"_s.arg(ink.right())));
    }

    void twoColumnsStandWhereTold()
    {
        PrintDocument document{layoutOf(u"etiquette1.tpl"_s)};
        document.fields = {{u"Ean13"_s, u"1000102025016"_s},
                           {u"Nom"_s, u"Nom"_s},
                           {u"RefArticle"_s, u"Reference"_s},
                           {u"PrixTTC"_s, u"9.90"_s}};
        const Printed printed(document);
        const QImage page = printed.picture();
        const auto isNear = [](double found, double told) { return std::abs(found - told) <= 5; };
        const QList<QRectF> names = printed.places(u"Nom"_s);
        const QList<QRectF> references = printed.places(u"Reference"_s);
        const QList<QRectF> prices = printed.places(u"9.90"_s);
        QCOMPARE(names.size(), 14);
        for (int label = 0; label < 14; ++label) {
            const QPointF corner(label % 2 ? 1100 : 200, 200 + 330 * (label / 2));
            const QRectF frame = Printed::ink(page, QRectF(corner, QSizeF(800, 300)).adjusted(-15, -15, 15, 15));
            QVERIFY(isNear(frame.left(), corner.x()) && isNear(frame.right(), corner.x() + 800));
            QVERIFY(isNear(frame.top(), corner.y()) && isNear(frame.bottom(), corner.y() + 300));
            const auto stands = [&](const QList<QRectF> &words, QPointF told, double bottom) {
                return std::any_of(words.begin(), words.end(), [&](const QRectF &word) {
                    return isNear(word.left(), corner.x() + told.x()) && word.top() > corner.y() + told.y() - 5
                           && word.bottom() < corner.y() + bottom + 5;
                });
            };
            QVERIFY(stands(names, {30, 10}, 50));
            QVERIFY(stands(references, {30, 70}, 120));
            QVERIFY(std::any_of(prices.begin(), prices.end(), [&](const QRectF &word) {
                return isNear(word.right(), corner.x() + 770)
                       && QRectF(corner.x() + 535, corner.y() + 135, 240, 90).contains(word);
            }));
            // The bars begin behind their quiet zone and reach to the told top.
            const QRectF bars = Printed::ink(page, QRectF(corner + QPointF(65, 130), QSizeF(440, 100)));
            const double module = 460.0 / 113;
            QVERIFY(isNear(bars.left(), corner.x() + 30 + 11 * module) && isNear(bars.top(), corner.y() + 140));
            QVERIFY(isNear(bars.right(), corner.x() + 490 - 7 * module));
        }
    }

    void cellsWithValuesOfTheirOwn()
    {
        PrintDocument document{layoutOf(u"etiquette4.tpl"_s)};
        document.fields = {{u"PrixTTC"_s, u"3.50 EUR"_s}};
        for (int i = 0; i < 41; ++i)
            document.cells << PrintFields{{u"Nom"_s, u"Pot%1"_s.arg(i)}};
        QCOMPARE(document.pages(), 2);
        const QStringList pages = Printed(document).text().split(u'\f');
        QCOMPARE(pages[0].count(u"3.50 EUR"_s), 40);
        QVERIFY(pages[0].contains(u"Pot0 "_s) && !pages[0].contains(u"Pot40"_s));
        QCOMPARE(pages[1].simplified(), u"Pot40 3.50 EUR"_s);
    }

    void textsAsTold()
    {
        PrintLayout layout;
        layout.fields = {{u"A"_s, u"absent"_s}};
        PrintObject text;
        text.place = {200, 200, 600, 100};
        layout.font = u"DejaVu Sans"_s; // whatever the desktop writes in
        text.points = 12;
        const QString words =
            u"eins zwei drei vier fünf sechs sieben acht neun zehn elf zwölf dreizehn vierzehn\nfünfzehn"_s;
        PrintDocument document{layout};
        const auto print = [&](PrintObject::Fit fit, const QString &value) {
            text.fit = fit;
            text.text = value;
            document.drawn = {{text}};
            return Printed(document);
        };
        const Printed cut = print(PrintObject::Fit::Cut, words);
        QCOMPARE(cut.text().trimmed().count(u'\n'), 0);
        QVERIFY(cut.text().contains(u'…'));
        const Printed wrapped = print(PrintObject::Fit::Wrap, words);
        QCOMPARE(wrapped.text().trimmed().count(u'\n'), 1);
        QVERIFY(wrapped.text().contains(u'…'));
        QVERIFY(text.place.adjusted(-5, -5, 5, 5).contains(Printed::ink(wrapped.picture(), {100, 100, 1000, 400})));
        const Printed shrunk = print(PrintObject::Fit::Shrink, words);
        QVERIFY(shrunk.text().contains(u"vierzehn"_s) && shrunk.text().contains(u"fünfzehn"_s));
        QVERIFY(shrunk.places(u"zwei"_s).first().height() < wrapped.places(u"zwei"_s).first().height());
        text.alignment = Qt::AlignRight | Qt::AlignBottom;
        const Printed right = print(PrintObject::Fit::Wrap, u"$(A)!"_s);
        const QRectF word = right.places(u"absent!"_s).first();
        QVERIFY(std::abs(word.right() - 800) < 5 && word.bottom() > 285 && word.bottom() < 305);
    }

    void wrongCodesAreMarked()
    {
        PrintDocument document{layoutOf(u"etiquette3.tpl"_s)};
        for (const QString &code :
             {u"1000102025017"_s, u"100010202501"_s, u"10001020250166"_s, u"ABC"_s, u"１０００１０２０２５０１６"_s}) {
            document.fields = {{u"Ean13"_s, code}};
            const Printed printed(document);
            QCOMPARE(Printed::codes(printed.picture()), QStringList());
            const bool hasLetters = code.at(0) < u'\x7f'; // the fonts of a bare machine
            QVERIFY2(!hasLetters || printed.text().contains(code), qPrintable(printed.text()));
            QVERIFY2(printed.text().contains(u"≠ EAN-13"_s), qPrintable(printed.text()));
        }
        document.fields = {{u"Ean13"_s, u" 4006381333931 "_s}};
        QCOMPARE(Printed::codes(Printed(document).picture()), QStringList{u"4006381333931"_s});
    }

    void picturesKeepTheirRatio()
    {
        const QTemporaryDir folder;
        QImage wide(400, 100, QImage::Format_RGB32);
        wide.fill(Qt::black);
        wide.save(folder.filePath(u"wide.png"_s));
        Files::write(folder.filePath(u"broken.png"_s), "no picture");
        PrintObject picture;
        picture.kind = PrintObject::Kind::Picture;
        picture.place = {300, 300, 600, 600};
        picture.alignment = Qt::AlignCenter;
        PrintDocument document;
        document.layout.folder = folder.path();
        const auto inkOf = [&](const QString &file) {
            picture.text = file;
            document.drawn = {{picture}};
            return Printed::ink(Printed(document).picture(), {0, 0, 2100, 2970});
        };
        const QRectF ink = inkOf(u"wide.png"_s);
        QVERIFY(std::abs(ink.left() - 300) < 3 && std::abs(ink.width() - 600) < 5);
        QVERIFY(std::abs(ink.top() - 525) < 3 && std::abs(ink.height() - 150) < 5);
        QVERIFY(inkOf(u"gone.png"_s).isEmpty());
        QVERIFY(inkOf(u"broken.png"_s).isEmpty());
    }
};

ZELVANTOR_SUITE(LayoutTest)
#include "LayoutTest.moc"
