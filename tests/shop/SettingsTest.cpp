#include "tests/support/Suite.h"
#include "tests/support/TestShop.h"

using namespace Qt::StringLiterals;

namespace {

QString shippingRows(const ShopSettings &settings)
{
    QStringList rows;
    for (const ShippingMethod &method : settings.fpSpread12)
        rows << method.name + u'=' + method.value;
    return rows.join(u' ');
}

} // namespace

class SettingsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void firstOpening()
    {
        TestShop shop;
        shop.sql(u"INSERT INTO REF_INFO (idInfo, sValeur) VALUES (1, 'Ma société'), (2, NULL), (3, '')"_s);
        shop.session.localisation.gsLangue = u"NL"_s;
        QVERIFY(AfficherInfo(shop.session));
        QCOMPARE(shop.session.gInfo, QStringList({u"Ma société"_s, u" "_s, u" "_s}));
        const ShopSettings settings = AfficherParam(shop.session, shop.report);
        QCOMPARE(settings.lbTemp, u"1"_s);
        QCOMPARE(settings.sLangueHtm, u"NL"_s);
        QCOMPARE(settings.txtTitre, u"Ma société"_s);
        QCOMPARE(settings.txtSymbol, u"€"_s);
        QCOMPARE(settings.txtPPDevise, u"EUR"_s);
        QVERIFY(!settings.txtPPEmail.isEmpty() && !settings.txtPPRetour.isEmpty());
        for (const QString &empty :
             {settings.txtLogo, settings.txtFile, settings.txtMin, settings.txtTaxe, settings.txtForm,
              settings.txtmessage, settings.txtKeyword, shippingRows(settings)})
            QCOMPARE(empty, QString());
        QVERIFY(settings.chSearch && settings.chAchat && settings.chPhoto && !settings.chGratuit);
        QVERIFY(shop.report.incidents().empty());
    }

    void keysOfEarlierVersions()
    {
        TestShop shop;
        ShopSettings settings;
        settings.txtLogo = u"/a/l'été.png"_s;
        settings.fpSpread12 = {{u"Poste, suivie"_s, u"3.50"_s}, {u"Gratuit"_s, u""_s}};
        QVERIFY(SaveParam(settings, shop.session));
        const ShopSettings loaded = AfficherParam(shop.session, shop.report);
        QCOMPARE(loaded.txtLogo, settings.txtLogo);
        QCOMPARE(shippingRows(loaded), u"Poste, suivie=3.50 Gratuit="_s);
        // The keys are those that earlier versions wrote.
        for (const char *key :
             {"TEMP",       "LANGHTM",  "TITRE",    "LOGO",      "FILE",     "OPTTERME", "OPTEXPEDITION",
              "OPTPRIVACY", "OPTACHAT", "OPTPHOTO", "OPTSEARCH", "OPTFRAIS", "LBFRAIS",  "OPTTAXE",
              "LBTAXE",     "LFORM",    "LDEST",    "LEXP",      "SYMBOL",   "MINCMD",   "PPEMAIL",
              "PPRETOUR",   "PPDEVISE", "OPTTRANS", "SNT2"})
            QVERIFY2(shop.settings.contains(u"DORNELIQUE"_s, u"ZELVANTOR"_s, QString::fromLatin1(key)), key);
    }

    void ticks()
    {
        // What is ticked: chSearch, on in a new shop, and chGratuit, off in one.
        const Rows<QString, QString> rows = {{"1", u"1"_s, u"11"_s},
                                             {"0", u"0"_s, u"00"_s},
                                             {"platform's True", u"-1"_s, u"11"_s},
                                             {"empty", u""_s, u"10"_s},
                                             {"word", u"oui"_s, u"10"_s},
                                             {"fraction", u"0.5"_s, u"10"_s},
                                             {"too long", u"99999999999"_s, u"10"_s}};
        for (const auto &[row, stored, ticked] : rows) {
            const Row named(row);
            TestShop shop;
            shop.setting(u"OPTSEARCH"_s, stored);
            shop.setting(u"OPTTRANS"_s, stored);
            const ShopSettings settings = AfficherParam(shop.session, shop.report);
            QCOMPARE(QString(QString::number(settings.chSearch) + QString::number(settings.chGratuit)), ticked);
        }
    }

    void shippingGapsCloseUp()
    {
        TestShop shop;
        shop.setting(u"SNT2"_s, u"b"_s);
        shop.setting(u"SVT1"_s, u"lost"_s);
        shop.setting(u"SNT4"_s, u""_s);
        shop.setting(u"SVT4"_s, u"lost"_s);
        shop.setting(u"SNT6"_s, u"f"_s);
        shop.setting(u"SVT6"_s, u"6.00"_s);
        shop.setting(u"SNT7"_s, u"g"_s);
        QCOMPARE(shippingRows(AfficherParam(shop.session, shop.report)), u"b= f=6.00"_s);
    }

    void sixShippingRowsComeBack()
    {
        TestShop shop;
        ShopSettings settings;
        for (int n = 1; n <= 8; ++n)
            settings.fpSpread12.push_back({n == 3 ? QString() : u"n%1"_s.arg(n), QString::number(n)});
        QVERIFY(SaveParam(settings, shop.session));
        QCOMPARE(shop.settings.value(u"DORNELIQUE"_s, u"ZELVANTOR"_s, u"SNT7"_s), u"n8"_s);
        settings = AfficherParam(shop.session, shop.report);
        QCOMPARE(shippingRows(settings), u"n1=1 n2=2 n4=4 n5=5 n6=6 n7=7"_s);
        // A shorter table leaves the keys of a longer one, which then come back.
        settings.fpSpread12.resize(1);
        QVERIFY(SaveParam(settings, shop.session));
        QCOMPARE(shippingRows(AfficherParam(shop.session, shop.report)), u"n1=1 n2=2 n4=4 n5=5 n6=6 n7=7"_s);
    }

    void textFiles()
    {
        TestShop shop;
        Files::write(shop.path(u"accueil.txt"_s), "L\x92\xE9t\xE9 \x80\r\n<b>\x81");
        QVERIFY(QDir().mkpath(shop.path(u"privacy.txt"_s)));
        ShopSettings settings = AfficherParam(shop.session, shop.report);
        QCOMPARE(settings.txtmessage, u"L’été €\r\n<b>\uFFFD"_s);
        QCOMPARE(settings.txtPrivacy, QString());
        QCOMPARE(shop.report.incidents().size(), size_t(1));
        QCOMPARE(shop.report.incidents()[0].piece, u"privacy.txt"_s);
        settings.txtKeyword = u"thé Ω"_s;
        QVERIFY(!SaveParam(settings, shop.session));
        QCOMPARE(Files::read(shop.path(u"keyword.txt"_s)), "th\xE9 ?");
        QCOMPARE(Files::read(shop.path(u"des.txt"_s)), "");
    }

    void savingGoesOnAfterAFailure()
    {
        TestShop shop;
        Files::write(shop.path(u"settings"_s), "a file where the folder should be");
        ShopSettings settings;
        settings.txtmessage = u"Bonjour"_s;
        const Result saved = SaveParam(settings, shop.session);
        QVERIFY(!saved && !saved.text().isEmpty());
        QCOMPARE(Files::read(shop.path(u"accueil.txt"_s)), "Bonjour");
    }

    void languageChoice()
    {
        // What is chosen: columns of the store, words, name of the entry; the session speaks NL.
        const Rows<int, QString, QString> rows = {{"stored", 6, u"EN"_s, u"EN EN English"_s},
                                                  {"not stored", 6, u""_s, u"NL NL Nederlands"_s},
                                                  {"unknown keeps the fourth", 6, u"PT"_s, u"PT FR Français"_s},
                                                  {"few entries", 3, u"EN"_s, u"EN EN English"_s},
                                                  {"unknown, few entries", 3, u"PT"_s, u"PT NL "_s},
                                                  {"no entries", 0, u""_s, u"NL NL "_s}};
        for (const auto &[row, entries, stored, chosen] : rows) {
            const Row named(row);
            std::vector<Language> languages = {{u"DE"_s, u"Deutsch"_s},  {u"EN"_s, u"English"_s},
                                               {u"ES"_s, u"Español"_s},  {u"FR"_s, u"Français"_s},
                                               {u"IT"_s, u"Italiano"_s}, {u"NL"_s, u"Nederlands"_s}};
            languages.resize(size_t(entries));
            const ShopLanguage language = ShopLanguage::choose(languages, stored, u"NL"_s);
            QCOMPARE(QString(language.sLangueHtm + u' ' + language.gsLangueCatalogue + u' ' + language.name), chosen);
        }
    }

    void languagesOfTheStore()
    {
        TestShop shop;
        shop.sql(u"INSERT INTO REF_LANGUE_U (CODE, LANGUE) VALUES ('NL', 'nederlands'), ('FR', 'Français'), "
                 "(NULL, 'Aucune'), ('EN', 'English'), ('XX', NULL)"_s);
        Result result;
        QStringList codes;
        for (const Language &language : readLanguages(shop.session.gCnn, result))
            codes << language.code;
        QVERIFY(result);
        QCOMPARE(codes, QStringList({u"XX"_s, u"EN"_s, u"FR"_s, u"NL"_s}));
        shop.setting(u"LANGHTM"_s, u"EN"_s);
        Files::write(shop.path(u"EN.cda"_s), "[CATALOG]\n21=Product\n");
        const ShopData data = shop.dataFromStore();
        QCOMPARE(data.words(u"21"_s), u"Product"_s);
        QCOMPARE(data.language.name, u"English"_s);
    }
};

ZELVANTOR_SUITE(SettingsTest)
#include "SettingsTest.moc"
