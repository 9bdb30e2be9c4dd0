#include "platform/CodePage.h"
#include "shop/GenererSearch.h"
#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

class SearchTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void format()
    {
        SearchIndex index(u"L'Atelier"_s);
        QCOMPARE(GenererSearch(index), "array_files=new Array();\r\nfile_count=0;\r\n");
        index.add(u"a.htm"_s, u"<body>Thé à 5 €"_s);
        index.add(u"b.htm"_s, u"<body>x"_s);
        QCOMPARE(GenererSearch(index),
                 "array_files=new Array();\r\n"
                 "array_files[0]=new Array(0,\"HTM\",\"a.htm\",\"L\"Atelier\",\"\",\"\",\"Th\xE9 \xE0 5 \x80\");\r\n"
                 "array_files[1]=new Array(0,\"HTM\",\"b.htm\",\"L\"Atelier\",\"\",\"\",\"x\");\r\n"
                 "file_count=2;\r\n");
    }

    void text()
    {
        const Rows<QString, QString> rows = {
            {"hyphens and apostrophes", u"semi-rigide, l'eau - là"_s, u"semirigide, leau  là"_s},
            {"line breaks leave nothing", u"a<br>b<p>c"_s, u"abc"_s},
            {"double quotes stay", u"24\" &quot;x&quot;"_s, u"24\" x"_s},
            {"entities", u"&lt;b&gt; &eacute; &#45;"_s, u"<b> é "_s},
            {"backslash", u"a\\b"_s, u"a\\b"_s},
            {"scripts are not found", u"a<script>var secret = 1;</script>b"_s, u"ab"_s}};
        for (const auto &[row, html, text] : rows) {
            const Row named(row);
            SearchIndex index(u"T"_s);
            index.add(u"a.htm"_s, html);
            QCOMPARE(CodePage::decode(index.statements()),
                     u"array_files[0]=new Array(0,\"HTM\",\"a.htm\",\"T\",\"\",\"\",\""_s + text + u"\");\r\n"_s);
        }
    }

    void orderOfThePages()
    {
        TestShop shop;
        shop.product(1, u"R1"_s, u"Bol d'or semi-fin"_s);
        shop.product(2, u"R2"_s, u"Tasse"_s);
        shop.run(shop.data);
        const QString script = CodePage::decode(Files::read(shop.outFile(u"searchdb.js"_s)));
        static const QRegularExpression entry(
            u"array_files\\[(\\d+)\\]=new Array\\(0,\"HTM\",\"([^\"]*)\",\"Boutique\""_s);
        QStringList names;
        for (auto it = entry.globalMatch(script); it.hasNext();) {
            const auto match = it.next();
            QCOMPARE(match.captured(1).toInt(), int(names.size()));
            names << match.captured(2);
        }
        QCOMPARE(names, QStringList({u"index.htm"_s, u"contact.htm"_s, u"terme.htm"_s, u"expedition.htm"_s,
                                     u"privacy.htm"_s, u"R1.htm"_s, u"R2.htm"_s, u"g2_s11.htm"_s}));
        QVERIFY(script.endsWith(u"file_count=8;\r\n"_s));
        QVERIFY(script.contains(u"R1 / Bol dor semifin"_s));
        // Without the search neither of its files is written.
        shop.data.settings.chSearch = false;
        shop.run(shop.data);
        const QStringList files = Files::tree(shop.path(u"out"_s)).keys();
        QVERIFY(files.contains(u"R1.htm"_s));
        QCOMPARE(files.filter(u"search"_s), QStringList());
    }
};

ZELVANTOR_SUITE(SearchTest)
#include "SearchTest.moc"
