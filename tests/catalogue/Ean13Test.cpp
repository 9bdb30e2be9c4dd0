#include "catalogue/Ean13.h"
#include "tests/support/Suite.h"

#include <QTest>

using namespace Qt::StringLiterals;

class Ean13Test : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void checkDigits_data();
    void checkDigits();
    void codesOfReferences_data();
    void codesOfReferences();
};

void Ean13Test::checkDigits_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("rewritten");
    QTest::addColumn<QString>("digit");
    QTest::newRow("plain") << u"123456789012"_s << u"123456789012"_s << u"8"_s;
    QTest::newRow("of a reference") << u"100420202603"_s << u"100420202603"_s << u"4"_s;
    QTest::newRow("sum of 0") << u"000000000000"_s << u"000000000000"_s << u"0"_s;
    QTest::newRow("padded") << u"42"_s << u"000000000042"_s << u"0"_s;
    QTest::newRow("no number stays") << u"A1"_s << u"A1"_s << u"7"_s;
}

void Ean13Test::checkDigits()
{
    QFETCH(QString, code);
    const QString digit = Ean13::CalculerCD(code);
    QTEST(code, "rewritten");
    QTEST(digit, "digit");
}

void Ean13Test::codesOfReferences_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("valid");
    QTest::newRow("standard") << u"00042/202603"_s << u"1004202026034"_s << true;
    QTest::newRow("short") << u"12"_s << u"0000000001120"_s << true;
    QTest::newRow("letters") << u"AB/12"_s << u"1AB0122"_s << false;
}

void Ean13Test::codesOfReferences()
{
    QFETCH(QString, reference);
    const QString code = Ean13::fromReference(reference);
    QTEST(code, "code");
    QTEST(Ean13::isValid(code), "valid");
}

ZELVANTOR_SUITE(Ean13Test)
#include "Ean13Test.moc"
