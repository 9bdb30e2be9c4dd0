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
    void lettersAndPieces();
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
    QCOMPARE(string.TrimStringRight(), u"  a b"_s);
    QCOMPARE(string.StringLength(), 5);
    QCOMPARE(string.TrimStringLeft(), u"a b"_s);
    QCOMPARE(of(u"    "_s).TrimStringBoth(), u""_s);
    QCOMPARE(of(u"\ta\t"_s).TrimStringBoth(), u"\ta\t"_s);
}

void StringTest::replacing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("result");
    QTest::newRow("exact case") << u"aAa"_s << u"A"_s << u"x"_s << u"axa"_s;
    QTest::newRow("replacement is not searched") << u"aa"_s << u"a"_s << u"aa"_s << u"aaaa"_s;
    QTest::newRow("from the start") << u"aaa"_s << u"aa"_s << u"b"_s << u"ba"_s;
    QTest::newRow("empty search") << u"abc"_s << u""_s << u"x"_s << u"abc"_s;
}

void StringTest::replacing()
{
    QFETCH(QString, text);
    QFETCH(QString, find);
    QFETCH(QString, replacement);
    clsString string = of(text);
    QTEST(string.FindAndReplace(find, replacement), "result");
    QCOMPARE(string.StringLength(), string.WorkingString().size());
}

void StringTest::lettersAndPieces()
{
    QCOMPARE(of(u"abcde"_s).Switch2Letters(), u"badce"_s);
    QCOMPARE(of(u"abcd"_s).ReverseLetters(), u"dcba"_s);
    QVERIFY(of(u"abc"_s).CheckInvalidCharacters(u"?c"_s) && !of(u"abc"_s).CheckInvalidCharacters(u""_s));
    const QStringList pieces = {u""_s, u"a"_s, u""_s, u""_s};
    QCOMPARE(of(u";;a;;;;"_s).strParse(u";;"_s), pieces);
    const std::vector<QString> collection = of(u";;a;;;;"_s).strParse1(u";;"_s);
    QCOMPARE(QStringList(collection.begin(), collection.end()), pieces);
    QCOMPARE(of(u"a;b"_s).strParse(u""_s), QStringList(u"a;b"_s));
}

ZELVANTOR_SUITE(StringTest)
#include "StringTest.moc"
