#include "platform/CodePage.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class CodePageTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyAssignedByteComesBack()
    {
        const QByteArray unassigned = "\x81\x8D\x8F\x90\x9D";
        QCOMPARE(CodePage::decode(unassigned), QString(5, QChar(0xFFFD)));
        QByteArray assigned;
        for (int byte = 0; byte < 256; ++byte)
            if (!unassigned.contains(char(byte)))
                assigned += char(byte);
        int lost = -1;
        QCOMPARE(CodePage::encode(CodePage::decode(assigned), &lost), assigned);
        QCOMPARE(lost, 0);
    }

    void encode()
    {
        const Rows<QString, QByteArray, int> rows = {
            {"empty", u""_s, QByteArray(), 0},
            {"price", u"12 €"_s, QByteArray("12 \x80"), 0},
            {"French", u"l’œuf à Ÿ"_s, QByteArray("l\x92\x9Cuf \xE0 \x9F"), 0},
            {"bullet and dashes", u"•–—"_s, QByteArray("\x95\x96\x97"), 0},
            {"other alphabets", u"aΩbЖ"_s, QByteArray("a?b?"), 2},
            {"near misses", u"ĀőŁ≤"_s, QByteArray("????"), 4},
            {"upper controls", u"a\u0080\u009Db"_s, QByteArray("a??b"), 2},
            {"lower controls", u"\t\r\n\u0000\u007F"_s, QByteArray("\t\r\n\0\x7F", 5), 0},
            {"pair of surrogates", u"x\U0001F375y"_s, QByteArray("x?y"), 1},
            {"lone high surrogate", QString(QChar(0xD83C)) + u'a', QByteArray("?a"), 1},
            {"lone low surrogate", QString(QChar(0xDF75)), QByteArray("?"), 1},
            {"replacement character", QString(QChar(0xFFFD)), QByteArray("?"), 1}};
        for (const auto &[row, text, bytes, lost] : rows) {
            const Row named(row);
            int counted = -1;
            QCOMPARE(CodePage::encode(text, &counted), bytes);
            QCOMPARE(counted, lost);
        }
    }
};

ZELVANTOR_SUITE(CodePageTest)
#include "CodePageTest.moc"
