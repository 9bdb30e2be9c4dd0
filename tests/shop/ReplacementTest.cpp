#include "shop/Replacement.h"
#include "shop/PageTemplate.h"
#include "tests/support/Suite.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

class ReplacementTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void order()
    {
        // The values of [a], [b], [A].
        const Rows<QString, QStringList, QString> rows = {
            {"every occurrence", u"[a][b][a]"_s, QStringList({u"1"_s, u"2"_s, u"3"_s}), u"121"_s},
            {"case counts", u"[a] [A] [B]"_s, QStringList({u"1"_s, u"2"_s, u"3"_s}), u"1 3 [B]"_s},
            {"later one in a value", u"[a]"_s, QStringList({u"x[b]y"_s, u"2"_s, u""_s}), u"x2y"_s},
            {"earlier one in a value", u"[b]"_s, QStringList({u"1"_s, u"x[a]"_s, u""_s}), u"x[a]"_s},
            {"itself in a value", u"[a]"_s, QStringList({u"[a][a]"_s, u"2"_s, u""_s}), u"[a][a]"_s},
            {"chain", u"[a]"_s, QStringList({u"[b]"_s, u"[A]"_s, u"3"_s}), u"3"_s},
            {"made of two values", u"[a][b]"_s, QStringList({u"["_s, u"A]"_s, u"3"_s}), u"3"_s},
            {"made of text and value", u"[[a]]"_s, QStringList({u"b"_s, u"2"_s, u""_s}), u"2"_s},
            {"made by an empty value", u"[[a]A]"_s, QStringList({u""_s, u""_s, u"3"_s}), u"3"_s},
            {"no step", u"[c] [ a] []"_s, QStringList({u"1"_s, u"2"_s, u"3"_s}), u"[c] [ a] []"_s},
            {"nothing", u""_s, QStringList({u"1"_s, u"2"_s, u"3"_s}), u""_s}};
        for (const auto &[row, text, values, result] : rows) {
            const Row named(row);
            QCOMPARE(applyReplacements(text, {{u"[a]"_s, values[0]}, {u"[b]"_s, values[1]}, {u"[A]"_s, values[2]}}),
                     result);
            const PageTemplate page(text, {u"[a]"_s, u"[b]"_s, u"[A]"_s});
            QCOMPARE(page.fill({values[0], values[1], values[2]}), result);
            QString appended = u"before "_s;
            page.appendTo(appended, {values[0], values[1], values[2]});
            QCOMPARE(appended, u"before "_s + page.fill({values[0], values[1], values[2]}));
        }
    }

    /// A template that is taken apart must never be told from one whose steps are run one after the other, whatever
    /// the values bring along. The texts are put together from the pieces that could mislead it.
    void takenApartOrNot()
    {
        const QStringList placeholders = {u"[nom]"_s, u"[prix]"_s, u"[a]"_s, u"[devis]"_s};
        const QStringList pieces = {u"["_s,     u"]"_s,      u"nom"_s, u"prix"_s, u"[nom"_s, u"prix]"_s,   u"[a]"_s,
                                    u"[nom]"_s, u"[prix]"_s, u"a"_s,   u"x"_s,    u""_s,     u"[devis]"_s, u"[["_s};
        QRandomGenerator random(20260504);
        const auto text = [&](int longest) {
            QString made;
            for (int i = random.bounded(longest + 1); i > 0; --i)
                made += pieces[random.bounded(int(pieces.size()))];
            return made;
        };
        for (int round = 0; round < 20000; ++round) {
            const QString page = text(7);
            std::vector<Replacement> steps;
            std::vector<QStringView> values;
            for (const QString &placeholder : placeholders)
                steps.push_back({placeholder, text(2)});
            for (const Replacement &step : steps)
                values.push_back(step.value);
            const QString expected = applyReplacements(page, steps);
            if (PageTemplate(page, placeholders).fill(values) != expected) {
                QString what = page;
                for (const Replacement &step : steps)
                    what += u" | "_s + step.value;
                QFAIL(qPrintable(what + u" should give "_s + expected));
            }
        }
    }

    void quotes()
    {
        QCOMPARE(quoteRule(u"<a href='x' onclick=@f('y')@>\"@'"_s), u"<a href=\"x\" onclick='f(\"y\")'>\"'\""_s);
        QCOMPARE(toDoubleQuotes(u"'a' @ \"b\""_s), u"\"a\" @ \"b\""_s);
        QCOMPARE(withoutApostrophes(u"l'été \"à\" ’"_s), u"lété \"à\" ’"_s);
        QCOMPARE(withoutQuotes(u"l'été \"à\" ’"_s), u"lété à ’"_s);
    }
};

ZELVANTOR_SUITE(ReplacementTest)
#include "ReplacementTest.moc"
