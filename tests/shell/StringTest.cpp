#include "shell/clsString.h"
#include "tests/support/Suite.h"

#include <QTest>

using namespace Qt::StringLiterals;

class StringTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void trimming();
    void replacing_data();
    void replacing();
    void letters_data();
    void letters();
    void parsing_data();
    void parsing();
};

namespace {

clsString of(const QString &text)
{
    clsString string;
    string.setWorkingString(text);
    return string;
}

} // namespace

void StringTest::trimming()
{
    clsString string = of(u"  a b  "_s);
    QCOMPARE(string.StringLength(), 7);
    QCOMPARE(string.TrimStringRight(), u"  a b"_s);
    QCOMPARE(string.StringLength(), 5);
    QCOMPARE(string.TrimStringLeft(), u"a b"_s);
    QCOMPARE(of(u"   a   "_s).TrimStringBoth(), u"a"_s);
    QCOMPARE(of(u"    "_s).TrimStringBoth(), u""_s);
    QCOMPARE(of(u"\ta\t"_s).TrimStringBoth(), u"\ta\t"_s);
    QCOMPARE(clsString::Length(u"été"_s), 3);
    QCOMPARE(clsString::Length(QStringList({u"a"_s, u"b"_s})), 2);
}

void StringTest::replacing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("result");
    QTest::newRow("all") << u"abcabc"_s << u"b"_s << u"--"_s << u"a--ca--c"_s;
    QTest::newRow("exact case") << u"aAa"_s << u"A"_s << u"x"_s << u"axa"_s;
    QTest::newRow("replacement is not searched") << u"aa"_s << u"a"_s << u"aa"_s << u"aaaa"_s;
    QTest::newRow("from the start") << u"aaa"_s << u"aa"_s << u"b"_s << u"ba"_s;
    QTest::newRow("empty search") << u"abc"_s << u""_s << u"x"_s << u"abc"_s;
    QTest::newRow("removing") << u"a.b.c"_s << u"."_s << u""_s << u"abc"_s;
}

void StringTest::replacing()
{
    QFETCH(QString, text);
    QFETCH(QString, find);
    QFETCH(QString, replacement);
    clsString string = of(text);
    QTEST(string.FindAndReplace(find, replacement), "result");
    QTEST(string.WorkingString(), "result");
    QCOMPARE(string.StringLength(), string.WorkingString().size());
}

void StringTest::letters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("swapped");
    QTest::addColumn<QString>("reversed");
    QTest::newRow("even") << u"abcd"_s << u"badc"_s << u"dcba"_s;
    QTest::newRow("odd") << u"abcde"_s << u"badce"_s << u"edcba"_s;
    QTest::newRow("one") << u"a"_s << u"a"_s << u"a"_s;
    QTest::newRow("none") << u""_s << u""_s << u""_s;
}

void StringTest::letters()
{
    QFETCH(QString, text);
    QTEST(of(text).Switch2Letters(), "swapped");
    QTEST(of(text).ReverseLetters(), "reversed");
    QCOMPARE(of(text).MakeArrayOfChrs().join(u""), text);
    QCOMPARE(of(text).MakeArrayOfChrs().size(), text.size());
    QCOMPARE(of(text).CheckInvalidCharacters(u"a?"_s), text.contains(u'a'));
    QVERIFY(!of(text).CheckInvalidCharacters(u""_s));
}

void StringTest::parsing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("pieces");
    QTest::newRow("three") << u"a;;b;;c"_s << QStringList({u"a"_s, u"b"_s, u"c"_s});
    QTest::newRow("empty pieces stay") << u";;a;;;;"_s << QStringList({u""_s, u"a"_s, u""_s, u""_s});
    QTest::newRow("no separator") << u"a;b"_s << QStringList(u"a;b"_s);
}

void StringTest::parsing()
{
    QFETCH(QString, text);
    QFETCH(QStringList, pieces);
    QCOMPARE(of(text).strParse(u";;"_s), pieces);
    const std::vector<QString> collection = of(text).strParse1(u";;"_s);
    QCOMPARE(QStringList(collection.begin(), collection.end()), pieces);
    QCOMPARE(of(text).strParse(u""_s), QStringList(text));
}

ZELVANTOR_SUITE(StringTest)
#include "StringTest.moc"
