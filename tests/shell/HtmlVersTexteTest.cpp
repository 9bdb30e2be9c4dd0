#include "shell/HtmlVersTexte.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class HtmlVersTexteTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void html()
    {
        const Rows<QString, QString> rows = {
            {"nothing", u""_s, u""_s},
            {"plain", u"Théière, 12 €"_s, u"Théière, 12 €"_s},
            {"white space", u"  a \t b\r\n\r\nc  "_s, u"a b c "_s},
            {"no blank at the start of a line", u"a<br>  b"_s, u"a\r\nb"_s},
            {"paragraphs", u"a<p>b</p><P align='left'>c"_s, u"a\r\n\r\nb\r\n\r\nc"_s},
            {"line breaks", u"a<BR>b<br>c"_s, u"a\r\nb\r\nc"_s},
            {"names that only begin alike", u"a<pre>b<brx>c<small>d<link x>e<olx>f<tdx>g"_s, u"abcdefg"_s},
            {"other tags go", u"<b>a</b><i class='p'>b</i><img src='x.gif'>c<hr>d"_s, u"abcd"_s},
            {"table", u"a<table border='1'><tr><td>1</td><td x='y'>2</td></tr><TR><TH>3<TH>4</TABLE>z"_s,
             u"a\r\n\r\n1\t2\r\n\r\n3\t4\r\nz"_s},
            {"options", u"<select><option>a<OPTION value='1'>b</select>"_s, u"\r\n\ta\r\n\tb"_s},
            {"bulleted list", u"a<ul><li>b<LI class='x'>c</ul>d"_s, u"a\r\n  • b\r\n  • c\r\nd"_s},
            {"numbered list starts anew", u"<ol><li>a<li>b</ol><ol start='5'><li>c</ol>"_s,
             u"\r\n  1. a\r\n  2. b\r\n\r\n  1. c\r\n"_s},
            {"nested lists", u"<ol><li>a<ul><li>b<ol><li>c</ol></ul><li>d</ol>"_s,
             u"\r\n  1. a\r\n    • b\r\n      1. c\r\n\r\n\r\n  2. d\r\n"_s},
            {"list closed twice", u"<ul><li>a</ul></ul></ol>b"_s, u"\r\n  • a\r\n\r\n\r\nb"_s},
            {"script", u"a<SCRIPT language='x'>if (1<2) { b(); }</script>c<script>d</SCRIPT>e"_s, u"ace"_s},
            {"tag inside a script", u"a<script>'<p>'</script>b"_s, u"ab"_s},
            {"open script", u"a<script>b<p>c"_s, u"a"_s},
            {"comment", u"a<!-- b > <p> -- c -->d<!---->e"_s, u"ade"_s},
            {"open comment", u"a<!-- b"_s, u"a"_s},
            {"open tag", u"a<b c"_s, u"a"_s},
            {"title and body", u"<html><head><title>T</title>x</head><BODY bgcolor='#fff'>b"_s, u"T\r\n\r\nb"_s},
            {"only what is in the body", u"a b<p>c<body>d"_s, u"d"_s},
            {"entities", u"caf&eacute; &amp; th&#233; &lt;b&gt;"_s, u"café & thé <b>"_s},
            {"quotes vanish", u"5&quot; x &quot;a&quot;"_s, u"5 x a"_s},
            {"unknown entity", u"a&nothing;b&euro;c"_s, u"abc"_s},
            {"entity without an end", u"a &eacute b"_s, u"a "_s},
            {"entity in capitals", u"&EACUTE;&AMP;"_s, u"é&"_s},
            {"entity of a blank", u"a&nbsp; b"_s, u"a\u00A0 b"_s},
            {"attribute with an entity", u"<a href='?a=1&amp;b'>c</a>"_s, u"c"_s}};
        for (const auto &[row, html, text] : rows) {
            const Row named(row);
            QCOMPARE(HtmlVersTexte(html), text);
        }
    }

    void entity()
    {
        // 149 is, in the shop's code page, the mark of a list.
        const std::pair<QString, QString> entities[] = {
            {u"amp"_s, u"&"_s},       {u"lt"_s, u"<"_s},   {u"gt"_s, u">"_s},    {u"quot"_s, u""_s},
            {u"nbsp"_s, u"\u00A0"_s}, {u"supl"_s, u"¹"_s}, {u"sup1"_s, u""_s},   {u"times"_s, u"×"_s},
            {u"divide"_s, u"÷"_s},    {u"eth"_s, u"ð"_s},  {u"#65"_s, u"A"_s},   {u"#233"_s, u"é"_s},
            {u"#149"_s, u"•"_s},      {u"#128"_s, u"€"_s}, {u"#8364"_s, u"€"_s}, {u"#"_s, u""_s},
            {u"#12a"_s, u""_s},       {u"#x41"_s, u""_s},  {u"#0"_s, u""_s},     {u"#99999999999"_s, u""_s},
            {u"#55296"_s, u""_s},     {u""_s, u""_s},      {u"unknown"_s, u""_s}};
        for (const auto &[name, text] : entities)
            QVERIFY2(EntiteVersTexte(name) == text, qPrintable(name));
    }

    void latin1InOrder()
    {
        const QStringList signs = u"iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg "
                                  u"plusmn sup2 sup3 acute micro "
                                  "para middot cedil supl ordm raquo frac14 frac12 frac34 iquest"_s.split(u' ');
        QCOMPARE(signs.size(), 31);
        for (int i = 0; i < signs.size(); ++i)
            QCOMPARE(EntiteVersTexte(signs[i]), QString(QChar(161 + i)));
        const QStringList letters =
            u"agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc euml igrave iacute icirc iuml eth "
            u"ntilde "
            "ograve oacute ocirc otilde ouml divide oslash ugrave uacute ucirc uuml yacute thorn yuml"_s.split(u' ');
        QCOMPARE(letters.size(), 32);
        for (int i = 0; i < letters.size(); ++i)
            QCOMPARE(EntiteVersTexte(letters[i]), QString(QChar(224 + i)));
    }

    void withoutBlanks()
    {
        QCOMPARE(SansEspaces(u" a b  c "_s), u"abc"_s);
        QCOMPARE(SansEspaces(u"   "_s), u""_s);
        QCOMPARE(SansEspaces(u""_s), u""_s);
        QCOMPARE(SansEspaces(u"abc"_s), u"abc"_s);
    }
};

ZELVANTOR_SUITE(HtmlVersTexteTest)
#include "HtmlVersTexteTest.moc"
