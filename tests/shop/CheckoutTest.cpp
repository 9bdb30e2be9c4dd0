#include "shop/GenererCheck.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class CheckoutTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void payPalPage();
    void formOfAFrenchShop();
    void otherLanguagesRepeatThePayPalPage();
    void shippingRows();
    void freeShipping();
    void formAddress_data();
    void formAddress();
};

namespace {

ShopData checkoutData(const QString &language = u"FR"_s)
{
    ShopData data = TestShop().data;
    data.language = {language, language, language};
    ShopSettings &settings = data.settings;
    settings.sLangueHtm = language;
    settings.txtSymbol = u"€"_s;
    settings.txtPPEmail = u"pay@x.example"_s;
    settings.txtPPRetour = u"http://x.example/"_s;
    settings.txtPPDevise = u"CHF"_s;
    settings.txtForm = u"http://127.0.0.1/form.cgi"_s;
    settings.txtExp = u"exp@x.example"_s;
    settings.txtDest = u"dest@x.example"_s;
    settings.fpSpread12 = {{u"Retrait"_s, u"3.50"_s}, {u"Sans prix"_s, u""_s}, {u"L'express"_s, u"12,5"_s}};
    return data;
}

QString field(const QString &page, const QString &name)
{
    const QRegularExpression input(u"name=\"%1\" value=\"([^\"]*)\""_s.arg(QRegularExpression::escape(name)));
    const auto match = input.match(page);
    return match.hasMatch() ? match.captured(1) : u"<no field>"_s;
}

} // namespace

void CheckoutTest::payPalPage()
{
    const std::vector<Page> pages = GenererCheck(checkoutData());
    QCOMPARE(pages.size(), size_t(3));
    QCOMPARE(pages[0].fileName, u"checkout.htm"_s);
    const QString page = pages[0].text;
    QCOMPARE(field(page, u"cmd"_s), u"_cart"_s);
    QCOMPARE(field(page, u"upload"_s), u"1"_s);
    QCOMPARE(field(page, u"business"_s), u"pay@x.example"_s);
    QCOMPARE(field(page, u"currency_code"_s), u"CHF"_s);
    QCOMPARE(field(page, u"return"_s), u"http://x.example/"_s);
    QVERIFY(page.contains(u"/dgi-bin/webscr"_s) && page.contains(u"<FORM name=mycart target=\"paypal\" action="_s));
    QVERIFY(page.contains(u"<TITLE>P1</TITLE>"_s) && page.contains(u"<h1>Tm5</h1>"_s));
    QVERIFY(page.contains(u"href=\"checkout_cc.htm\""_s) && page.contains(u"href=\"checkout_mf.htm\""_s));
    static const QRegularExpression left(u"\\[[A-Z]{4,}\\]"_s);
    QCOMPARE(left.match(page).captured(), QString());
}

void CheckoutTest::formOfAFrenchShop()
{
    const std::vector<Page> pages = GenererCheck(checkoutData());
    QCOMPARE(pages[1].fileName, u"checkout_cc.htm"_s);
    QCOMPARE(pages[2].fileName, u"checkout_mf.htm"_s);
    QCOMPARE(pages[1].text, pages[2].text);
    const QString page = pages[1].text;
    QVERIFY(
        page.contains(u"<FORM name=mycart action=\"http://127.0.0.1/form.cgi\" \"method\"=post encType=text/plain>"_s));
    // The step is for another spelling, so this name stays.
    QCOMPARE(field(page, u"[RECEPIENT]"_s), u"recipient"_s);
    QCOMPARE(field(page, u"exp@x.example"_s), u"email"_s);
    QVERIFY(!page.contains(u"dest@x.example"_s));
    for (const char *name : {"TOTAL_ITEMS_ORDERED",
                             "ORDER_DATE",
                             "b_first",
                             "b_last",
                             "b_addr",
                             "b_addr2",
                             "b_city",
                             "b_prov",
                             "b_zip",
                             "b_phone",
                             "b_fax",
                             "b_email",
                             "PAYMENT_TYPE",
                             "sp ",
                             "s_first",
                             "s_last",
                             "s_addr",
                             "s_addr2",
                             "s_city",
                             "s_prov",
                             "s_zip",
                             "s_phone",
                             "s_fax",
                             "s_email",
                             "comment"})
        QVERIFY2(field(page, QString::fromLatin1(name)).isEmpty(), name);
    QVERIFY(page.contains(u"name=\"b_first\" value=\"First\""_s) && page.contains(u"name=\"b_last\" value=\"Last\""_s));
    QVERIFY(page.contains(u"name=\"Shipping_address\""_s));
    QVERIFY(page.contains(u"T78 P1"_s) && page.contains(u"value=\"T70\""_s) && page.contains(u"value=\"T57\""_s)
            && page.contains(u"value=\" T71\""_s) && page.contains(u"\"language-fr.js\""_s));
    QVERIFY(page.contains(u"SetCookie ('cdship', 3.50, null, '/')"_s));
}

