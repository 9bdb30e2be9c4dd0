#include "shop/GenererCart.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// What the script assigns to a variable of its head.
QString assigned(const QString &script, const QString &variable)
{
    const QRegularExpression line(u"^%1\\s*=(.*);\\r$"_s.arg(variable), QRegularExpression::MultilineOption);
    return line.match(script).captured(1).trimmed();
}

QString script(const ShopData &data)
{
    return GenererCart(data).front().text;
}

} // namespace

class CartTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tax()
    {
        const Rows<QString, QChar, QString, QString> rows = {
            {"21", u"21"_s, QChar(u'.'), u"0.21"_s, u"'TVA(21 %)'"_s},
            {"5.5", u"5.5"_s, QChar(u'.'), u"0.055"_s, u"'TVA(5.5 %)'"_s},
            {"19.6 has no exact half", u"19.6"_s, QChar(u'.'), u"0.196"_s, u"'TVA(19.6 %)'"_s},
            {"100", u"100"_s, QChar(u'.'), u"1"_s, u"'TVA(100 %)'"_s},
            {"0", u"0"_s, QChar(u'.'), u"0.0"_s, u"'[MTAXE]'"_s},
            {"none", u""_s, QChar(u'.'), u"0.0"_s, u"'[MTAXE]'"_s},
            {"below 0", u"-3"_s, QChar(u'.'), u"0.0"_s, u"'[MTAXE]'"_s},
            {"no number", u"vingt"_s, QChar(u'.'), u"0.0"_s, u"'[MTAXE]'"_s},
            {"decimal comma", u"5,5"_s, QChar(u','), u"0,055"_s, u"'TVA(5,5 %)'"_s}};
        for (const auto &[row, txtTaxe, decimalMark, rate, label] : rows) {
            const Row named(row);
            ShopData data = TestShop().data;
            data.numbers = NumberLocale(decimalMark);
            data.settings.txtTaxe = txtTaxe;
            data.settings.txtlbTaxe = u"TVA"_s;
            QCOMPARE(assigned(script(data), u"TaxRate"_s), rate);
            QCOMPARE(assigned(script(data), u"DisplayTaxRow"_s), rate == u"0.0"_s ? u"false"_s : u"true"_s);
            QCOMPARE(assigned(script(data), u"strTAX"_s), label);
        }
    }

    void shipping()
    {
        const Rows<QStringList, bool, QString> rows = {
            {"first", QStringList({u"3.50"_s, u"6.90"_s}), false, u"\"3.50\""_s},
            {"first with a value", QStringList({u""_s, u"6.90"_s}), false, u"\"6.90\""_s},
            {"none", QStringList(), false, u"\"\""_s},
            {"free", QStringList(u"3.50"_s), true, u"\"0\""_s}};
        for (const auto &[row, values, chGratuit, total] : rows) {
            const Row named(row);
            ShopData data = TestShop().data;
            for (const QString &value : values)
                data.settings.fpSpread12.push_back({u"name"_s, value});
            data.settings.chGratuit = chGratuit;
            QCOMPARE(assigned(script(data), u"ShipTotal"_s), total);
            QCOMPARE(assigned(script(data), u"DisplayShippingRow"_s), chGratuit ? u"false"_s : u"true"_s);
        }
    }

    void symbolAndMinimum()
    {
        ShopData data = TestShop().data;
        data.settings.txtSymbol = u"[MINORDER]€"_s; // the minimum goes in behind the symbol
        data.settings.txtMin = u"15"_s;
        QCOMPARE(assigned(script(data), u"MonetarySymbol"_s), u"'15€'"_s);
        QCOMPARE(assigned(script(data), u"MinimumOrder"_s), u"15"_s);
        QCOMPARE(assigned(script(data), u"MinimumOrderPrompt"_s), u"'T65'"_s);
        data.settings.txtMin.clear();
        QCOMPARE(assigned(script(data), u"MinimumOrder"_s), u""_s);
        QVERIFY(script(data).contains(QRegularExpression(u"MinimumOrder +=\\s*;"_s)));
    }
};

ZELVANTOR_SUITE(CartTest)
#include "CartTest.moc"
