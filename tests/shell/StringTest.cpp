#include "shell/clsString.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

namespace {

clsString of(const QString &text)
{
    clsString string;
    string.setWorkingString(text);
    return string;
}

} // namespace

class StringTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void trimming()
    {
        clsString string = of(u"  a b  "_s);
        QCOMPARE(string.TrimStringRight(), u"  a b"_s);
        QCOMPARE(string.StringLength(), 5);
        QCOMPARE(string.TrimStringLeft(), u"a b"_s);
        QCOMPARE(of(u"    "_s).TrimStringBoth(), u""_s);
        QCOMPARE(of(u"\ta\t"_s).TrimStringBoth(), u"\ta\t"_s);
    }

    void replacing()
    {
        const Rows<QString, QString, QString, QString> rows = {
            {"exact case", u"aAa"_s, u"A"_s, u"x"_s, u"axa"_s},
            {"replacement is not searched", u"aa"_s, u"a"_s, u"aa"_s, u"aaaa"_s},
            {"from the start", u"aaa"_s, u"aa"_s, u"b"_s, u"ba"_s},
            {"empty search", u"abc"_s, u""_s, u"x"_s, u"abc"_s}};
        for (const auto &[row, text, find, replacement, result] : rows) {
            const Row named(row);
            clsString string = of(text);
            QCOMPARE(string.FindAndReplace(find, replacement), result);
            QCOMPARE(string.StringLength(), string.WorkingString().size());
        }
    }

    void lettersAndPieces()
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
};

ZELVANTOR_SUITE(StringTest)
#include "StringTest.moc"
