#include "platform/PrintCodes.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;
using PrintCodes::Line;
using PrintCodes::Run;

class PrintCodesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void codes()
    {
        const Run plain;
        const Rows<QString, QList<Line>> rows = {
            {"header of a list",
             u"/fb1Date: /fb004 May 2026/n/fb1By: /fb0ann/c/fn\"Arial\"/fz\"12\"/fb1/fu1Stocks/n/n"_s,
             QList<Line>{{{u"Date: "_s, {}, 0, true}, {u"04 May 2026"_s}},
                         {{u"By: "_s, {}, 0, true}, {u"ann"_s}, {u"Stocks"_s, u"Arial"_s, 12, true, true, true}},
                         {{{}, u"Arial"_s, 12, true, true, true}},
                         {{{}, u"Arial"_s, 12, true, true, true}}}},
            {"pages", u"Pages:/p///pc"_s, QList<Line>{{{u"Pages:2/13"_s}}}},
            {"nothing", QString(), QList<Line>{{plain}}},
            {"text that looks like codes", QString(PrintCodes::escape(u"a/nb//c /fb1 /"_s)),
             QList<Line>{{{u"a/nb//c /fb1 /"_s}}}},
            {"no code", u"1/2 /fz\"x\" /fn\"open /x /"_s, QList<Line>{{{u"1/2 /fz\"x\" /fn\"open /x /"_s}}}}};
        for (const auto &[row, given, lines] : rows) {
            const Row named(row);
            QCOMPARE(PrintCodes::parse(given, 2, 13), lines);
        }
    }
};

ZELVANTOR_SUITE(PrintCodesTest)
#include "PrintCodesTest.moc"