void CheckoutTest::otherLanguagesRepeatThePayPalPage()
{
    for (const QString &language : {u"EN"_s, u"NL"_s, u"DE"_s, u"IT"_s, u"ES"_s}) {
        const std::vector<Page> pages = GenererCheck(checkoutData(language));
        QCOMPARE(pages[1].text, pages[2].text);
        // The steps of the form do not fill the payment fields.
        QString filled = pages[1].text;
        filled.replace(u"[PPEMAIL]"_s, u"pay@x.example"_s)
            .replace(u"[PPRETOUR]"_s, u"http://x.example/"_s)
            .replace(u"[PPDEVISE]"_s, u"CHF"_s);
        QVERIFY(filled != pages[1].text);
        QCOMPARE(filled, pages[0].text);
    }
}

void CheckoutTest::shippingRows()
{
    const QString page = GenererCheck(checkoutData(u"EN"_s)).front().text;
    QVERIFY(page.contains(u"if (selected==0){SetCookie ('cdship', 3.50, null, '/');}\r\n"
                          "if (selected==1){SetCookie ('cdship', 12,5, null, '/');}\r\n"_s));
    QVERIFY(page.contains(u"if (sdb==3.50){document.mycart.Ship_cost.options.selectedIndex=0 ;}\r\n"
                          "if (sdb==12,5){document.mycart.Ship_cost.options.selectedIndex=1 ;}\r\n"_s));
    // The table turns its quotes, the rows in it keep theirs.
    QVERIFY(page.contains(u"<table id=\"table1\" width=\"413\">\r\n"_s));
    QVERIFY(page.contains(u"<tr><td width='276'>Retrait</td><td width='127'>€3.50</td></tr>\r\n"
                          "<tr><td width='276'>L'express</td><td width='127'>€12,5</td></tr>\r\n"_s));
    QVERIFY(page.contains(u"<option value='Retrait'>Retrait</option>\r\n"
                          "<option value='L'express'>L'express</option>\r\n"_s));
    QVERIFY(page.contains(u" <select name = \"Ship_cost\" size =\"1\" "
                          "onchange=AddShip(document.mycart.Ship_cost.options.selectedIndex);>\r\n"_s));
    QVERIFY(page.contains(u"<b>T50</b>"_s) && page.contains(u"<b>T22</b>"_s) && page.contains(u">T66</td>"_s));
    QVERIFY(page.contains(u"        CheckoutCart();\r\n        SetShip();\r\n"_s));
    QVERIFY(!page.contains(u"Sans prix"_s));
}

void CheckoutTest::freeShipping()
{
    ShopData data = checkoutData();
    data.settings.chGratuit = true;
    for (const Page &page : GenererCheck(data)) {
        QVERIFY(!page.text.contains(u"Retrait"_s) && !page.text.contains(u"3.50"_s));
        QVERIFY(!page.text.contains(u"<select name = "_s) && !page.text.contains(u"        SetShip();"_s));
        QVERIFY(page.text.contains(u"CheckoutCart();"_s) && page.text.contains(u"AddShip(selected)"_s));
    }
}

void CheckoutTest::formAddress_data()
{
    QTest::addColumn<QString>("txtForm");
    QTest::addColumn<QString>("email");
    QTest::addColumn<QString>("action");
    QTest::newRow("form") << u"http://f.example/form.cgi"_s << u"m@x.example"_s << u"http://f.example/form.cgi"_s;
    QTest::newRow("mail") << u""_s << u"m@x.example"_s << u"mailto:m@x.example?subject=Order"_s;
    QTest::newRow("neither") << u""_s << u" "_s << u"mailto:?subject=Order"_s;
}

void CheckoutTest::formAddress()
{
    QFETCH(QString, txtForm);
    QFETCH(QString, email);
    QFETCH(QString, action);
    ShopData data = checkoutData();
    data.settings.txtForm = txtForm;
    data.gInfo[8] = email;
    QVERIFY(GenererCheck(data)[1].text.contains(u"<FORM name=mycart action=\""_s + action + u"\" "_s));
}

ZELVANTOR_SUITE(CheckoutTest)
#include "CheckoutTest.moc"
