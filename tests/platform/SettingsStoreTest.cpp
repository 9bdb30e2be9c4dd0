#include "platform/SettingsStore.h"
#include "tests/support/Suite.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

class SettingsStoreTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void roundTrip()
    {
        const Rows<QString> rows = {{"empty", u""_s},
                                    {"commas", u"a,b, c"_s},
                                    {"quotes", u"\"a\" 'b'"_s},
                                    {"backslashes", u"C:\\zelvantor\\n\\x41\\"_s},
                                    {"euro", u"€"_s},
                                    {"accents", u"Réglé l’œuvre Ω 🍵"_s},
                                    {"blanks", u"  a  "_s},
                                    {"marks of the form", u"[a]=b;c#d%20"_s},
                                    {"at sign", u"@Variant(x)"_s},
                                    {"lines", u"a\r\nb\tc"_s},
                                    {"number", u"007"_s},
                                    {"flag", u"true"_s}};
        for (const auto &[row, value] : rows) {
            const Row named(row);
            SettingsStore store(m_folder.path());
            QVERIFY(store.save(u"DORNELIQUE"_s, u"ZELVANTOR"_s, u"X"_s, value));
            QVERIFY(store.save(u"OTHER"_s, u"ODBC Data Sources"_s, u"MS Access"_s, value + u'2'));
            // From the bytes of the file, and not from what the process still holds in memory.
            QTemporaryDir elsewhere;
            Files::copyFolder(m_folder.path(), elsewhere.filePath(u"copy"_s));
            const SettingsStore copy(elsewhere.filePath(u"copy"_s));
            QCOMPARE(copy.value(u"DORNELIQUE"_s, u"ZELVANTOR"_s, u"X"_s, u"absent"_s), value);
            QCOMPARE(copy.value(u"OTHER"_s, u"ODBC Data Sources"_s, u"MS Access"_s), value + u'2');
            QVERIFY(copy.check(u"DORNELIQUE"_s));
        }
    }

    void handWrittenFile()
    {
        Files::write(m_folder.filePath(u"HAND.ini"_s), "[ZELVANTOR]\nSYMBOL=€\nTITRE=Pots, plats\nMINCMD=15\nLOGO=\n");
        const SettingsStore store(m_folder.path());
        const auto value = [&](const QString &name) { return store.value(u"HAND"_s, u"ZELVANTOR"_s, name, u"-"_s); };
        QCOMPARE(value(u"SYMBOL"_s), u"€"_s);
        QCOMPARE(value(u"TITRE"_s), u"Pots, plats"_s);
        QCOMPARE(value(u"MINCMD"_s), u"15"_s);
        QCOMPARE(value(u"LOGO"_s), u""_s);
    }

    void absentIsNotEmpty()
    {
        SettingsStore store(m_folder.path());
        QCOMPARE(store.value(u"A"_s, u"S"_s, u"none"_s, u"absent"_s), u"absent"_s);
        QVERIFY(store.check(u"A"_s));
        QVERIFY(store.save(u"A"_s, u"S"_s, u"x"_s, u""_s));
        QVERIFY(store.save(u"A"_s, u"S"_s, u"y"_s, u"1"_s));
        QVERIFY(store.contains(u"A"_s, u"S"_s, u"x"_s));
        QVERIFY(store.remove(u"A"_s, u"S"_s, u"x"_s));
        QVERIFY(!store.contains(u"A"_s, u"S"_s, u"x"_s));
        QCOMPARE(store.value(u"A"_s, u"S"_s, u"y"_s), u"1"_s);
    }

    void readableByTheOwnerAlone()
    {
        SettingsStore store(m_folder.filePath(u"new/folder"_s));
        QVERIFY(store.save(u"DORNELIQUE"_s, u"ZELVANTOR"_s, u"X"_s, u"secret"_s));
        const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther
                                          | QFile::WriteOther | QFile::ExeOther;
        const QString path = m_folder.filePath(u"new/folder/DORNELIQUE.ini"_s);
        QCOMPARE(store.fileName(u"DORNELIQUE"_s), path);
        QCOMPARE(QFileInfo(path).permissions() & others, QFile::Permissions());
        QVERIFY(store.save(u"DORNELIQUE"_s, u"ZELVANTOR"_s, u"X"_s, u"changed"_s));
        QCOMPARE(QFileInfo(path).permissions() & others, QFile::Permissions());
    }

    void damagedFile()
    {
        const Rows<QByteArray> rows = {{"words", QByteArray("this is no settings file\nat all\n")},
                                       {"bytes", QByteArray("\x00\xFF\xFE\x01[\x00=", 7)},
                                       {"broken section", QByteArray("[ZELVANTOR\nTITRE=x\n")}};
        for (const auto &[row, bytes] : rows) {
            const Row named(row);
            QTemporaryDir folder;
            Files::write(folder.filePath(u"A.ini"_s), bytes);
            const SettingsStore store(folder.path());
            QVERIFY(!store.check(u"A"_s));
            QCOMPARE(store.value(u"A"_s, u"ZELVANTOR"_s, u"LANGUE"_s, u"absent"_s), u"absent"_s);
            QCOMPARE(Files::read(folder.filePath(u"A.ini"_s)), bytes);
            SettingsStore writing(folder.path());
            for (const QString &value : {u"FR"_s, u"DE"_s})
                QVERIFY(writing.save(u"A"_s, u"ZELVANTOR"_s, u"LANGUE"_s, value));
            QVERIFY(store.check(u"A"_s));
            QCOMPARE(store.value(u"A"_s, u"ZELVANTOR"_s, u"LANGUE"_s), u"DE"_s);
            QCOMPARE(Files::read(folder.filePath(u"A.ini.bad"_s)), bytes);
            Files::write(folder.filePath(u"A.ini"_s), "another damage\n");
            SettingsStore again(folder.path());
            QVERIFY(again.save(u"A"_s, u"ZELVANTOR"_s, u"LANGUE"_s, u"FR"_s));
            QCOMPARE(Files::read(folder.filePath(u"A.ini.bad"_s)), bytes);
            QCOMPARE(Files::read(folder.filePath(u"A.ini.bad2"_s)), QByteArray("another damage\n"));
        }
    }

    void refusedValueIsNotStored()
    {
        QTemporaryDir folder;
        SettingsStore store(folder.filePath(u"sub"_s));
        QVERIFY(store.save(u"A"_s, u"S"_s, u"x"_s, u"1"_s));
        const QString path = folder.filePath(u"sub/A.ini"_s);
        QVERIFY(QFile::rename(path, path + u'2') && QDir().mkpath(path + u"/below"_s));
        QVERIFY(store.save(u"A"_s, u"S"_s, u"x"_s, u"2"_s).text().contains(u"A.ini"_s));
        QVERIFY(!store.save(u"A"_s, u"S"_s, u"y"_s, u"2"_s));
        QVERIFY(QDir(path).removeRecursively() && QFile::rename(path + u'2', path));
        QCOMPARE(store.value(u"A"_s, u"S"_s, u"x"_s), u"1"_s);
        QVERIFY(store.save(u"A"_s, u"S"_s, u"z"_s, u"3"_s));
        QVERIFY(!Files::read(path).contains('2'));
    }

private:
    QTemporaryDir m_folder;
};

ZELVANTOR_SUITE(SettingsStoreTest)
#include "SettingsStoreTest.moc"
