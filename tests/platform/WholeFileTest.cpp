#include "platform/WholeFile.h"
#include "tests/support/Files.h"
#include "tests/support/Suite.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class WholeFileTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void replacesWhole();
    void failureLeavesNothing_data();
    void failureLeavesNothing();
    void holds();
    void temporaryNames();
};

void WholeFileTest::replacesWhole()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"é.htm"_s);
    for (const QByteArray &bytes : {QByteArray(100000, 'x'), QByteArray("short\r\n"), QByteArray()}) {
        QVERIFY(WholeFile::write(path, bytes));
        QCOMPARE(Files::tree(folder.path()), (QMap<QString, QByteArray>{{u"é.htm"_s, bytes}}));
    }
}

void WholeFileTest::failureLeavesNothing_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("folder does not exist") << u"none/a.htm"_s;
    QTest::newRow("folder is a file") << u"file/a.htm"_s;
    QTest::newRow("a folder has the name") << u"folder"_s;
}

void WholeFileTest::failureLeavesNothing()
{
    QFETCH(QString, target);
    const QTemporaryDir folder;
    Files::write(folder.filePath(u"file"_s), "old");
    Files::write(folder.filePath(u"folder/inside"_s), "old");
    const auto before = Files::tree(folder.path());
    const Result written = WholeFile::write(folder.filePath(target), "new");
    QVERIFY(!written);
    QVERIFY(!written.text().isEmpty());
    QCOMPARE(Files::tree(folder.path()), before);
}

void WholeFileTest::holds()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a"_s);
    Files::write(path, "abc");
    QVERIFY(WholeFile::holds(path, "abc"));
    QVERIFY(!WholeFile::holds(path, "abd"));
    QVERIFY(!WholeFile::holds(path, "abcd"));
    QVERIFY(!WholeFile::holds(path, ""));
    QVERIFY(!WholeFile::holds(folder.filePath(u"b"_s), ""));
    QVERIFY(!WholeFile::holds(folder.path(), ""));
}

void WholeFileTest::temporaryNames()
{
    for (const QString &name : {u"index.htm"_s, u".htm"_s, u"logo.gif"_s, u"part.htm"_s})
        QVERIFY2(!WholeFile::isTemporaryName(name), qPrintable(name));
    QVERIFY(WholeFile::isTemporaryName(u".zelvantor-part-4711"_s));
}

ZELVANTOR_SUITE(WholeFileTest)
#include "WholeFileTest.moc"
