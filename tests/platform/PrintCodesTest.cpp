#include "platform/PrintCodes.h"
#include "tests/support/Suite.h"

#include <QTest>

using namespace Qt::StringLiterals;
using PrintCodes::Line;
using PrintCodes::Run;

class PrintCodesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void codes_data();
    void codes();
};

void PrintCodesTest::codes_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QList<Line>>("lines");
    const Run plain;
    QTest::newRow("header of a list")
        << u"/fb1Date: /fb004 May 2026/n/fb1By: /fb0ann/c/fn\"Arial\"/fz\"12\"/fb1/fu1Stocks/n/n"_s
        << QList<Line>{{{u"Date: "_s, {}, 0, true}, {u"04 May 2026"_s}},
                       {{u"By: "_s, {}, 0, true}, {u"ann"_s}, {u"Stocks"_s, u"Arial"_s, 12, true, true, true}},
                       {{{}, u"Arial"_s, 12, true, true, true}},
                       {{{}, u"Arial"_s, 12, true, true, true}}};
    QTest::newRow("pages") << u"Pages:/p///pc"_s << QList<Line>{{{u"Pages:2/13"_s}}};
    QTest::newRow("nothing") << QString() << QList<Line>{{plain}};
    QTest::newRow("text that looks like codes")
        << QString(PrintCodes::escape(u"a/nb//c /fb1 /"_s)) << QList<Line>{{{u"a/nb//c /fb1 /"_s}}};
    QTest::newRow("no code") << u"1/2 /fz\"x\" /fn\"open /x /"_s << QList<Line>{{{u"1/2 /fz\"x\" /fn\"open /x /"_s}}};
}

void PrintCodesTest::codes()
{
    QFETCH(QString, given);
    QFETCH(QList<Line>, lines);
    QCOMPARE(PrintCodes::parse(given, 2, 13), lines);
}

ZELVANTOR_SUITE(PrintCodesTest)
#include "PrintCodesTest.moc"
