#include "platform/CodePage.h"
#include "platform/Spread.h"
#include "shop/frmCatalogue.h"
#include "tests/desk/Desk.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList lineControls = {u"txtTitre"_s,  u"txtFile"_s,    u"txtFrais"_s,    u"txtlbFrais"_s, u"txtTaxe"_s,
                                  u"txtlbTaxe"_s, u"txtForm"_s,    u"txtDest"_s,     u"txtExp"_s,     u"txtSymbol"_s,
                                  u"txtMin"_s,    u"txtPPEmail"_s, u"txtPPRetour"_s, u"txtPPDevise"_s};
const QStringList textControls = {u"txtKeyword"_s,  u"txtDescription"_s, u"txtmessage"_s,
                                  u"txtModalite"_s, u"txtExpedition"_s,  u"txtPrivacy"_s};
const QStringList tickControls = {u"chTerme"_s, u"chExpedition"_s, u"chPrivacy"_s, u"chAchat"_s,
                                  u"chPhoto"_s, u"chSearch"_s,     u"chGratuit"_s};

QStringList linesOf(QWidget &window)
{
    QStringList lines;
    auto &list = control<QListWidget>(window, "lstControle");
    for (int i = 0; i < list.count(); ++i)
        lines << list.item(i)->text();
    return lines;
}

QString page(Desk &desk, const QString &name)
{
    return CodePage::decode(Files::read(desk.path(u"data/temp/"_s + name)));
}

} // namespace

class CatalogueTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void firstOpeningShowsTheDefaultsAndClosingDropsWhatWasTyped()
    {
        SampleDesk desk;
        frmCatalogue window(desk.session, nullptr);
        QCOMPARE(control<QComboBox>(window, "cbLangue").currentText(), u"Français"_s);
        QCOMPARE(control<QLineEdit>(window, "txtTitre").text(), u"La Remise aux Tilleuls"_s);
        QCOMPARE(control<QLineEdit>(window, "txtSymbol").text(), u"€"_s);
        QCOMPARE(control<QLineEdit>(window, "txtPPDevise").text(), u"EUR"_s);
        QCOMPARE(control<QLineEdit>(window, "txtMin").text(), QString());
        QCOMPARE(control<QLabel>(window, "lbTemp").text(), u"1"_s);
        QVERIFY(!control<QPushButton>(window, "cmdFtp").isEnabled());
        const auto &grid = control<Spread>(window, "fpSpread2");
        QCOMPARE(grid.MaxRows(), 6 + 15);
        for (int hidden = 4; hidden < 9; ++hidden)
            QVERIFY(grid.isColumnHidden(hidden));
        QVERIFY(desk.session.localisation.gbLangueCatalogue);
        QVERIFY(QDir(desk.path(u"data/catalog"_s)).exists());
        control<QLineEdit>(window, "txtTitre").setText(u"Autre"_s);
        control<QPushButton>(window, "cmdFermer").click();
        QCOMPARE(desk.setting(u"TITRE"_s), QString());
    }

    void everySettingSurvivesARun()
    {
        SampleDesk desk;
        const auto typed = [](const QString &name) -> QString { return u"é"_s + name; };
        {
            frmCatalogue window(desk.session, nullptr);
            for (const QString &name : lineControls)
                window.findChild<QLineEdit *>(name)->setText(name == u"txtMin"_s ? u"0"_s : typed(name));
            for (const QString &name : textControls)
                window.findChild<QPlainTextEdit *>(name)->setPlainText(typed(name) + u"\nligne 2"_s);
            for (const QString &name : tickControls)
                window.findChild<QCheckBox *>(name)->setChecked(name == u"chGratuit"_s);
            control<QComboBox>(window, "cbLangue").setCurrentText(u"Nederlands"_s);
            Q_EMIT control<Spread>(window, "fpSpread3").cellClicked(1, 7);
            auto &shipping = control<Spread>(window, "fpSpread12");
            shipping.setText(1, 1, QString());
            shipping.setText(1, 2, u"L'express"_s);
            shipping.setText(2, 2, u"2.50"_s);
            control<QPushButton>(window, "cmdValider").click();
            QVERIFY(control<QPushButton>(window, "cmdFtp").isEnabled());
            QVERIFY(control<QPushButton>(window, "cmdValider").isEnabled());
        }
        QVERIFY(!desk.session.localisation.gbLangueCatalogue);
        QCOMPARE(desk.desktop.opened, QStringList{desk.path(u"data/temp/index.htm"_s)});
        QVERIFY(page(desk, u"index.htm"_s).contains(u"topbkg7.gif"_s));
        QVERIFY(page(desk, u"exmplmenu_var.js"_s).contains(u"Winkelwagen"_s));
        QCOMPARE(Files::read(desk.path(u"data/modalite.txt"_s)), CodePage::encode(u"étxtModalite\r\nligne 2"_s));

        frmCatalogue again(desk.session, nullptr);
        for (const QString &name : lineControls)
            QCOMPARE(again.findChild<QLineEdit *>(name)->text(), name == u"txtMin"_s ? u"0"_s : typed(name));
        for (const QString &name : textControls)
            QCOMPARE(again.findChild<QPlainTextEdit *>(name)->toPlainText(), QString(typed(name) + u"\nligne 2"_s));
        for (const QString &name : tickControls)
            QCOMPARE(again.findChild<QCheckBox *>(name)->isChecked(), name == u"chGratuit"_s);
        QCOMPARE(control<QComboBox>(again, "cbLangue").currentText(), u"Nederlands"_s);
        QCOMPARE(control<QLabel>(again, "lbTemp").text(), u"7"_s);
        QCOMPARE(control<Spread>(again, "fpSpread12").text(1, 1) + control<Spread>(again, "fpSpread12").text(2, 1),
                 u"L'express2.50"_s);
        again.show();
        QVERIFY(!control<QWidget>(again, "Picture1").isVisibleTo(&again));
    }

    void selectionDecidesThePages()
    {
        SampleDesk desk;
        frmCatalogue window(desk.session, nullptr);
        auto &grid = control<Spread>(window, "fpSpread2");
        control<QPushButton>(window, "cmdDeslectAll").click();
        grid.setText(1, 1, u"1"_s);
        grid.setText(3, 3, u"1"_s);
        const QString kept = u"g%1_s%2.htm"_s.arg(grid.text(5, 1), grid.text(6, 3));
        control<QPushButton>(window, "cmdValider").click();
        const QDir temp(desk.path(u"data/temp"_s));
        QCOMPARE(temp.entryList({u"g*_s*.htm"_s}), QStringList{kept});
        QVERIFY(page(desk, u"exmplmenu_var.js"_s).contains(kept));
        control<QPushButton>(window, "cmdSelectAll").click();
        control<QPushButton>(window, "cmdValider").click();
        QCOMPARE(temp.entryList({u"g*_s*.htm"_s}).size(), 15);
    }

    void openingEmptiesTheFolderAndARunDoesNot()
    {
        SampleDesk desk;
        const QString old = desk.path(u"data/temp/ancien.htm"_s);
        const QString picture = desk.path(u"data/temp/images/ancienne.jpg"_s);
        QDir().mkpath(desk.path(u"data/temp/images"_s));
        Files::write(old, "x");
        Files::write(picture, "x");
        frmCatalogue window(desk.session, nullptr);
        QVERIFY(!QFile::exists(old) && QFile::exists(picture));
        Files::write(old, "x");
        control<QPushButton>(window, "cmdValider").click();
        QVERIFY(QFile::exists(old) && QFile::exists(desk.path(u"data/temp/searchdb.js"_s)));
        QVERIFY(QFile::exists(desk.path(u"data/temp/images/logo.gif"_s)));
    }

    void whatIsPassedOverIsListed()
    {
        SampleDesk desk;
        desk.session.localisation.gsLangue = u"EN"_s;
        const QString gone =
            ApplicationFolder::sample(desk.session.applicationFolder) + u"/pictures/n-existe-pas.jpg"_s;
        desk.sql(u"INSERT INTO T_PRODUIT_IMAGE VALUES (1, '"_s + gone + u"', 0)"_s);
        frmCatalogue window(desk.session, nullptr);
        QDir().mkpath(desk.path(u"data/temp/terme.htm"_s));
        control<QPushButton>(window, "cmdValider").click();
        const QStringList lines = linesOf(window);
        QVERIFY2(lines.contains(u"Picture "_s + gone + u" not copied: file not found"_s),
                 qPrintable(lines.join(u'\n')));
        QVERIFY(!lines.filter(u"File terme.htm not written: "_s).isEmpty());
        QCOMPARE(desk.messages.boxes, QStringList());
        QVERIFY(QFile::exists(desk.path(u"data/temp/searchdb.js"_s)));
    }

    void findingsLeadToTheirField()
    {
        SampleDesk desk;
        desk.sql(u"UPDATE T_PRODUIT SET sRef = '00001202501', sNomFR = 'Pot \"noir\" | grand' WHERE idProduit = 2"_s);
        desk.sql(u"UPDATE T_PRODUIT SET sPrixVenteTTC = NULL, sNomFR = ' ' WHERE idProduit = 3"_s);
        desk.sql(u"UPDATE T_PRODUIT SET sFamille = 'L''atelier' WHERE idFamille = 12"_s);
        desk.sql(u"UPDATE T_PRODUIT SET sNomFR = 'Bol Ω', sRef = 'a@b' WHERE idProduit = 20"_s);
        desk.sql(u"UPDATE T_PRODUIT SET idFamille = NULL WHERE idProduit = 30"_s);
        desk.sql(
            u"UPDATE T_PRODUIT SET sPrixVenteTTC = '12,50', sObservationFR = 'Le \"grand\"' WHERE idProduit = 31"_s);
        desk.sql(u"UPDATE T_PRODUIT SET sRef = 'œuf→1' WHERE idProduit = 32"_s);
        desk.sql(u"UPDATE T_PRODUIT SET sRef = '', sNomFR = 'Anonyme' WHERE idProduit IN (33, 34)"_s);
        desk.sql(u"UPDATE T_PRODUIT SET sRef = 'a' || char(10) || 'b', sPrixVenteTTC = 'nan' WHERE idProduit = 35"_s);
        desk.sql(
            u"UPDATE T_PRODUIT SET sRef = 'L' || printf('%.*c', 200, 'x'), sPrixVenteTTC = '-3' WHERE idProduit = 36"_s);
        desk.sql(u"UPDATE T_PRODUIT_IMAGE SET sImage = '/x/→.jpg' WHERE idProduit = 37"_s);
        desk.sql(u"UPDATE REF_INFO SET sValeur = '' WHERE idInfo = 9"_s);
        (void)AfficherInfo(desk.session);
        frmCatalogue window(desk.session, nullptr);
        auto &shipping = control<Spread>(window, "fpSpread12");
        shipping.setText(1, 3, u"Poste"_s);
        shipping.setText(2, 3, u"3,50"_s);
        control<QPushButton>(window, "cmdControle").click();
        const QStringList lines = linesOf(window);
        for (const QString &expected : {u"La commande minimum est vide"_s,
                                        u"« Poste » contient une virgule"_s,
                                        u"« L'atelier »"_s,
                                        u"00001/202501, 00001202501"_s,
                                        u"Pot \"noir\" | grand » contient un guillemet"_s,
                                        u"Pot \"noir\" | grand » contient le signe"_s,
                                        u"L’article 00003/202501 n’a pas de nom"_s,
                                        u"L’article 00003/202501 n’a pas de prix"_s,
                                        u"« a@b »"_s,
                                        u"a@b / Bol Ω » contient des caractères"_s,
                                        u"La ligne 9 (Email) des données"_s,
                                        u"encore celui d’origine"_s,
                                        u"n’a pas de groupe"_s,
                                        u": 12,50 » n’est pas un nombre"_s,
                                        u"dans son texte"_s,
                                        u"« œuf→1 » contient des car"_s,
                                        u"« Anonyme » n’a pas de référence"_s,
                                        u"« a b / "_s,
                                        u": nan » n’est pas un nombre"_s,
                                        u"x… / "_s,
                                        u"Le prix de vente est négatif : Lx"_s,
                                        u"/ →.jpg"_s})
            QVERIFY2(!lines.filter(expected).isEmpty(), qPrintable(expected + u" manque dans\n"_s + lines.join(u'\n')));
        auto &list = control<QListWidget>(window, "lstControle");
        window.show();
        window.activateWindow();
        Q_EMIT list.itemActivated(list.item(int(lines.indexOf(lines.filter(u"commande minimum"_s).first()))));
        QCOMPARE(control<QTabWidget>(window, "SSTab1").currentIndex(), 2);
        QCOMPARE(window.focusWidget(), &control<QWidget>(window, "txtMin"));
        Q_EMIT list.itemActivated(list.item(int(lines.indexOf(lines.filter(u"« Poste »"_s).first()))));
        QCOMPARE(shipping.activeRow(), 3);
    }

    void logoIsPickedAndCopied()
    {
        SampleDesk desk;
        const QString folder = desk.path(u"photos"_s);
        QDir().mkpath(folder);
        QVERIFY(QFile::copy(desk.path(u"data/img/shopcart.gif"_s), folder + u"/enseigne.gif"_s));
        Files::write(folder + u"/texte.gif"_s, "pas une image");
        desk.setSetting(u"PATHPHOTO"_s, folder);
        frmCatalogue window(desk.session, nullptr);
        const auto pick = [&](int type, int row) {
            Visitor visitor;
            visitor.whenShown(u"frmDlgOpenDoc"_s, [type, row](QWidget &dialog) {
                control<QComboBox>(dialog, "cbType").setCurrentIndex(type);
                control<QListWidget>(dialog, "File1").setCurrentRow(row);
                control<QPushButton>(dialog, "cmdAjouter").click();
                control<QPushButton>(dialog, "cmdAjouter").click();
                QCOMPARE(control<QListWidget>(dialog, "lstSelected").count(), 1);
                control<QPushButton>(dialog, "cmdValider").click();
            });
            control<QPushButton>(window, "cmdAddPict").click();
            QCOMPARE(visitor.waiting(), QStringList());
        };
        constexpr int gif = 5;
        pick(gif, 0);
        QCOMPARE(control<QLineEdit>(window, "txtLogo").text(), QString(folder + u"/enseigne.gif"_s));
        QCOMPARE(control<QLineEdit>(window, "txtFile").text(), u"enseigne.gif"_s);
        QVERIFY(QFile::exists(desk.path(u"data/temp/images/enseigne.gif"_s)));
        pick(gif, 1);
        QCOMPARE(control<QLineEdit>(window, "txtFile").text(), u"enseigne.gif"_s);
        QCOMPARE(desk.messages.boxes.size(), 1);
        // A name typed by hand gets its picture with the next run; one that is none is told, and leads to its field.
        control<QLineEdit>(window, "txtFile").setText(u"autre.gif"_s);
        control<QPushButton>(window, "cmdValider").click();
        QVERIFY(QFile::exists(desk.path(u"data/temp/images/autre.gif"_s)));
        control<QLineEdit>(window, "txtFile").setText(u"a/b.gif"_s);
        control<QPushButton>(window, "cmdValider").click();
        QCOMPARE(linesOf(window).filter(u"a/b.gif"_s).size(), 2);
        QFile::remove(folder + u"/enseigne.gif"_s);
        control<QLineEdit>(window, "txtFile").setText(u"enseigne.gif"_s);
        for (int run = 0; run < 2; ++run) {
            control<QPushButton>(window, "cmdValider").click();
            QCOMPARE(linesOf(window).filter(u"enseigne.gif"_s).size(), 1);
        }
    }

    void settingsThatBreakPagesAreFound()
    {
        SampleDesk desk;
        desk.sql(u"UPDATE REF_INFO SET sValeur = 'a\nb Ω' WHERE idInfo = 2"_s);
        (void)AfficherInfo(desk.session);
        Files::write(desk.path(u"data/NL.cda"_s), "no sign\n");
        frmCatalogue window(desk.session, nullptr);
        control<QLineEdit>(window, "txtSymbol").setText(u"₹"_s);
        control<QLineEdit>(window, "txtMin").setText(u"-5"_s);
        control<QLineEdit>(window, "txtTitre").setText(u"a\nb"_s);
        control<Spread>(window, "fpSpread12").setText(2, 1, u"4.50"_s);
        for (const bool run : {false, true}) {
            control<QPushButton>(window, run ? "cmdValider" : "cmdControle").click();
            const QString lines = linesOf(window).join(u'\n');
            for (const QString &part : {u"« ₹ » contient des car"_s, u"négative (-5)"_s, u"« 4.50 » n’a pas de nom"_s,
                                        u"retour à la ligne"_s})
                QVERIFY2(lines.count(part) == 1, qPrintable(part + u'\n' + lines));
            QCOMPARE(lines.count(u"windows-1252"_s), run ? 3 : 0);
        }
        control<QComboBox>(window, "cbLangue").setCurrentText(u"Nederlands"_s);
        for (int run = 0; run < 2; ++run) {
            QVERIFY(!linesOf(window).filter(u"NL.cda"_s).isEmpty());
            control<QPushButton>(window, "cmdValider").click();
        }
    }
};

ZELVANTOR_SUITE(CatalogueTest)
#include "CatalogueTest.moc"
