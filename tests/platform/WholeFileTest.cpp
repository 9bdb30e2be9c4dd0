#include "platform/WholeFile.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class WholeFileTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void replacesWhole()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"é.htm"_s);
        for (const QByteArray &bytes : {QByteArray(100000, 'x'), QByteArray("short\r\n"), QByteArray()}) {
            QVERIFY(WholeFile::write(path, bytes));
            QCOMPARE(Files::tree(folder.path()), (QMap<QString, QByteArray>{{u"é.htm"_s, bytes}}));
        }
    }

    void failureLeavesNothing()
    {
        const Rows<QString> rows = {{"folder does not exist", u"none/a.htm"_s},
                                    {"folder is a file", u"file/a.htm"_s},
                                    {"a folder has the name", u"folder"_s}};
        for (const auto &[row, target] : rows) {
            const Row named(row);
            const QTemporaryDir folder;
            Files::write(folder.filePath(u"file"_s), "old");
            Files::write(folder.filePath(u"folder/inside"_s), "old");
            const auto before = Files::tree(folder.path());
            const Result written = WholeFile::write(folder.filePath(target), "new");
            QVERIFY(!written);
            QVERIFY(!written.text().isEmpty());
            QCOMPARE(Files::tree(folder.path()), before);
        }
    }

    void holds()
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
};

ZELVANTOR_SUITE(WholeFileTest)
#include "WholeFileTest.moc"
