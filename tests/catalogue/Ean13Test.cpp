#include "catalogue/Ean13.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class Ean13Test : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void checkDigits()
    {
        const Rows<QString, QString, QString> rows = {{"plain", u"123456789012"_s, u"123456789012"_s, u"8"_s},
                                                      {"of a reference", u"100420202603"_s, u"100420202603"_s, u"4"_s},
                                                      {"sum of 0", u"000000000000"_s, u"000000000000"_s, u"0"_s},
                                                      {"padded", u"42"_s, u"000000000042"_s, u"0"_s},
                                                      {"no number stays", u"A1"_s, u"A1"_s, u"7"_s}};
        for (auto [row, code, rewritten, digit] : rows) {
            const Row named(row);
            QCOMPARE(Ean13::CalculerCD(code), digit);
            QCOMPARE(code, rewritten);
        }
    }

    void codesOfReferences()
    {
        const Rows<QString, QString, bool> rows = {{"standard", u"00042/202603"_s, u"1004202026034"_s, true},
                                                   {"short", u"12"_s, u"0000000001120"_s, true},
                                                   {"letters", u"AB/12"_s, u"1AB0122"_s, false}};
        for (const auto &[row, reference, code, valid] : rows) {
            const Row named(row);
            QCOMPARE(Ean13::fromReference(reference), code);
            QCOMPARE(Ean13::isValid(code), valid);
        }
    }
};

ZELVANTOR_SUITE(Ean13Test)
#include "Ean13Test.moc"
