#include "catalogue/frmArticle.h"
#include "reference/TranslationRule.h"
#include "reference/frmTrad.h"
#include "shell/MessageBoxes.h"
#include "shell/clsRegistry.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shop/frmInfo.h"
#include "tests/desk/Desk.h"

#include "platform/IniFile.h"
#include "platform/Spread.h"
#include "shell/ButtonBar.h"

#include <QMdiArea>
#include <QMessageBox>
#include <QTimer>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

class WindowsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    /// A control whose key a language lacks would show French in the middle of another language.
    void everyKeyOfEveryWindowIsInEveryLanguage()
    {
        const QDir source(QStringLiteral(ZELVANTOR_SOURCE));
        int keys = 0;
        for (const QString &room : {u"shell"_s, u"shop"_s, u"reference"_s, u"catalogue"_s, u"ftp"_s}) {
            for (const QString &name : QDir(source.filePath(room)).entryList({u"frm*.ui"_s})) {
                QXmlStreamReader xml(Files::read(source.filePath(room + u'/' + name)));
                QStringList tags;
                QString section;
                while (!xml.atEnd()) {
                    if (xml.readNext() != QXmlStreamReader::StartElement
                        || xml.attributes().value(u"name"_s) != u"Tag"_s)
                        continue;
                    xml.readNextStartElement();
                    const QString tag = xml.readElementText();
                    if (section.isEmpty() && !tag.at(0).isDigit())
                        section = tag;
                    else
                        tags << tag;
                }
                for (const QString &language : {u"FR"_s, u"EN"_s, u"NL"_s, u"DE"_s, u"IT"_s, u"ES"_s}) {
                    IniFile file;
                    QVERIFY(file.load(source.filePath(u"resources/language/"_s + language + u".cda"_s)));
                    for (const QString &tag : section.isEmpty() ? QStringList() : tags + QStringList{u"0"_s}) {
                        ++keys;
                        QVERIFY2(!file.value(section, tag).trimmed().isEmpty(),
                                 qPrintable(language + u' ' + section + u' ' + tag));
                    }
                }
            }
        }
        QVERIFY(keys > 400);
    }

    void languageChangeTurnsTheMainWindow()
    {
        SampleDesk desk;
        frmMain window(desk.session);
        auto &bar = control<ButtonBar>(window, "ButtonBar1");
        QCOMPARE(bar.headerCaption(2), u"CONFIGURATION"_s);
        Visitor visitor;
        visitor.whenShown(u"frmPays"_s, [](QWidget &regional) {
            control<QComboBox>(regional, "cbLangue").setCurrentText(u"Deutsch"_s);
            control<QPushButton>(regional, "cmdValider").click();
        });
        control<QToolButton>(window, "Regionale").click();
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(bar.headerCaption(1), u"ZELVANTOR"_s);
        QCOMPARE(bar.itemCaption(2, 5), u"Gruppen"_s);
        QCOMPARE(QMessageBox(QMessageBox::Question, {}, {}, QMessageBox::Yes).button(QMessageBox::Yes)->text(),
                 u"&Ja"_s);
        QCOMPARE(control<QAction>(window, "mnuHoriz").text().remove(u'&'), u"Nebeneinander"_s);
        QCOMPARE(window.windowTitle(), u"ZELVANTOR"_s);
        QCOMPARE(desk.setting(u"LANGUE"_s), u"DE"_s);
    }

    void missingKeysLeaveFrenchButEmptyTheCaption()
    {
        SampleDesk desk;
        Files::write(desk.path(u"data/IT.cda"_s), "[PARAM]\n2=\n3=   \nfpSpread3_2=Valore\n");
        desk.session.localisation.gsLangue = u"IT"_s;
        frmInfo window(desk.session, nullptr);
        QCOMPARE(window.windowTitle(), QString());
        QCOMPARE(control<QPushButton>(window, "cmdValider").text(), u"&Valider"_s);
        QCOMPARE(control<QPushButton>(window, "cmdFermer").text(), u"&Fermer"_s);
        QCOMPARE(control<Spread>(window, "fpSpread3").text(1, 0), u"Libellé"_s);
        QCOMPARE(control<Spread>(window, "fpSpread3").text(2, 0), u"Valore"_s);
    }

    void mainWindowSaysWhatIsMissing()
    {
        SampleDesk desk;
        desk.sql(u"UPDATE REF_INFO SET sValeur = NULL WHERE idInfo = 2"_s);
        desk.sql(u"DROP TABLE REF_REMARQUE"_s);
        frmMain window(desk.session);
        QCOMPARE(desk.session.gInfo.value(1), u" "_s);
        QCOMPARE(desk.messages.boxes.size(), 1);
        QVERIFY(desk.messages.boxes.first().startsWith(u"AfficherInfoDoc|1: "_s));
        QFile::remove(desk.path(u"data/user_guide_n.pdf"_s));
        control<QAction>(window, "miHelp").trigger();
        QCOMPARE(desk.messages.boxes.last(),
                 u"ZELVANTOR|Impossible d'afficher le sommaire de l'Aide. Aucune Aide n'est associée à ce projet."_s);
        Files::write(desk.path(u"data/user_guide_n.pdf"_s), "%PDF");
        control<QAction>(window, "miHelp").trigger();
        QCOMPARE(desk.desktop.opened, QStringList{desk.path(u"data/user_guide_n.pdf"_s)});
        frmAbout about(desk.session, nullptr);
        control<QPushButton>(about, "cmdSysInfo").click();
        QCOMPARE(desk.messages.boxes.last(),
                 u"ZELVANTOR|Les informations système ne sont pas disponibles pour l'instant"_s);
    }

    void companyDataIsRewrittenWhole()
    {
        SampleDesk desk;
        {
            frmInfo window(desk.session, nullptr);
            auto &grid = control<Spread>(window, "fpSpread3");
            QCOMPARE(grid.MaxRows(), 16);
            // A button reached by its key does not take the focus from the cell.
            grid.setActiveCell(2, 1);
            grid.edit(grid.currentIndex());
            grid.findChild<QLineEdit *>()->setText(u"L'Atelier « d'ici » \"x\" ; --"_s);
            grid.setText(1, 6, u"  "_s);
            control<QPushButton>(window, "cmdValider").click();
            QCOMPARE(window.result(), int(QDialog::Accepted));
        }
        QCOMPARE(desk.messages.boxes, QStringList());
        QCOMPARE(desk.value(u"SELECT sValeur FROM REF_INFO WHERE idInfo = 1"_s), u"L'Atelier « d'ici » \"x\" ; --"_s);
        QCOMPARE(desk.value(u"SELECT count(*) FROM REF_INFO"_s), u"15"_s);
        // The row without a label is gone, and what followed it has moved up.
        QCOMPARE(desk.session.gInfo.value(5), desk.value(u"SELECT sValeur FROM REF_INFO WHERE idInfo = 7"_s));
    }

    void failedSaveLosesNoRow()
    {
        SampleDesk desk;
        frmInfo window(desk.session, nullptr);
        window.show();
        auto &grid = control<Spread>(window, "fpSpread3");
        grid.setText(2, 1, u"Rue"_s + QChar(0) + u"\r\ndu\x1BPré"_s);
        Result opened;
        const auto other = Store::open(desk.session.gsDbPath, opened);
        const auto refused = [&](const QString &cause, const QString &until) {
            QVERIFY(other->executeScript(cause));
            control<QPushButton>(window, "cmdValider").click();
            QVERIFY(window.isVisible() && grid.MaxRows() == 16);
            QVERIFY(other->executeScript(until));
            QCOMPARE(desk.value(u"SELECT count(*) FROM REF_INFO"_s), u"16"_s);
        };
        refused(u"BEGIN IMMEDIATE"_s, u"COMMIT"_s);
        refused(u"CREATE TRIGGER refuse BEFORE INSERT ON REF_INFO WHEN NEW.idInfo = 3 BEGIN "
                "SELECT RAISE(ABORT, 'refused'); END"_s,
                u"DROP TRIGGER refuse"_s);
        QCOMPARE(desk.messages.boxes.size(), 2);
        QVERIFY(desk.messages.boxes.first().startsWith(u"AjouterInfo|5: "_s));
        control<QPushButton>(window, "cmdValider").click();
        QVERIFY(!window.isVisible());
        QCOMPARE(desk.session.gInfo.value(0), u"Rue duPré"_s);
        QCOMPARE(desk.session.gInfo.size(), 16);
    }

    void translationShowsAtOnceAndKeepsTheFile()
    {
        SampleDesk desk;
        const QString path = desk.path(u"data/FR.cda"_s);
        Files::write(path, "; garder\n" + Files::read(path));
        frmInfo window(desk.session, nullptr);
        window.show();
        Visitor visitor;
        visitor.whenShown(u"frmTrad"_s, [](QWidget &translations) {
            auto &grid = control<Spread>(translations, "fpSpread1");
            QCOMPARE(translations.windowTitle(), u"Données de la société"_s);
            QCOMPARE(control<QLabel>(translations, "lbTitre").text(), u"Libellé"_s);
            for (int row = 1; row <= grid.MaxRows(); ++row)
                if (grid.text(1, row) == u"2"_s)
                    grid.setText(2, row, u"&Garder"_s);
            control<QPushButton>(translations, "cmdValider0").click();
        });
        QTest::mousePress(&window, Qt::RightButton, Qt::ControlModifier, window.rect().bottomLeft() - QPoint(-3, 3));
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(control<QPushButton>(window, "cmdValider").text(), u"&Garder"_s);
        QVERIFY(Files::read(path).startsWith("; garder\n"));
        QCOMPARE(desk.session.localisation.Traduire(u"CATALOG"_s, u"m1"_s), u"Accueil"_s);
    }

    void damagedLanguageFileIsLeftAlone()
    {
        SampleDesk desk;
        const QByteArray rubbish("[PARAM]\n2=OK\n\x01\x02=\x03\n");
        Files::write(desk.path(u"data/FR.cda"_s), rubbish);
        frmTrad window(desk.session, u"PARAM"_s, u"x"_s, nullptr);
        window.show();
        control<QPushButton>(window, "cmdValider0").click();
        QVERIFY(window.isVisible() && !desk.session.gbValider);
        QCOMPARE(desk.messages.boxes.last(), u"Ajouter|2: n’a pas la forme d’un fichier de langue"_s);
        QCOMPARE(Files::read(desk.path(u"data/FR.cda"_s)), rubbish);
    }

    void languageTabsTakeCodesOnly()
    {
        const Rows<QString, QString, QString, bool> rows = {
            {"code", u"ARTICLE"_s, u"SSTab1_3"_s, u"DE"_s, true},
            {"part of the run", u"ARTICLE"_s, u"120"_s, u"RENN"_s, true},
            {"name", u"ARTICLE"_s, u"SSTab1_3"_s, u"Deutsch"_s, false},
            {"case counts", u"ARTICLE"_s, u"125"_s, u"es"_s, false},
            {"other key", u"ARTICLE"_s, u"126"_s, u"Deutsch"_s, true},
            {"other window", u"CATALOG"_s, u"SSTab1_3"_s, u"Design"_s, true}};
        for (const auto &[row, section, key, text, written] : rows) {
            const Row named(row);
            QCOMPARE(mayTranslate(section, key, text), written);
        }
    }

    /// A desktop that turns dark in the evening, with the window open.
    void colourOfTheDesktopIsFollowed()
    {
        const QPalette light = QApplication::palette();
        SampleDesk desk;
        frmMain window(desk.session);
        window.show();
        const auto isLight = [](const QColor &colour) { return colour.lightness() > 128; };
        for (const bool dark : {false, true, false}) {
            QApplication::setPalette(dark ? QPalette(QColor(45, 45, 45)) : light);
            QTest::qWait(20);
            const auto &button = control<QToolButton>(window, "Regionale");
            QCOMPARE(isLight(button.palette().color(QPalette::ButtonText)), dark);
            QCOMPARE(isLight(control<QLabel>(window, "Utilisateur").palette().color(QPalette::WindowText)), dark);
            QCOMPARE(isLight(control<QMdiArea>(window, "mdi").background().color()), !dark);
            const QImage icon = button.icon().pixmap(32, 32).toImage();
            bool lines = false;
            for (int i = 0; i < 32 * 32; ++i)
                lines = lines
                        || (icon.pixelColor(i % 32, i / 32).alpha() == 255
                            && isLight(icon.pixelColor(i % 32, i / 32)) == dark);
            QVERIFY(lines);
        }
    }

    void registryKeepsItsKinds()
    {
        Desk desk;
        clsRegistry registry(desk.settings);
        const QString path = u"\\SOFTWARE\\Essai\\"_s;
        const quint32 root = clsRegistry::HKEY_CURRENT_USER;
        QCOMPARE(registry.SaveValue(path, u"texte"_s, u"a;b, c\\d"_s, root, false), 0L);
        QCOMPARE(registry.SaveValue(path, u"nombre"_s, 300, root, true), 0L);
        QCOMPARE(registry.SaveValue(path, u"octets"_s, 300, root, false), 0L);
        QCOMPARE(registry.SaveValue(path + u"Sous"_s, u"x"_s, u"y"_s, root, false), 0L);
        QVariant value;
        registry.LoadValue(u"SOFTWARE\\Essai"_s, u"texte"_s, value, root, {});
        QCOMPARE(value, QVariant(u"a;b, c\\d"_s));
        registry.LoadValue(path, u"nombre"_s, value, root, {});
        QCOMPARE(value.toUInt(), 300u);
        registry.LoadValue(path, u"octets"_s, value, root, {});
        QCOMPARE(value.toByteArray(), QByteArray::fromHex("2c0100"));
        registry.LoadValue(path, u"rien"_s, value, root, 7);
        QCOMPARE(value, QVariant(7));
        QStringList names;
        QCOMPARE(registry.EnumKeys(path, root, names), 0L);
        QCOMPARE(names, QStringList{u"Sous"_s});
        QCOMPARE(registry.DeleteKey(path, root), 0L);
        QVERIFY(!registry.KeyExists(path, root) && registry.DeleteKey(path, root) != 0);
        clsSetSettings entry(desk.settings);
        entry.Section.clear();
        QVERIFY(entry.WriteEntry(u"nom"_s, u"valeur"_s));
        QCOMPARE(entry.ReadEntry(u"nom"_s, u"absent"_s), u"valeur"_s);
        QCOMPARE(entry.ReadEntry(u"autre"_s, u"absent"_s), u"absent"_s);
    }

    void savingAsksBeforeItOverwrites()
    {
        Desk desk;
        Files::write(desk.path(u"liste.html"_s), "x");
        const QStringList filters = {u"Texte (*.txt)"_s, u"HTML (*.html)"_s};
        QString asked;
        Visitor visitor;
        visitor.whenShown(u"QFileDialog"_s, [&](QWidget &dialog) {
            QTest::keyClick(&control<QComboBox>(dialog, "fileTypeCombo"), Qt::Key_Down);
            control<QLineEdit>(dialog, "fileNameEdit").setText(desk.path(u"liste"_s));
            QTimer::singleShot(0, this, [&] {
                if (auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                    asked = question->text();
                    question->reject();
                }
            });
            QMetaObject::invokeMethod(&dialog, "accept");
            static_cast<QDialog &>(dialog).reject();
        });
        QCOMPARE(FileDialogs().saveFile(nullptr, u"Export"_s, filters), QString());
        QVERIFY(asked.contains(u"liste.html"_s));
    }

    void longTextsFitInTheirPlace()
    {
        SampleDesk desk;
        desk.session.localisation.gsLangue = u"DE"_s;
        desk.session.giModeProduit = 2;
        desk.session.glIdProduit = 1;
        frmArticle article(desk.session, nullptr);
        article.show();
        article.resize(article.minimumSizeHint());
        for (const QPushButton *button : article.findChildren<QPushButton *>())
            if (button->isVisible())
                QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        const auto &ean = control<QLineEdit>(article, "txtEan");
        QVERIFY(ean.width() > ean.fontMetrics().horizontalAdvance(QString(13, u'8')) + 12);
        QCOMPARE(control<QToolButton>(article, "cmdTrans").toolTip(), u"Strichcode aus der Referenz bilden"_s);
        QCOMPARE(control<QLineEdit>(article, "txtMarque").accessibleName(), u"Marke"_s);
    }
};

ZELVANTOR_SUITE(WindowsTest)
#include "WindowsTest.moc"
