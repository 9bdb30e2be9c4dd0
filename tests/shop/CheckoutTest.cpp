#include "shop/GenererCheck.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

using namespace Qt::StringLiterals;

namespace {

ShopData checkoutData(const QString &language = u"FR"_s)
{
    ShopData data = TestShop().data;
    data.language = {language, language, language};
    ShopSettings &settings = data.settings;
    settings.sLangueHtm = language;
    settings.txtSymbol = u"€"_s;
    settings.txtDest = u"dest@x.example"_s;
    settings.fpSpread12 = {{u"Retrait"_s, u"3.50"_s}, {u"Sans prix"_s, u""_s}, {u"L'express"_s, u"12,5"_s}};
    return data;
}

} // namespace

class CheckoutTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void shippingRows()
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

    void formAddress()
    {
        const Rows<QString, QString, QString> rows = {
            {"form", u"http://f.example/form.cgi"_s, u"m@x.example"_s, u"http://f.example/form.cgi"_s},
            {"mail", u""_s, u"m@x.example"_s, u"mailto:m@x.example?subject=Order"_s},
            {"neither", u""_s, u" "_s, u"mailto:?subject=Order"_s}};
        for (const auto &[row, txtForm, email, action] : rows) {
            const Row named(row);
            ShopData data = checkoutData();
            data.settings.txtForm = txtForm;
            data.gInfo[8] = email;
            const std::vector<Page> pages = GenererCheck(data);
            QVERIFY(pages[1].text.contains(u"<FORM name=mycart action=\""_s + action
                                           + u"\" \"method\"=post encType=text/plain>"_s));
            QCOMPARE(pages[1].text, pages[2].text);
            QVERIFY(!pages[1].text.contains(u"dest@x.example"_s));
        }
    }
};

ZELVANTOR_SUITE(CheckoutTest)
#include "CheckoutTest.moc"
