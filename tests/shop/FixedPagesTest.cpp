#include "shop/GenererContact.h"
#include "shop/GenererHome.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

using namespace Qt::StringLiterals;

namespace {

QString content(const QString &page, const QString &from, const QString &to)
{
    return page.section(from, 1).section(to, 0, 0);
}

} // namespace

class FixedPagesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void welcomeLines()
    {
        const Rows<QString, QString> rows = {
            {"three lines", u"un\r\ndeux\r\ntrois"_s, u"un\r<br>deux\r<br>trois"_s},
            {"lone line feeds", u"un\n\ndeux"_s, u"un<br><br>deux"_s},
            {"quotes go", u"l'été <a href=\"x\">\"là\"</a>"_s, u"lété <a href=x>là</a>"_s},
            {"later placeholders", u"[titre] [SHIP] [bienvenue]"_s, u"Boutique [SHIP] T60"_s},
            {"nothing", u""_s, u""_s}};
        for (const auto &[row, message, shown] : rows) {
            const Row named(row);
            ShopData data = TestShop().data;
            data.settings.txtmessage = message;
            const Page page = GenererHome(data).front();
            QCOMPARE(content(page.text, u"<td>"_s, u"</td>\r\n</tr>\r\n</table>\r\n</main>"_s), shown);
        }
    }

    void searchPage()
    {
        ShopData data = TestShop().data;
        QVERIFY(!GenererHome(data).back().text.contains(u"[generated]"_s));
        data.settings.chSearch = false;
        const std::vector<Page> without = GenererHome(data);
        QCOMPARE(without.size(), size_t(1));
        QVERIFY(without[0].text.contains(u"<td width=\"50%\">\r\n<p align=\"right\">&nbsp;</td>"_s));
        QVERIFY(!without[0].text.contains(u"action=\"JavaScript"_s));
    }

    void addressBlock()
    {
        ShopData data = TestShop().data;
        data.gInfo[0] = u"L'\"Atelier\""_s;
        data.gInfo[2] = u" "_s;
        const Page contact = GenererContact(data).front();
        QCOMPARE(contact.fileName, u"contact.htm"_s);
        QVERIFY(contact.text.contains(u">Tm3<"_s));
        QVERIFY(contact.text.contains(u"T63: \r\nLAtelier<br>\r\n<br>P2\r\n<br> \r\n<br>P4 - P5\r\n<br>\r\n<br>P7\r\n"
                                      "<br>Fax: P8\r\n<br>Email: P9\r\n<br>P8\n\n"_s));
        data.gInfo.clear();
        QVERIFY(GenererContact(data).front().text.contains(u"<br> - \r\n"_s));
    }

    void legalPages()
    {
        ShopData data = TestShop().data;
        data.settings.chTerme = data.settings.chExpedition = data.settings.chPrivacy = false;
        data.settings.txtModalite = u"l'un\r\n<a href=\"x\">deux</a>"_s;
        data.settings.txtExpedition = u"[contact] [titre]"_s;
        data.settings.txtDescription = u"[tcontact]"_s;
        const std::vector<Page> pages = GenererContact(data);
        QStringList seen;
        for (const Page &page : pages) {
            seen << page.fileName + u'|' + content(page.text, u"<h1>"_s, u"</h1>"_s) + u'|'
                        + content(page.text, u"<div class=\"content\">\r\n"_s, u"\r\n</div>"_s);
            QVERIFY(page.indexed);
            QVERIFY(page.text.contains(
                u"<META NAME=\"description\" CONTENT=\"%1\">"_s.arg(content(page.text, u"<h1>"_s, u"</h1>"_s))));
        }
        seen.removeFirst();
        QCOMPARE(seen, QStringList({u"terme.htm|Tm6|lun\r\n<a href=x>deux</a>"_s,
                                    u"expedition.htm|Tm7|[contact] [titre]"_s, u"privacy.htm|Tm8|"_s}));
    }
};

ZELVANTOR_SUITE(FixedPagesTest)
#include "FixedPagesTest.moc"
