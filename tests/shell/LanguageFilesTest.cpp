#include "platform/CodePage.h"
#include "platform/IniFile.h"
#include "shell/Localisation.h"
#include "tests/support/Suite.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString folder = QStringLiteral(ZELVANTOR_SHARE);

QStringList sections(const QString &language)
{
    QStringList found;
    static const QRegularExpression head(u"^\\[(.+)\\]"_s, QRegularExpression::MultilineOption);
    const QString text = QString::fromUtf8(Files::read(folder + u'/' + language + u".cda"_s));
    for (auto it = head.globalMatch(text); it.hasNext();)
        found << it.next().captured(1);
    return found;
}

/// Whether a language writes a text as French does, or as the French windows do that carry an English word.
bool isShared(const QString &language, const QString &text)
{
    static const QHash<QString, QStringList> words = {
        {u"all"_s,
         {u"kg"_s, u"g"_s, u"cl"_s, u"cm"_s, u"m²"_s, u"m³"_s, u"PayPal"_s, u"ZELVANTOR"_s, u"ZELVANTORFTP"_s,
          u"Code"_s, u"FR"_s, u"EN"_s, u"NL"_s, u"DE"_s, u"IT"_s, u"ES"_s}},
        {u"EN"_s,
         {u"Contact"_s, u"Date"_s, u"Options"_s, u"Logo"_s, u"Description"_s, u"Pages"_s, u"carton"_s, u"litre"_s,
          u"Documents"_s, u"Data path"_s, u"Print Screen..."_s, u"CONFIGURATION"_s, u"Password"_s, u"Actions"_s,
          u"Stock"_s, u"Add..."_s, u"Add small..."_s}},
        {u"NL"_s, {u"Contact"_s, u"Marge"_s}},
        {u"DE"_s, {u"Liste"_s}},
        {u"IT"_s, {u"Liste"_s, u"Logo"_s, u"Password"_s}},
    };
    const QString plain = QString(text).remove(u'&');
    return words[u"all"_s].contains(plain) || words.value(language).contains(plain);
}

} // namespace

/// The six delivered language files.
class LanguageFilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void file_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"FR", "EN", "NL", "DE", "IT", "ES"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    void file()
    {
        QFETCH(QString, language);
        IniFile french;
        IniFile words;
        QVERIFY(french.load(folder + u"/FR.cda"_s));
        QVERIFY(words.load(folder + u'/' + language + u".cda"_s));
        QCOMPARE(words.remarks(), QStringList());
        const QStringList names = sections(u"FR"_s);
        QCOMPARE(sections(language), names);
        QVERIFY(names.contains(u"CATALOG"_s));
        for (const QString &section : names) {
            const QStringList keys = french.keys(section);
            QCOMPARE(words.keys(section), keys);
            QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
            for (const QString &key : keys) {
                const QString value = words.value(section, key);
                const QString place = section + u' ' + key + u'=' + value;
                QVERIFY2(!value.trimmed().isEmpty(), qPrintable(place));
                int lost = 0;
                CodePage::encode(value, &lost);
                QVERIFY2(lost == 0, qPrintable(place));
                static const QRegularExpression letter(u"\\p{L}"_s);
                if (language != u"FR"_s && value.contains(letter))
                    QVERIFY2(value != french.value(section, key) || isShared(language, value), qPrintable(place));
                for (const QString &slot : {u"%1"_s, u"%2"_s})
                    QVERIFY2(value.contains(slot) == french.value(section, key).contains(slot), qPrintable(place));
            }
        }
    }

    void wordsOfThePages()
    {
        // They stand inside the strings of scripts, where a quote would end them and "@" would become one.
        static const QRegularExpression breaking(u"['\"@\\\\<>]"_s);
        for (const char *language : {"FR", "EN", "NL", "DE", "IT", "ES"}) {
            Localisation localisation(folder);
            localisation.gsLangue = QString::fromLatin1(language);
            for (const char *key : {"21", "22", "23", "28", "33", "34", "50", "57", "60", "63", "65", "66", "67",
                                    "69", "70", "71", "78", "m1", "m2", "m3", "m4", "m5", "m6", "m7", "m8", "m9"}) {
                const QString value = localisation.Traduire(u"CATALOG"_s, QString::fromLatin1(key));
                QVERIFY2(!value.trimmed().isEmpty(), key);
                QVERIFY2(!breaking.match(value).hasMatch(), qPrintable(value));
            }
        }
    }
};

ZELVANTOR_SUITE(LanguageFilesTest)
#include "LanguageFilesTest.moc"
