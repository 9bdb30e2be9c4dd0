#include "platform/NumberBox.h"
#include "platform/Spread.h"
#include "tests/catalogue/ArticleDesk.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;

namespace {

const QStringList lineBoxes = {u"txtNumSerie"_s, u"txtEan"_s,       u"txtMarque"_s,    u"txtModele"_s,
                               u"txtRefFour"_s,  u"txtCondition"_s, u"txtDimension"_s, u"txtLibre1"_s,
                               u"txtLibre2"_s,   u"txtLibre3"_s,    u"txtCompteA"_s,   u"txtCompteV"_s};

void chooseGroup(QWidget &window)
{
    control<QComboBox>(window, "cbCategory").setCurrentIndex(1);
    control<QComboBox>(window, "cbFamille").setCurrentIndex(0);
}

} // namespace

class ArticleTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyFieldComesBack()
    {
        ArticleDesk desk;
        {
            auto window = desk.open(2, 5);
            for (const QString &name : lineBoxes)
                window->findChild<QLineEdit *>(name)->setText(name + u" l'été \"x\" ; --"_s);
            for (int i = 0; i < 6; ++i) {
                window->findChild<QLineEdit *>(u"txtNom_%1"_s.arg(i))->setText(u"L'objet %1 où"_s.arg(i));
                window->findChild<QPlainTextEdit *>(u"txtObservation_%1"_s.arg(i))->setPlainText(u"D'ici\n%1"_s.arg(i));
            }
            enter(*window, "txtGarantie", "24");
            enter(*window, "txtPoids", "1,5");
            enter(*window, "txtSeuil", "3");
            enter(*window, "txtQte", "7");
            control<QComboBox>(*window, "cbUnite").setCurrentIndex(2);
            control<QComboBox>(*window, "cbFournisseur").setCurrentIndex(1);
            control<QCheckBox>(*window, "chControlStock").setChecked(true);
            control<QCheckBox>(*window, "chPrix").setChecked(true);
            enter(*window, "txtPrixAchat", "10");
            control<QPushButton>(*window, "cmdValider0").click();
            QVERIFY(!control<QPushButton>(*window, "cmdValider0").isEnabled());
            QVERIFY(control<QPushButton>(*window, "cmdEtiquette").isEnabled());
        }
        QCOMPARE(desk.messages.boxes, QStringList());
        QVERIFY(desk.session.gbRafraichirListe);
        QCOMPARE(desk.column(u"sNomDE"_s, 5), u"L'objet 3 où"_s);
        QCOMPARE(desk.column(u"sObservationES"_s, 5), u"D'ici\r\n5"_s);
        QCOMPARE(desk.column(u"nQuantity"_s, 5), u"7"_s);
        QCOMPARE(desk.column(u"bPrixQte"_s, 5), u"1"_s);
        QCOMPARE(desk.column(u"dDate_modification"_s, 5), desk.clock.today().toString(u"dd/MM/yyyy"_s));
        auto again = desk.open(2, 5);
        for (const QString &name : lineBoxes)
            QCOMPARE(again->findChild<QLineEdit *>(name)->text(), QString(name + u" l'été \"x\" ; --"_s));
        QCOMPARE(shown(*again, "txtNom_5"), u"L'objet 5 où"_s);
        QCOMPARE(control<QPlainTextEdit>(*again, "txtObservation_1").toPlainText(), u"D'ici\n1"_s);
        QCOMPARE(shown(*again, "txtGarantie"), u"24"_s);
        QCOMPARE(shown(*again, "txtPoids"), u"1.5"_s);
        QCOMPARE(shown(*again, "txtPrixAchat"), u"10.00"_s);
        QCOMPARE(control<QComboBox>(*again, "cbUnite").currentIndex(), 2);
        QCOMPARE(control<QComboBox>(*again, "cbFournisseur").currentIndex(), 1);
        QVERIFY(control<QCheckBox>(*again, "chControlStock").isChecked());
        QVERIFY(control<Spread>(*again, "fpSpread2").isVisibleTo(again.get()));
        QCOMPARE(control<QTabWidget>(*again, "SSTab1").currentIndex(), 0);
    }

    void newProductsFollowOneAnother()
    {
        ArticleDesk desk;
        const int last = desk.value(u"SELECT Ref_Produit FROM PARAM"_s).toInt();
        auto window = desk.open(1);
        QCOMPARE(desk.session.glIdProduit, last + 1);
        const QString reference = shown(*window, "txtRef_Article");
        QCOMPARE(reference, QString(u"%1"_s.arg(last + 1, 5, 10, QLatin1Char('0')) + u'/'
                                    + desk.clock.today().toString(u"yyyyMM"_s)));
        QVERIFY(!control<QPushButton>(*window, "cmdEtiquette").isEnabled());
        QVERIFY(!control<QPushButton>(*window, "cmdValider0").isEnabled());
        QCOMPARE(shown(*window, "txtSeuil") + shown(*window, "txtQte"), u"11"_s);
        chooseGroup(*window);
        control<QComboBox>(*window, "cbFournisseur").setCurrentIndex(2);
        control<QLineEdit>(*window, "txtNom_0").setText(u"  Premier  "_s);
        control<QToolButton>(*window, "cmdTrans").click();
        enter(*window, "txtPrixVente", "12.5");
        desk.messages.answer = false;
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.size(), 1); // the question for labels
        QCOMPARE(desk.column(u"sNomFR"_s, last + 1), u"Premier"_s);
        QCOMPARE(desk.column(u"sPrixVenteTTC"_s, last + 1), u"12.50"_s);
        QCOMPARE(desk.column(u"sEan"_s, last + 1).size(), 13);
        QCOMPARE(desk.column(u"sCategorie"_s, last + 1), control<QComboBox>(*window, "cbCategory").currentText());
        // The next one keeps what was chosen and nothing of what was typed.
        QCOMPARE(desk.session.glIdProduit, last + 2);
        QVERIFY(shown(*window, "txtRef_Article") != reference);
        QCOMPARE(shown(*window, "txtNom_0") + shown(*window, "txtPrixVente") + shown(*window, "txtEan"), QString());
        QCOMPARE(shown(*window, "txtSeuil") + shown(*window, "txtQte"), u"11"_s);
        QCOMPARE(control<QComboBox>(*window, "cbFournisseur").currentIndex(), 2);
        QVERIFY(!control<QPushButton>(*window, "cmdValider0").isEnabled());
        QVERIFY(desk.session.gbRafraichirListe);
        control<QLineEdit>(*window, "txtNom_0").setText(u"Second"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"idFournisseur"_s, last + 2), desk.column(u"idFournisseur"_s, last + 1));
        QCOMPARE(desk.column(u"sPrixVenteTTC"_s, last + 2), QString());
    }

    void whatIsMissingIsAsked()
    {
        ArticleDesk desk;
        auto window = desk.open(1);
        const auto refused = [&](const QString &key, const char *control0) {
            desk.messages.boxes.clear();
            control<QPushButton>(*window, "cmdValider0").click();
            QCOMPARE(desk.messages.boxes,
                     QStringList{u"ZELVANTOR|"_s + desk.session.localisation.Traduire(u"MESSAGES"_s, key)});
            QVERIFY(control<QWidget>(*window, control0).hasFocus());
        };
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        control<QLineEdit>(*window, "txtNom_1").setText(u"Only English"_s);
        refused(u"114"_s, "cbFamille");
        chooseGroup(*window);
        control<QLineEdit>(*window, "txtRef_Article").setText(u"  "_s);
        refused(u"117"_s, "txtRef_Article");
        control<QLineEdit>(*window, "txtRef_Article").setText(u"X"_s);
        refused(u"118"_s, "txtNom_0");
        QCOMPARE(desk.value(u"SELECT count(*) FROM T_PRODUIT WHERE sRef = 'X'"_s), u"0"_s);
    }

    void pricesReactToTypingAndFocus()
    {
        ArticleDesk desk;
        desk.sql(u"UPDATE T_PRODUIT SET sPrixAchatHT = '100', sPrixAchatTTC = '77', sPrixRevient = '78', sFrais = '5', "
                 "sMarge = '9', sPrixVenteTTC = '50', sPrixVenteHT = '45', nQuantity = 3, idTVAA = 6, idTVAV = 6 "
                 "WHERE idProduit = 5"_s);
        auto window = desk.open(2, 5);
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCOMPARE(shown(*window, "txtPrixAchatTTC") + u' ' + shown(*window, "txtPrixRevient"), u"121.00 126.00"_s);
        QCOMPARE(shown(*window, "txtMarge") + u' ' + shown(*window, "txtPrixVente"), u"9.00 50.00"_s);
        enter(*window, "txtMarge", "2");
        QCOMPARE(shown(*window, "txtPrixVente") + u' ' + shown(*window, "txtPrixVenteHT"), u"252.00 208.26"_s);
        // Whichever way the purchase price is left, the sale price comes next.
        control<NumberBox>(*window, "txtPrixAchat").setFocus();
        QTest::keyClick(&control<NumberBox>(*window, "txtPrixAchat"), Qt::Key_Backtab);
        QTRY_VERIFY(control<NumberBox>(*window, "txtPrixVente").hasFocus());
        // A value with more decimals than its box is not taken for an entry when the box is only passed through.
        control<NumberBox>(*window, "txtPrixVenteHT").setFocus();
        control<NumberBox>(*window, "txtFrais").setFocus();
        QCOMPARE(shown(*window, "txtPrixVente"), u"252.00"_s);
        control<QComboBox>(*window, "cbTvaV").setCurrentIndex(control<QComboBox>(*window, "cbTvaV").findText(u"0"_s));
        QCOMPARE(shown(*window, "txtPrixVenteHT"), u"252.00"_s);
        // The rate that is chosen already, picked again, counts the price again.
        enter(*window, "txtPrixAchatTTC", "77");
        auto &rate = control<QComboBox>(*window, "cbTVAA");
        Q_EMIT rate.activated(rate.currentIndex());
        QCOMPARE(shown(*window, "txtPrixAchatTTC"), u"121.00"_s);
        // An entry that is still open counts when a key saves.
        auto &costs = control<NumberBox>(*window, "txtFrais");
        costs.selectAll();
        QTest::keyClicks(&costs, u"9"_s);
        control<QLineEdit>(*window, "txtNom_0").setText(u"Nom"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"sFrais"_s, 5) + u' ' + desk.column(u"sPrixRevient"_s, 5), u"9.00 130.00"_s);
    }

    /// A store that was locked when the number was taken gives the next product another one all the same.
    void numberOfALockedStoreIsTakenOnce()
    {
        ArticleDesk desk;
        desk.messages.answer = false;
        Result opened;
        const auto other = Store::open(desk.session.gsDbPath, opened);
        QVERIFY(opened && other->execute(u"BEGIN IMMEDIATE"_s));
        auto window = desk.open(1);
        const int first = desk.session.glIdProduit;
        control<QToolButton>(*window, "cmdTrans").click();
        const QString code = shown(*window, "txtEan");
        QVERIFY(other->execute(u"COMMIT"_s));
        QVERIFY(other->execute(u"UPDATE PARAM SET Ref_Produit = %1"_s.arg(first))); // another program takes it
        chooseGroup(*window);
        for (const QString &name : {u"Un"_s, u"Deux"_s}) {
            control<QLineEdit>(*window, "txtNom_0").setText(name);
            control<QPushButton>(*window, "cmdValider0").click();
        }
        QCOMPARE(desk.column(u"sNomFR"_s, first + 1) + desk.column(u"sNomFR"_s, first + 2), u"UnDeux"_s);
        QVERIFY(desk.column(u"sEan"_s, first + 1) != code);
        QVERIFY(desk.column(u"sRef"_s, first + 1).startsWith(u"%1/"_s.arg(first + 1, 5, 10, QLatin1Char('0'))));
    }

    /// Captions that a translation has made into something else name no columns.
    void textsKeepTheirLanguageUnderAnyCaption()
    {
        ArticleDesk desk;
        const QString texts = u"sNomFR || sNomEN || sObservationFR || sObservationES"_s;
        const QString before = desk.column(texts, 5);
        auto window = desk.open(2, 5);
        control<QLabel>(*window, "lbNom_0").setText(u"EN"_s);
        control<QTabWidget>(*window, "SSTab1").setTabText(0, u"Français"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(texts, 5), before);
    }

    /// What the boxes can't show the way it is stored must not be lost by looking at it.
    void openingAndSavingChangesNothing()
    {
        ArticleDesk desk;
        desk.sql(
            u"UPDATE T_PRODUIT SET sGarantie = '24 mois', sPrixVenteTTC = '1500000', sSeuil = '-3', sMarge = 'abc', "
            "nQuantity = 2000000, sObservationFR = '10\u00a0\u20ac\t!' WHERE idProduit = 5"_s);
        const QString columns =
            u"sGarantie || '|' || sPrixVenteTTC || '|' || sSeuil || '|' || sMarge || '|' || nQuantity || "
            "'|' || sObservationFR || '|' || sNomES || '|' || idUnite"_s;
        const QString before = desk.column(columns, 5);
        auto window = desk.open(2, 5);
        for (NumberBox *box : window->findChildren<NumberBox *>()) {
            box->setFocus();
            box->clearFocus();
        }
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes, QStringList());
        QCOMPARE(desk.column(columns, 5), before);
        QCOMPARE(control<QGroupBox>(*window, "frAchat").title(), u"Achat (EUR)"_s);
        ScreenManners::loadTexts(*window, desk.session);
        QCOMPARE(control<QGroupBox>(*window, "frAchat").title(), u"Achat (EUR)"_s);
    }

    void consultModeWritesTheRowsButNotTheProduct()
    {
        ArticleDesk desk;
        const int product = desk.value(u"SELECT idRef_Produit FROM REF_EXTENSION WHERE sValeur <> ''"_s).toInt();
        const QString ofProduct = u" FROM REF_EXTENSION WHERE idRef_Produit = "_s + QString::number(product);
        QVERIFY(desk.value(u"SELECT count(*)"_s + ofProduct) != u"0"_s);
        auto window = desk.open(3, product);
        QVERIFY(control<QPushButton>(*window, "cmdValider0").isEnabled()); // the loaded name has enabled it again
        const auto &attributes = control<Spread>(*window, "fpSpread1");
        QVERIFY(attributes.MaxRows() > 0);
        // Rows that another program has changed are asked about here too.
        desk.messages.answer = false;
        desk.sql(u"UPDATE REF_EXTENSION SET sValeur = 'ailleurs' WHERE idRef_Produit = %1"_s.arg(product));
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.size(), 1);
        QVERIFY(desk.value(u"SELECT count(*)"_s + ofProduct + u" AND sValeur = 'ailleurs'"_s) != u"0"_s);
        desk.messages.answer = true;
        for (int row = 1; row <= attributes.MaxRows(); ++row)
            QCOMPARE(attributes.text(2, row), QString());
        const QString before = desk.column(u"sNomFR"_s, product);
        control<QLineEdit>(*window, "txtNom_0").setText(u"Autre"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"sNomFR"_s, product), before);
        QCOMPARE(desk.value(u"SELECT count(*)"_s + ofProduct + u" AND sValeur <> ''"_s), u"0"_s);
    }

    void nullsLeaveTheBoxes()
    {
        ArticleDesk desk;
        desk.sql(u"UPDATE T_PRODUIT SET nQuantity = 0, sSeuil = NULL, sMarque = NULL, idFournisseur = NULL, "
                 "sPrixVenteTTC = NULL, idUnite = NULL WHERE idProduit = 5"_s);
        desk.session.glIdFournisseur = 2; // of the product that was open before
        auto window = desk.open(2, 5);
        QCOMPARE(shown(*window, "txtQte") + shown(*window, "txtSeuil"), u"11"_s);
        QCOMPARE(shown(*window, "txtMarque") + shown(*window, "txtPrixVente"), QString());
        QCOMPARE(control<QComboBox>(*window, "cbFournisseur").currentIndex(), -1);
        control<QLineEdit>(*window, "txtNom_0").setText(u"Nom"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"nQuantity"_s, 5), u"1"_s);
        QCOMPARE(desk.column(u"idFournisseur"_s, 5), u"0"_s);
    }

    void failuresKeepWhatWasTyped()
    {
        ArticleDesk desk;
        auto window = desk.open(2, 5);
        control<QLineEdit>(*window, "txtNom_0").setText(u"Nouveau nom"_s);
        Result opened;
        const auto other = Store::open(desk.session.gsDbPath, opened);
        QVERIFY(opened && other->execute(u"BEGIN IMMEDIATE"_s));
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.size(), 1);
        QVERIFY(desk.messages.boxes.first().startsWith(u"AjouterArticle|5: "_s));
        QCOMPARE(shown(*window, "txtNom_0"), u"Nouveau nom"_s);
        QVERIFY(control<QPushButton>(*window, "cmdValider0").isEnabled());
        QVERIFY(other->execute(u"COMMIT"_s));
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"sNomFR"_s, 5), u"Nouveau nom"_s);
        // Changed or deleted by another program since it was opened.
        desk.messages.boxes.clear();
        desk.messages.answer = false;
        QVERIFY(other->execute(u"UPDATE T_PRODUIT SET sMarque = 'AILLEURS' WHERE idProduit = 5"_s));
        control<QLineEdit>(*window, "txtNom_0").setText(u"Encore"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"sNomFR || sMarque"_s, 5), u"Nouveau nomAILLEURS"_s);
        desk.messages.answer = true;
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"sNomFR"_s, 5), u"Encore"_s);
        desk.messages.answer = false;
        QVERIFY(other->execute(u"INSERT INTO T_PRODUIT_PRIX VALUES (5, 1, 9, 0, '99', '99', NULL)"_s));
        control<QLineEdit>(*window, "txtNom_0").setText(u"Sans prix"_s);
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.column(u"sNomFR"_s, 5), u"Encore"_s);
        QCOMPARE(desk.messages.boxes.size(), 3);
        auto gone = desk.open(2, 6);
        QVERIFY(other->execute(u"DELETE FROM T_PRODUIT WHERE idProduit = 6"_s));
        control<QPushButton>(*gone, "cmdValider0").click();
        QVERIFY(desk.messages.boxes.last().endsWith(u"Rien n’est enregistré."_s));
        auto never = desk.open(2, 6); // not there when it was opened
        chooseGroup(*never);
        control<QLineEdit>(*never, "txtRef_Article").setText(u"R"_s);
        control<QLineEdit>(*never, "txtNom_0").setText(u"Nom"_s);
        control<QPushButton>(*never, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.size(), 5);
        QCOMPARE(desk.column(u"count(*)"_s, 6), u"0"_s);
        // A key that is taken: the screen stays in its mode, and attributes and prices of the other product stay too.
        const QString prices = desk.value(u"SELECT count(*) FROM T_PRODUIT_PRIX"_s);
        desk.messages.boxes.clear();
        auto next = desk.open(1);
        chooseGroup(*next);
        control<QLineEdit>(*next, "txtNom_0").setText(u"Double"_s);
        desk.session.glIdProduit = 5;
        control<QPushButton>(*next, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.size(), 1);
        QCOMPARE(shown(*next, "txtNom_0"), u"Double"_s);
        QCOMPARE(desk.value(u"SELECT count(*) FROM T_PRODUIT_PRIX"_s), prices);
    }

    void oddEntries()
    {
        ArticleDesk desk;
        auto window = desk.open(2, 5);
        auto &brand = control<QLineEdit>(*window, "txtMarque");
        brand.clear();
        QTest::keyClicks(&brand, u"ab"_s);
        brand.insert(u"éz"_s);
        QTest::keyClicks(&brand, u"1"_s);
        QCOMPARE(brand.text(), u"ABéZ1"_s);
        auto &price = control<NumberBox>(*window, "txtPrixVente");
        price.setFocus();
        price.clear();
        QTest::keyClicks(&price, u"-1x2 345,678"_s);
        QTest::keyClick(&price, Qt::Key_Return);
        QCOMPARE(price.text(), u"12345.67"_s);
        price.clear();
        QTest::keyClick(&price, Qt::Key_Return);
        QVERIFY(!price.number());
        const QString script = u"名前 اسم 🧺\tתו\r\nsuite"_s + QChar(0);
        control<QLineEdit>(*window, "txtNom_0").setText(script);
        control<QLineEdit>(*window, "txtLibre1").setText(QString(30000, u'x'));
        control<QPushButton>(*window, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes, QStringList());
        QCOMPARE(desk.column(u"sNomFR"_s, 5), u"名前 اسم 🧺 תו suite"_s);
        QCOMPARE(desk.column(u"length(sLibre1)"_s, 5), u"30000"_s);
        QCOMPARE(desk.column(u"sPrixVenteTTC"_s, 5), QString());
    }

    void counterStartsOver()
    {
        ArticleDesk desk;
        desk.sql(u"UPDATE PARAM SET Ref_Produit = 32766"_s);
        auto window = desk.open(1);
        QVERIFY(shown(*window, "txtRef_Article").startsWith(u"32767/"_s));
        auto wrapped = desk.open(1);
        QCOMPARE(desk.messages.boxes.size(), 1);
        QVERIFY(desk.messages.boxes.first().startsWith(u"ChercherNumProduit|6: "_s));
        QVERIFY(shown(*wrapped, "txtRef_Article").startsWith(u"00001/"_s));
        QCOMPARE(desk.value(u"SELECT Ref_Produit FROM PARAM"_s), u"1"_s);
        desk.sql(u"UPDATE PARAM SET Ref_Produit = NULL"_s);
        QVERIFY(shown(*desk.open(1), "txtRef_Article").startsWith(u"00001/"_s));
    }
};

ZELVANTOR_SUITE(ArticleTest)
#include "ArticleTest.moc"
