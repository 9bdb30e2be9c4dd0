#include "platform/CodePage.h"
#include "tests/support/Suite.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CodePageTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyAssignedByteComesBack();
    void encode_data();
    void encode();
    void appendingKeepsWhatStands();
};

void CodePageTest::everyAssignedByteComesBack()
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

void CodePageTest::encode_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("lost");
    QTest::newRow("empty") << u""_s << QByteArray() << 0;
    QTest::newRow("price") << u"12 €"_s << QByteArray("12 \x80") << 0;
    QTest::newRow("French") << u"l’œuf à Ÿ"_s << QByteArray("l\x92\x9Cuf \xE0 \x9F") << 0;
    QTest::newRow("bullet and dashes") << u"•–—"_s << QByteArray("\x95\x96\x97") << 0;
    QTest::newRow("other alphabets") << u"aΩbЖ"_s << QByteArray("a?b?") << 2;
    QTest::newRow("near misses") << u"ĀőŁ≤"_s << QByteArray("????") << 4;
    QTest::newRow("upper controls") << u"a\u0080\u009Db"_s << QByteArray("a??b") << 2;
    QTest::newRow("lower controls") << u"\t\r\n\u0000\u007F"_s << QByteArray("\t\r\n\0\x7F", 5) << 0;
    QTest::newRow("pair of surrogates") << u"x\U0001F375y"_s << QByteArray("x?y") << 1;
    QTest::newRow("lone high surrogate") << QString(QChar(0xD83C)) + u'a' << QByteArray("?a") << 1;
    QTest::newRow("lone low surrogate") << QString(QChar(0xDF75)) << QByteArray("?") << 1;
    QTest::newRow("replacement character") << QString(QChar(0xFFFD)) << QByteArray("?") << 1;
}

void CodePageTest::encode()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    int lost = -1;
    QCOMPARE(CodePage::encode(text, &lost), bytes);
    QTEST(lost, "lost");
}

void CodePageTest::appendingKeepsWhatStands()
{
    QByteArray bytes = "a";
    QCOMPARE(CodePage::append(bytes, u"é\U0001F375"), 1);
    QCOMPARE(CodePage::append(bytes, u"z"), 0);
    QCOMPARE(bytes, "a\xE9?z");
}

ZELVANTOR_SUITE(CodePageTest)
#include "CodePageTest.moc"
