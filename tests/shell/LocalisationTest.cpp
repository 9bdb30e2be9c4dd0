#include "shell/Localisation.h"
#include "tests/support/Suite.h"

using namespace Qt::StringLiterals;

class LocalisationTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void languageOfTheWindowsAndOfTheShop()
    {
        file(u"FR"_s, "[CATALOG]\n22=Prix \n");
        file(u"EN"_s, "[catalog]\n22=Price\n");
        Localisation localisation(m_folder.path());
        localisation.gsLangueCatalogue = u"EN"_s;
        QCOMPARE(localisation.Traduire(u"CATALOG"_s, u"22"_s), u"Prix "_s);
        localisation.gbLangueCatalogue = true;
        QCOMPARE(localisation.Traduire(u"CATALOG"_s, u"22"_s), u"Price"_s);
        // No other language stands in for a missing file.
        localisation.gsLangueCatalogue = u"NL"_s;
        QCOMPARE(localisation.Traduire(u"CATALOG"_s, u"22"_s), u""_s);
        QCOMPARE(localisation.CompterCles(u"CATALOG"_s), 0);
        localisation.gbLangueCatalogue = false;
        localisation.gsLangue = u"EN"_s;
        QCOMPARE(localisation.Traduire(u"CATALOG"_s, u"22"_s), u"Price"_s);
        QCOMPARE(localisation.Traduire(u"CATALOG"_s, u"23"_s), u""_s);
        QCOMPARE(localisation.Traduire(u"MAIN"_s, u"22"_s), u""_s);
    }

    void countsKeys()
    {
        file(u"FR"_s, "[LUNITE]\n1=kg\n; a comment\n2=g\n\nno key\n3=\n[MVT]\n11=x\n");
        const Localisation localisation(m_folder.path());
        QCOMPARE(localisation.CompterCles(u"LUNITE"_s), 3);
        QCOMPARE(localisation.CompterCles(u"lunite"_s), 3);
        QCOMPARE(localisation.CompterCles(u"NONE"_s), 0);
    }

private:
    void file(const QString &language, const QByteArray &text)
    {
        Files::write(m_folder.filePath(language + u".cda"_s), text);
    }
    QTemporaryDir m_folder;
};

ZELVANTOR_SUITE(LocalisationTest)
#include "LocalisationTest.moc"
