#include "shop/GenererCart.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class CartTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tax_data();
    void tax();
    void shipping_data();
    void shipping();
    void symbolAndMinimum();
    void cartPage();
};

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

void CartTest::tax_data()
{
    QTest::addColumn<QString>("txtTaxe");
    QTest::addColumn<QChar>("decimalMark");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("label");
    QTest::newRow("21") << u"21"_s << QChar(u'.') << u"0.21"_s << u"'TVA(21 %)'"_s;
    QTest::newRow("5.5") << u"5.5"_s << QChar(u'.') << u"0.055"_s << u"'TVA(5.5 %)'"_s;
    QTest::newRow("19.6 has no exact half") << u"19.6"_s << QChar(u'.') << u"0.196"_s << u"'TVA(19.6 %)'"_s;
    QTest::newRow("100") << u"100"_s << QChar(u'.') << u"1"_s << u"'TVA(100 %)'"_s;
    QTest::newRow("0") << u"0"_s << QChar(u'.') << u"0.0"_s << u"'[MTAXE]'"_s;
    QTest::newRow("none") << u""_s << QChar(u'.') << u"0.0"_s << u"'[MTAXE]'"_s;
    QTest::newRow("below 0") << u"-3"_s << QChar(u'.') << u"0.0"_s << u"'[MTAXE]'"_s;
    QTest::newRow("no number") << u"vingt"_s << QChar(u'.') << u"0.0"_s << u"'[MTAXE]'"_s;
    QTest::newRow("decimal comma") << u"5,5"_s << QChar(u',') << u"0,055"_s << u"'TVA(5,5 %)'"_s;
}

void CartTest::tax()
{
    QFETCH(QString, txtTaxe);
    QFETCH(QChar, decimalMark);
    QFETCH(QString, rate);
    ShopData data = TestShop().data;
    data.numbers = NumberLocale(decimalMark);
    data.settings.txtTaxe = txtTaxe;
    data.settings.txtlbTaxe = u"TVA"_s;
    QTEST(assigned(script(data), u"TaxRate"_s), "rate");
    QCOMPARE(assigned(script(data), u"DisplayTaxRow"_s), rate == u"0.0"_s ? u"false"_s : u"true"_s);
    QTEST(assigned(script(data), u"strTAX"_s), "label");
}

void CartTest::shipping_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<bool>("chGratuit");
    QTest::addColumn<QString>("total");
    QTest::newRow("first") << QStringList({u"3.50"_s, u"6.90"_s}) << false << u"\"3.50\""_s;
    QTest::newRow("first with a value") << QStringList({u""_s, u"6.90"_s}) << false << u"\"6.90\""_s;
    QTest::newRow("none") << QStringList() << false << u"\"\""_s;
    QTest::newRow("free") << QStringList(u"3.50"_s) << true << u"\"0\""_s;
}

void CartTest::shipping()
{
    QFETCH(QStringList, values);
    QFETCH(bool, chGratuit);
    ShopData data = TestShop().data;
    for (const QString &value : values)
        data.settings.fpSpread12.push_back({u"name"_s, value});
    data.settings.chGratuit = chGratuit;
    QTEST(assigned(script(data), u"ShipTotal"_s), "total");
    QCOMPARE(assigned(script(data), u"DisplayShippingRow"_s), chGratuit ? u"false"_s : u"true"_s);
}

void CartTest::symbolAndMinimum()
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

void CartTest::cartPage()
{
    ShopData data = TestShop().data;
    data.language = {u"ES"_s, u"ES"_s, u"Español"_s};
    data.settings.lbTemp = u"4"_s;
    const std::vector<Page> pages = GenererCart(data);
    QCOMPARE(pages[0].fileName, u"nopcart.js"_s);
    QCOMPARE(pages[1].fileName, u"managecart.html"_s);
    QVERIFY(!pages[0].indexed && !pages[1].indexed);
    const QString page = pages[1].text;
    for (
        const QString &text :
        {u"<TITLE>T67</TITLE>"_s, u"<h1>Tm4</h1>"_s, u">T67<"_s, u"value=\"T33\""_s, u"value=\" T69 \""_s,
         u"value=\" T28 \""_s, u"\"language-sp.js\""_s, u"topbkg4.gif"_s, u"store.css"_s,
         u"<FORM ACTION=\\\"checkout.htm\\\" NAME=\\\"form\\\" METHOD=\\\"GET\\\" onsubmit=\\\"return ValidateCart(this)\\\">"_s})
        QVERIFY2(page.contains(text), qPrintable(text));
    static const QRegularExpression left(u"\\[[A-Za-z]+\\]"_s);
    QCOMPARE(left.match(page).captured(), QString());
    // The script of the language has to come first.
    QVERIFY(page.indexOf(u"language-sp.js"_s) < page.indexOf(u"nopcart.js"_s));
    data.language.sLangueHtm = u"PT"_s;
    QVERIFY(!GenererCart(data)[1].text.contains(u"language-"_s));
}

ZELVANTOR_SUITE(CartTest)
#include "CartTest.moc"
