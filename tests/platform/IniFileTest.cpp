#include "platform/IniFile.h"
#include "tests/support/Suite.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;

class IniFileTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void values()
    {
        const Rows<QString, QString> rows = {{"plain", u"k=Prix"_s, u"Prix"_s},
                                             {"trailing blanks", u"k=Prix  "_s, u"Prix  "_s},
                                             {"only blanks", u"k=  "_s, u"  "_s},
                                             {"empty", u"k="_s, u""_s},
                                             {"equals sign in it", u"k=a=b"_s, u"a=b"_s},
                                             {"semicolon in it", u"k=a ; b"_s, u"a ; b"_s},
                                             {"quotes", u"k=\"a\" 'b'"_s, u"\"a\" 'b'"_s},
                                             {"characters", u"k=l’été à 5 €"_s, u"l’été à 5 €"_s},
                                             {"placeholders", u"k=%1 : %2\\n"_s, u"%1 : %2\\n"_s},
                                             {"key in another case", u"K=x"_s, u"x"_s},
                                             {"other key", u"k2=x"_s, u""_s}};
        for (const auto &[row, line, value] : rows) {
            const Row named(row);
            for (const char *lineEnd : {"\n", "\r\n"}) {
                IniFile ini;
                QVERIFY(
                    ini.load(file(QByteArray("[A]\nk=other\n[Section]") + lineEnd + line.toUtf8() + lineEnd + "z=1")));
                QCOMPARE(ini.value(u"SECTION"_s, u"k"_s), value);
                QCOMPARE(ini.value(u"section"_s, u"z"_s), u"1"_s);
                QCOMPARE(ini.remarks(), QStringList());
            }
        }
    }

    void keysInTheOrderOfTheFile()
    {
        IniFile ini;
        QVERIFY(ini.load(file("[B]\nz=1\n10=2\na=3\n2=4\n[A]\nx=5\n[b]\nlast=6\n")));
        QCOMPARE(ini.keys(u"B"_s), QStringList({u"z"_s, u"10"_s, u"a"_s, u"2"_s, u"last"_s}));
        QCOMPARE(ini.keys(u"none"_s), QStringList());
    }

    void encodings()
    {
        const QString text = u"[A]\r\nk=café 5 €\r\n"_s;
        QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
        const Rows<QByteArray, QString> rows = {
            {"UTF-8", text.toUtf8(), QString()},
            {"UTF-8 with mark", "\xEF\xBB\xBF" + text.toUtf8(), QString()},
            {"windows-1252", QByteArray("[A]\r\nk=caf\xE9 5 \x80\r\n"), u"windows-1252"_s},
            {"UTF-16", QByteArray(utf16(text)), u"UTF-16"_s}};
        for (const auto &[row, bytes, remark] : rows) {
            const Row named(row);
            IniFile ini;
            QVERIFY(ini.load(file(bytes)));
            QCOMPARE(ini.value(u"A"_s, u"k"_s), u"café 5 €"_s);
            QCOMPARE(ini.remarks().size(), remark.isEmpty() ? 0 : 1);
            QVERIFY(ini.remarks().join(u' ').contains(remark));
            QVERIFY(!ini.isDamaged());
        }
    }

    void brokenLinesLeaveTheOthers()
    {
        IniFile ini;
        QVERIFY(ini.load(file("[A]\nk=1\nno value here\n=5\n[B\nm=2\n; a comment\n# another\n\n[C]\nn=3\n")));
        QCOMPARE(ini.value(u"A"_s, u"k"_s), u"1"_s);
        QCOMPARE(ini.value(u"C"_s, u"n"_s), u"3"_s);
        QVERIFY(!ini.isDamaged());
        QCOMPARE(ini.remarks().size(), 3);
        QVERIFY(ini.remarks()[0].endsWith(u" 3"_s) && ini.remarks()[1].endsWith(u" 4"_s)
                && ini.remarks()[2].endsWith(u" 5"_s));
    }

    void writingKeepsOrderAndComments()
    {
        IniFile ini;
        QVERIFY(ini.load(file("; head\n\n[Z]\n; of b\nno sign\nb=0\nB=1 \nvoid=\na=2\n\n[A]\nk=3\n; foot\n")));
        ini.setValue(u"z"_s, u"A"_s, u"zwei  "_s);
        ini.setValue(u"A"_s, u"new"_s, u"é\r\nt\nz=9"_s + QChar(0) + u"é"_s);
        const QString path = m_folder.filePath(u"saved.cda"_s);
        QVERIFY(ini.save(path));
        QStringList lines = QString::fromUtf8(Files::read(path)).remove(u'\r').split(u'\n');
        lines.removeAll(QString());
        QCOMPARE(lines, QStringList({u"; head"_s, u"[Z]"_s, u"; of b"_s, u"no sign"_s, u"b=0"_s, u"B=1 "_s, u"void="_s,
                                     u"a=zwei  "_s, u"[A]"_s, u"k=3"_s, u"; foot"_s, u"new=é t z=9é"_s}));
        IniFile again;
        QVERIFY(again.load(path));
        QCOMPARE(again.value(u"Z"_s, u"a"_s), u"zwei  "_s);
        QCOMPARE(again.value(u"Z"_s, u"b"_s), u"1 "_s);
    }

    void missingFile()
    {
        IniFile ini;
        QVERIFY(ini.load(file("[A]\nk=1\n")));
        const Result missing = ini.load(m_folder.filePath(u"none.cda"_s));
        QVERIFY(!missing);
        QVERIFY(!missing.text().isEmpty());
        QCOMPARE(ini.value(u"A"_s, u"k"_s), QString());
        QVERIFY(!ini.load(m_folder.path()));
    }

    void unwritable()
    {
        IniFile ini;
        QVERIFY(ini.load(file("[A]\nk=1\n")));
        const auto before = Files::tree(m_folder.path());
        ini.setValue(u"A"_s, u"k"_s, u"2"_s);
        QVERIFY(!ini.save(m_folder.filePath(u"t.cda/below.cda"_s)));
        QVERIFY(!ini.save(m_folder.path()));
        QCOMPARE(Files::tree(m_folder.path()), before);
    }

private:
    QString file(const QByteArray &bytes)
    {
        Files::write(m_folder.filePath(u"t.cda"_s), bytes);
        return m_folder.filePath(u"t.cda"_s);
    }
    QTemporaryDir m_folder;
};

ZELVANTOR_SUITE(IniFileTest)
#include "IniFileTest.moc"
