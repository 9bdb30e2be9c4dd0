#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// What stands between two texts of a page.
QString between(const QString &text, const QString &from, const QString &to)
{
    const qsizetype start = text.indexOf(from);
    return start < 0 ? QString() : text.mid(start + from.size()).section(to, 0, 0);
}

/// The rows of a list page, from the header on.
QString listRows(const QString &page)
{
    const qsizetype start = page.indexOf(QRegularExpression(u"<tr>\\s*<td width=\"(23|12)%\" bgcolor"_s));
    return start < 0 ? QString() : page.mid(start).section(u"<tr class=\"closing\""_s, 0, 0);
}

const QString list = u"g2_s11.htm"_s;

} // namespace

class PagesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void listForTheFourPairs()
    {
        // The captions are those of the header row, "&nbsp;" over the pictures.
        const Rows<bool, bool, QStringList> rows = {
            {"buying, pictures", true, true, QStringList({u"&nbsp;"_s, u"T34"_s, u"T21"_s, u"T22"_s, u"T23"_s})},
            {"buying", true, false, QStringList({u"T34"_s, u"T21"_s, u"T22"_s, u"T23"_s})},
            {"pictures", false, true, QStringList({u"&nbsp;"_s, u"T34"_s, u"T21"_s, u""_s})},
            {"neither", false, false, QStringList({u"T34"_s, u"T21"_s, u""_s})}};
        for (const auto &[row, chAchat, chPhoto, captions] : rows) {
            const Row named(row);
            TestShop shop;
            shop.data.settings.chAchat = chAchat;
            shop.data.settings.chPhoto = chPhoto;
            shop.product(1, u"A/B"_s, u"Bol"_s, u"12.5"_s);
            const QString table = listRows(shop.pages().texts[list]);
            const QString header = table.section(u"</tr>"_s, 0, 0);
            QStringList found;
            static const QRegularExpression cell(u"<td [^>]*bgcolor=\"#3366CC\"[^>]*>(.*?)</td>"_s,
                                                 QRegularExpression::DotMatchesEverythingOption);
            static const QRegularExpression tag(u"<[^>]*>|\\s"_s);
            for (auto it = cell.globalMatch(header); it.hasNext();)
                found << it.next().captured(1).remove(tag);
            QCOMPARE(found, captions);

            const QString line = table.mid(header.size());
            QVERIFY(line.contains(u"<td width=\"12%\" align=\"center\"><a href=\"AB.htm\">A/B</a></td>\r\n"_s));
            QVERIFY(line.contains(u"<td width=\"38%\" align=\"center\">Bol</td>\r\n"_s));
            QCOMPARE(
                line.contains(u"<img border=\"0\" src=\"images/spacer.gif\" width=\"184\" height=\"185\"></a></td>"_s),
                chPhoto);
            QCOMPARE(line.contains(u"<td width=\"7%\" align=\"center\">12.5 EUR</td>"_s), chAchat);
            QCOMPARE(line.contains(u"12.5"_s), chAchat);
            QCOMPARE(line.contains(u"<FORM NAME=order onSubmit=\"AddToCart(this);\""_s), chAchat);
            QCOMPARE(line.contains(u"name=QUANTITY onChange='this.value=CKquantity(this.value)' value=\"1\">"_s),
                     chAchat);
            for (const QString &field : {u"SHIPPING value=\"0\""_s, u"ID_NUM value=\"A/B\""_s, u"NAME value=\"Bol\""_s,
                                         u"PRICE value=\"12.5\""_s})
                QCOMPARE(line.contains(u"<input type=hidden name="_s + field + u'>'), chAchat);
            // Without buying a closing cell tag stands alone.
            static const QRegularExpression opening(u"<td[ >]"_s);
            QCOMPARE(line.count(u"</td>"_s) - line.count(opening), chAchat ? 0 : 1);
            QVERIFY(line.contains(u"background=\"images/bluebar1.gif\""_s));
            QCOMPARE(table.count(u"[") + table.count(u"@"_s), 0);
        }
    }

    void orderOfWriting()
    {
        TestShop shop;
        for (int id : {3, 1, 2})
            shop.product(id, u"R%1"_s.arg(id), u"N%1"_s.arg(id));
        shop.sql(u"UPDATE T_PRODUIT SET idFamille = 12 WHERE idProduit = 1"_s);
        const RecordingOutput output = shop.pages();
        QCOMPARE(output.order, QStringList({u"R2.htm"_s, u"R3.htm"_s, list, u"R1.htm"_s, u"g2_s12.htm"_s}));
        QVERIFY(output.texts[list].indexOf(u"N2"_s) < output.texts[list].indexOf(u"N3"_s));
    }

    void headOfThePages()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"Bol"_s);
        ShopSettings &settings = shop.data.settings;
        settings.txtDest = u"dest"_s;
        settings.txtKeyword = u"[DESCRIPTION] [TAGLNG]"_s; // filled by the steps that follow it
        settings.txtDescription = u"desc [KEYWORD]"_s;     // too late for that step
        settings.txtFile = u"enseigne.png"_s;
        settings.lbTemp = u"7"_s;
        const RecordingOutput output = shop.pages();
        for (const QString &name : {list, u"R1.htm"_s}) {
            const QString page = output.texts[name];
            QVERIFY(page.contains(u"<TITLE>Boutique</TITLE>"_s));
            QVERIFY(page.contains(u"<META NAME=\"keywords\" CONTENT=\"desc [KEYWORD] français\">"_s));
            QVERIFY(page.contains(u"<META NAME=\"language\" CONTENT=\"français, FR\">"_s));
            QVERIFY(page.contains(u"<META NAME=\"author\" CONTENT=\"vendeur\">"_s));
            QVERIFY(page.contains(u"<META NAME=\"copyright\" CONTENT=\"P1 - 2026\">"_s));
            QVERIFY(page.contains(u"images/enseigne.png"_s) && !page.contains(u"logo.gif"_s));
            QVERIFY(page.contains(u"images/topbkg7.gif"_s) && !page.contains(u"topbkg1"_s));
            QVERIFY(page.contains(u"<input type=\"submit\" value=\"Tm9\""_s));
        }
        QVERIFY(output.texts[list].contains(u"<META NAME=\"email\" CONTENT=\"dest\">"_s));
        // No step for it on the pages of products.
        QVERIFY(output.texts[u"R1.htm"_s].contains(u"<META NAME=\"email\" CONTENT=\"[TAGEMAIL]\">"_s));
        QVERIFY(output.texts[list].contains(u"language-fr.js"_s));
        settings.chSearch = false;
        settings.txtFile.clear();
        const QString page = shop.pages().texts[list];
        QVERIFY(!page.contains(u"form_search action"_s) && page.contains(u"<p align=\"right\">&nbsp;</td>"_s));
        QVERIFY(page.contains(u"images/spacer.gif\" width=\"142\" height=\"66\""_s));
    }

    void productPage()
    {
        TestShop shop;
        shop.product(1, u"00042/202603"_s, u"Bol"_s, u"12.50"_s);
        shop.sql(u"UPDATE T_PRODUIT SET sObservationFR = '<p class=\"x\">L''objet @ \"main\"</p>'"_s);
        const RecordingOutput output = shop.pages();
        const QString page = output.texts[u"00042202603.htm"_s];
        QVERIFY(page.contains(u">00042/202603 / Bol<"_s));
        QVERIFY(page.contains(u"<p class=\"x\">Lobjet @ \"main\"</p>"_s));
        QVERIFY(page.contains(u"<img name=bigimage border=\"0\" src=\"images/spacer.gif\"  >"_s));
        QVERIFY(!page.contains(u"12.50"_s) && !page.contains(u"<FORM"_s));
        QVERIFY(!page.contains(u"loadPosterImage('images"_s));
    }

    void oddNames()
    {
        TestShop shop;
        shop.product(1, u"A'1"_s, u"L'[prix] @ [devis] [refprod]"_s, u"9[transport]"_s);
        shop.product(2, u"../C:\\x"_s, u"[description][nom]"_s);
        shop.product(3, u"[produit]"_s, u"[THUMB] &amp; \"deux\""_s);
        const RecordingOutput output = shop.pages();
        const QString rows = listRows(output.texts[list]);
        // The price goes in behind the name, the reference in front of it.
        QVERIFY(rows.contains(u"<td width=\"38%\" align=\"center\">L90 ' EUR [refprod]</td>"_s));
        QVERIFY(rows.contains(u"<a href=\"A\"1.htm\">A\"1</a>"_s));
        QVERIFY(output.texts[u"A'1.htm"_s].contains(u"A'1 / L[prix] @ [devis] [refprod]<"_s));
        QVERIFY(rows.contains(u"<a href=\"..C:\\x.htm\">../C:\\x</a>"_s));
        QVERIFY(output.texts[u"..C:\\x.htm"_s].contains(u"../C:\\x / [description][nom]<"_s));
        QVERIFY(output.texts[u"[produit].htm"_s].contains(u"[produit] / [THUMB] &amp; \"deux\"<"_s));
    }

    void nullsKeepTheProductBefore()
    {
        TestShop shop;
        for (int id = 1; id <= 6; ++id)
            shop.product(id, u"R%1"_s.arg(id), id == 4 ? u""_s : u"N%1"_s.arg(id), id == 4 ? u""_s : u"22.00"_s);
        shop.sql(u"UPDATE T_PRODUIT SET sObservationFR = 'Texte deux' WHERE idProduit = 2"_s);
        shop.sql(u"UPDATE T_PRODUIT SET sRef = NULL WHERE idProduit = 1"_s);
        shop.sql(
            u"UPDATE T_PRODUIT SET sNomFR = NULL, sPrixVenteTTC = NULL, sObservationFR = NULL WHERE idProduit IN (1, 3, 5)"_s);
        shop.sql(u"UPDATE T_PRODUIT SET idFamille = 12 WHERE idProduit > 4"_s);
        const RecordingOutput output = shop.pages();
        QCOMPARE(output.order.first(), u".htm"_s);
        QVERIFY(output.texts[u".htm"_s].contains(u"> / <"_s));
        QVERIFY(output.texts[u"R3.htm"_s].contains(u"R3 / N2<"_s)
                && output.texts[u"R3.htm"_s].contains(u"Texte deux"_s));
        const QString rows = listRows(output.texts[list]);
        QCOMPARE(rows.count(u"<td width=\"7%\" align=\"center\">22.00 EUR</td>"_s), 2);
        // Empty is not null.
        QVERIFY(output.texts[u"R4.htm"_s].contains(u"R4 / <"_s)
                && !output.texts[u"R4.htm"_s].contains(u"Texte deux"_s));
        // The values live as long as the run, also from one sub-group to the next.
        QVERIFY(output.texts[u"R5.htm"_s].contains(u"R5 / <"_s));
    }

    void pictures()
    {
        const Rows<QStringList, QString> rows = {
            {"none", QStringList(), u"spacer.gif"_s},
            {"one", QStringList(u"pictures/a b.jpg"_s), u"a b.jpg"_s},
            {"three", QStringList({u"x/c.jpg"_s, u"y/a.jpg"_s, u"/z/b.jpg"_s}), u"c.jpg"_s},
            {"path of another system", QStringList(u"D:\\photos\\bol.jpg"_s), u"bol.jpg"_s}};
        for (const auto &[row, paths, first] : rows) {
            const Row named(row);
            TestShop shop;
            shop.product(1, u"R1"_s, u"Bol"_s);
            shop.picture(1, u"small/never.jpg"_s, 1);
            shop.picture(2, u"of/another.jpg"_s);
            for (const QString &path : paths)
                shop.picture(1, path);
            shop.sql(u"INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES (1, NULL, 0)"_s);
            const RecordingOutput output = shop.pages();
            const QString page = output.texts[u"R1.htm"_s];
            QVERIFY(page.contains(u"src=\"images/"_s + first + u"\"  >"_s));
            QVERIFY(listRows(output.texts[list])
                        .contains(u"src=\"images/"_s + first + u"\" width=\"184\" height=\"185\">"_s));
            static const QRegularExpression cell(
                u"<td align=\"center\" width=\"92\" height=\"92\">\\r\\n    <a  href=\"images/([^\"]+)\" "
                "onclick=\"return\\(loadPosterImage\\('images/\\1'\\)\\)\">\\r\\n   <img border=\"1\"  "
                "src=\"images/\\1\" "
                "width=\"92\" height=\"92\" alt=\"\\1\">\\r\\n   </a>\\r\\n   </td>\\r\\n"_s);
            QStringList cells;
            for (auto it = cell.globalMatch(page); it.hasNext();)
                cells << it.next().captured(1);
            QStringList names;
            QStringList copied;
            for (const QString &path : paths) {
                names << path.section(QRegularExpression(u"[/\\\\]"_s), -1);
                copied << names.last() + u'<' + (path.startsWith(u'/') ? path : shop.path(path));
            }
            QCOMPARE(cells, names);
            QStringList distinct = output.pictures;
            distinct.removeDuplicates();
            QCOMPARE(distinct, copied);
        }
    }

    void picturesOfOneName()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"Bol"_s);
        shop.product(2, u"R2"_s, u"Tasse"_s);
        shop.picture(1, u"a/x.jpg"_s);
        shop.picture(1, u"b/x.jpg"_s);
        RecordingOutput output = shop.pages();
        // The first picture of a product is copied once more behind its others, so it is the one that stays.
        QCOMPARE(output.pictures.last(), u"x.jpg<"_s + shop.path(u"a/x.jpg"_s));
        QCOMPARE(output.texts[u"R1.htm"_s].count(u"width=\"92\" height=\"92\" alt=\"x.jpg\""_s), 2);
        shop.picture(2, u"c/x.jpg"_s);
        QCOMPARE(shop.pages().pictures.last(), u"x.jpg<"_s + shop.path(u"c/x.jpg"_s));
    }

    void attributes()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"Bol"_s);
        shop.product(2, u"R2"_s, u"Tasse"_s);
        shop.sql(u"UPDATE T_PRODUIT SET idFamille = 12 WHERE idProduit = 2"_s);
        shop.sql(u"INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sLibelle) VALUES (30, 11, 'L''émail'), "
                 "(31, 11, 'Taille'), (32, 11, NULL), (33, 12, 'Autre famille')"_s);
        shop.sql(u"INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES (30, 2, 'non'), "
                 "(30, 1, 'l''or \"fin\" @'), (30, 1, 'second'), (31, 1, NULL), (99, 1, 'none')"_s);
        const RecordingOutput output = shop.pages();
        const QString page = output.texts[u"R1.htm"_s];
        QCOMPARE(between(page, u"id=\"table3\">\r\n"_s, u"</table>"_s),
                 u"<tr>\r\n<td width=\"250\" bgcolor=\"#CCCCFF\"><b>Lémail</b></td>\r\n"
                 "<td bgcolor=\"#CCCCFF\">l or  fin  @</td>\r\n</tr>\r\n"
                 "<tr>\r\n<td width=\"250\" bgcolor=\"#CCCCFF\"><b>Taille</b></td>\r\n"
                 "<td bgcolor=\"#CCCCFF\"></td>\r\n</tr>\r\n"
                 "<tr>\r\n<td width=\"250\" bgcolor=\"#CCCCFF\"><b></b></td>\r\n"
                 "<td bgcolor=\"#CCCCFF\"></td>\r\n</tr>\r\n"_s);
        QVERIFY(between(output.texts[u"R2.htm"_s], u"id=\"table3\">"_s, u"</table>"_s).contains(u"Autre famille"_s));
        // An attribute may hold a later placeholder, and without attributes there is no table at all.
        shop.sql(u"UPDATE REF_EXTENSION SET sValeur = '[description]'"_s);
        shop.sql(u"UPDATE T_PRODUIT SET sObservationFR = 'Texte'"_s);
        shop.sql(u"DELETE REF_CATEGORIE_P.* FROM REF_CATEGORIE_P WHERE idRef_parent = 12;"_s);
        const RecordingOutput later = shop.pages();
        QVERIFY(
            between(later.texts[u"R1.htm"_s], u"id=\"table3\">"_s, u"</table>"_s).contains(u"#CCCCFF\">Texte</td>"_s));
        QVERIFY(!later.texts[u"R2.htm"_s].contains(u"table3"_s));
    }

    void nothingToList()
    {
        TestShop shop;
        QCOMPARE(shop.pages().order, QStringList());
        shop.product(1, u"R1"_s, u"Bol"_s);
        shop.sql(u"UPDATE T_PRODUIT SET idCategorie = NULL"_s);
        QCOMPARE(shop.pages().order, QStringList());
        QVERIFY(shop.report.incidents().empty());
    }

    void otherLanguage()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"Bol"_s);
        shop.sql(u"UPDATE T_PRODUIT SET sNomDE = 'Schale', sObservationDE = 'Gut'"_s);
        shop.data.language = {u"DE"_s, u"DE"_s, u"Deutsch"_s};
        const RecordingOutput output = shop.pages();
        QVERIFY(output.texts[u"R1.htm"_s].contains(u"R1 / Schale<"_s) && output.texts[u"R1.htm"_s].contains(u"Gut"_s));
        QVERIFY(output.texts[list].contains(u">Schale</td>"_s) && output.texts[list].contains(u"language-ge.js"_s));
        QVERIFY(output.texts[list].contains(u"CONTENT=\"deutsch, DE\""_s));
        // A language without columns gives no products; the run says why.
        shop.data.language = {u"PT"_s, u"FR"_s, u"Français"_s};
        QCOMPARE(shop.pages().order, QStringList());
        QCOMPARE(shop.report.incidents().size(), size_t(1));
        QVERIFY(shop.report.incidents()[0].cause.contains(u"sNomPT"_s));
    }
};

ZELVANTOR_SUITE(PagesTest)
#include "PagesTest.moc"
