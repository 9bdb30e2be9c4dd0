#include "catalogue/ProductSheet.h"
#include "platform/NumberBox.h"
#include "platform/Spread.h"
#include "reference/frmEtiquette.h"
#include "tests/catalogue/ArticleDesk.h"
#include "tests/paper/Printed.h"

#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class PaperDesk : public ArticleDesk {
public:
    PaperDesk() { files.path = path(u"saved.pdf"_s); }
    QString message126() const { return u"ZELVANTOR|"_s + session.localisation.Traduire(u"MESSAGES"_s, u"126"_s); }
};

/// Presses the button, saves what the preview shows, and closes it.
Printed printed(Desk &desk, QWidget &window, const char *button)
{
    control<QPushButton>(window, button).click();
    auto &preview = control<QWidget>(window, "PrintPreview");
    control<QAction>(preview, "acPdf").trigger();
    control<QAction>(preview, "acClose").trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return Printed(desk.files.path);
}

} // namespace

/// Labels and sheet from the product screen to the saved PDF.
class ProductPaperTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void labelsInEveryLanguage()
    {
        PaperDesk desk;
        auto article = desk.open(2, 1);
        const QString gone = u"Nom "_s.repeated(60);
        control<QLineEdit>(*article, "txtNom_4").setText(gone);
        control<QPlainTextEdit>(*article, "txtObservation_4").clear();
        Visitor visitor;
        visitor.whenShown(u"frmEtiquette"_s, [&desk, &article](QWidget &labels) {
            control<QRadioButton>(labels, "Option5").click();
            auto &languages = control<QComboBox>(labels, "cbLangue");
            QCOMPARE(languages.currentText(), u"Français"_s);
            for (int i = 0; i < languages.count(); ++i) {
                languages.setCurrentIndex(i);
                const QString text = printed(desk, labels, "cmdValider0").text();
                const QString name = article->findChild<QLineEdit *>(u"txtNom_%1"_s.arg(i))->text();
                QVERIFY2(text.count(i == 4 ? u"Nom Nom"_s : name) >= 14, qPrintable(text));
                QCOMPARE(text.count(u"56 HRC"_s), i == 4 ? 0 : 14);
                QCOMPARE(text.count(u"45.90 EUR"_s), 14);
            }
            control<QPushButton>(labels, "cmdFermer").click();
        });
        control<QPushButton>(*article, "cmdEtiquette").click();
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(desk.messages.boxes, QStringList());
    }

    void labelChoices()
    {
        PaperDesk desk;
        desk.sql(u"INSERT INTO REF_LANGUE_U VALUES ('PT', 'Português'), (NULL, NULL)"_s);
        desk.setSetting(u"MONNAIE"_s, u"CHF"_s); // the session still has the old one
        auto article = desk.open(2, 1);
        Visitor visitor;
        visitor.whenShown(u"frmEtiquette"_s, [&desk](QWidget &labels) {
            const auto count = [&](const char *option, const QString &word) {
                control<QRadioButton>(labels, option).click();
                return printed(desk, labels, "cmdValider0").text().count(word);
            };
            QCOMPARE(count("Option2", u"45.90 CHF"_s), 14);
            QCOMPARE(count("Option2", u"00001/202501"_s), 14);
            QCOMPARE(count("Option3", u"00001/202501"_s), 0);
            QCOMPARE(control<NumberBox>(labels, "txtLongueur").number(), 63.5);
            QCOMPARE(count("Option4", u"00001/202501"_s), 40);
            control<QCheckBox>(labels, "chPrix").click();
            QCOMPARE(count("Option5", u"CHF"_s), 0);
            control<QComboBox>(labels, "cbLangue").setCurrentText(u"Português"_s);
            QCOMPARE(count("Option2", u"Couteau"_s), 0);
            control<QComboBox>(labels, "cbLangue").setCurrentText(u"Deutsch"_s);
            control<QPushButton>(labels, "cmdFermer").click();
        });
        visitor.whenShown(u"frmEtiquette"_s, [](QWidget &labels) {
            QCOMPARE(control<QComboBox>(labels, "cbLangue").currentText(), u"Deutsch"_s);
            control<QPushButton>(labels, "cmdFermer").click();
        });
        control<QPushButton>(*article, "cmdEtiquette").click();
        control<QPushButton>(*article, "cmdEtiquette").click();
        QCOMPARE(visitor.waiting(), QStringList());
    }

    void onePreviewAtATime()
    {
        PaperDesk desk;
        auto article = desk.open(2, 1);
        auto &sheet = control<QPushButton>(*article, "cmdFiche");
        sheet.click();
        auto &preview = control<QWidget>(*article, "PrintPreview");
        QTRY_COMPARE(control<QLabel>(preview, "lbPage").text(), u"1/1"_s);
        QCOMPARE(preview.windowTitle(), u"Aperçu"_s);
        sheet.click();
        QCOMPARE(desk.messages.boxes, QStringList{desk.message126()});
        desk.files.path = desk.path(u"no/folder.pdf"_s);
        QVERIFY(QFile(desk.path(u"no"_s)).open(QIODevice::WriteOnly));
        control<QAction>(preview, "acPdf").trigger();
        QCOMPARE(desk.messages.boxes.size(), 2);
        control<QAction>(preview, "acClose").trigger();
        sheet.click();
        QCOMPARE(desk.messages.boxes.size(), 2);
        frmEtiquette labels(desk.session, LabelProduct(), u"XX"_s, nullptr);
        labels.show();
        QCOMPARE(labels.sLangue(), QString());
        control<QPushButton>(labels, "cmdValider0").click();
        control<QPushButton>(labels, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.last(), desk.message126());
        QCOMPARE(desk.messages.boxes.size(), 3);
    }

    void newProductOffersItsLabels()
    {
        PaperDesk desk;
        auto article = desk.open(1);
        control<QComboBox>(*article, "cbCategory").setCurrentIndex(1);
        control<QComboBox>(*article, "cbFamille").setCurrentIndex(0);
        control<QLineEdit>(*article, "txtNom_0").setText(u"Nouveau"_s);
        control<QLineEdit>(*article, "txtEan").setText(u"4006381333931"_s);
        Visitor visitor;
        visitor.whenShown(u"frmEtiquette"_s, [&desk](QWidget &labels) {
            const Printed sheet = printed(desk, labels, "cmdValider0");
            QCOMPARE(sheet.text().count(u"Nouveau"_s), 14);
            QCOMPARE(sheet.text().count(u"EUR"_s), 0); // it has no price
            QCOMPARE(Printed::codes(sheet.picture()), QStringList{u"4006381333931"_s});
            control<QPushButton>(labels, "cmdFermer").click();
        });
        control<QPushButton>(*article, "cmdValider0").click();
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(control<QLineEdit>(*article, "txtNom_0").text(), QString());
    }

    void sheetShowsWhatIsTyped()
    {
        PaperDesk desk;
        desk.session.localisation.gsLangue = u"DE"_s;
        const int product =
            desk.value(u"SELECT max(e.idRef_Produit) FROM REF_EXTENSION e WHERE e.sValeur <> ''"_s).toInt();
        auto article = desk.open(2, product);
        control<QLineEdit>(*article, "txtNom_3").setText(u"Noch nicht gespeichert"_s);
        control<QLineEdit>(*article, "txtModele").setText(u"M1"_s);
        QImage photo(300, 600, QImage::Format_RGB32);
        photo.fill(Qt::black);
        QVERIFY(photo.save(desk.path(u"photo.png"_s)));
        control<QListWidget>(*article, "lstPicture").insertItem(0, desk.path(u"photo.png"_s));
        auto &grid = control<Spread>(*article, "fpSpread1");
        QVERIFY(grid.MaxRows() >= 2);
        grid.setText(2, 1, QString());
        for (int row = 2; row <= grid.MaxRows(); ++row)
            grid.setText(2, row, u"Wert$(Nom)%1"_s.arg(row));
        const Printed sheet = printed(desk, *article, "cmdFiche");
        const QString text = sheet.text();
        for (const QString &word :
             {u"Noch nicht gespeichert"_s, u"M1"_s, u" EUR"_s, u"Wert$(Nom)2"_s,
              QString(QString::number(desk.clock.today().year()) + u'/' + desk.session.gInfo.value(0)),
              QString(control<QComboBox>(*article, "cbCategory").currentText() + u" / "_s
                      + control<QComboBox>(*article, "cbFamille").currentText())})
            QVERIFY2(text.contains(word), qPrintable(word + u" lacks in\n"_s + text));
        QVERIFY(!text.contains(grid.text(1, 1)));
        const QImage page = sheet.picture();
        QCOMPARE(Printed::codes(page), QStringList{control<QLineEdit>(*article, "txtEan").text()});
        const QRectF ink = Printed::ink(page, QRectF(1200, 755, 800, 700));
        QVERIFY(std::abs(ink.top() - 769) < 5 && std::abs(ink.bottom() - 1412) < 5);
        QVERIFY(std::abs(ink.center().x() - 1551.5) < 5 && std::abs(ink.width() - 321.5) < 5);
        // The table: frame, divider, and one row less than the grid.
        const QRectF table = Printed::ink(page, QRectF(180, 1500, 1800, 1250));
        QVERIFY(std::abs(table.left() - 203) < 5 && std::abs(table.right() - 1904) < 5);
        QVERIFY(std::abs(table.top() - 1533) < 5 && std::abs(table.height() - 60 * (grid.MaxRows() - 1)) < 6);
        const QRectF divider = Printed::ink(page, QRectF(755, 1500, 25, 1250));
        QVERIFY(std::abs(Printed::ink(page, QRectF(756, 1545, 22, 30)).center().x() - 767) < 5);
        QVERIFY(std::abs(divider.bottom() - table.bottom()) < 3);
        const QRectF value = sheet.places(u"Wert$(Nom)2"_s).first();
        QVERIFY(std::abs(value.left() - 785) < 5 && value.top() > 1533 && value.bottom() < 1593);
    }

    void longTablesGoOn()
    {
        QList<ProductSheet::Row> rows;
        for (int i = 1; i <= 50; ++i)
            rows << ProductSheet::Row{u"Nom%1"_s.arg(i),
                                      i == 7 ? u"Donaudampfschiff "_s.repeated(80) : u"V%1."_s.arg(i)};
        PrintDocument document;
        document.drawn = ProductSheet::drawn({}, rows);
        QCOMPARE(document.pages(), 2);
        const Printed sheet(document);
        const QString text = sheet.text();
        for (int i = 1; i <= 50; ++i)
            QVERIFY2(i == 7 || text.count(u"V%1."_s.arg(i)) == 1, qPrintable(text));
        QVERIFY(text.contains(u'…'));
        QVERIFY(Printed::ink(sheet.picture(2), {0, 0, 2100, 2970}).bottom() < 2785);
        QCOMPARE(ProductSheet::drawn({}, {{u"Nom"_s, QString()}}).first().size(), 0);
    }

    void layoutsThatAreGone()
    {
        PaperDesk desk;
        QVERIFY(QFile::remove(desk.path(u"data/ft1.tpl"_s)) && QFile::remove(desk.path(u"data/etiquette1.tpl"_s)));
        auto article = desk.open(2, 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"ft1\\.tpl"_s));
        QCOMPARE(printed(desk, *article, "cmdFiche").text().trimmed(), QString());
        QCOMPARE(desk.messages.boxes, QStringList());
        frmEtiquette labels(desk.session, LabelProduct(), u"FR"_s, nullptr);
        control<QPushButton>(labels, "cmdValider0").click();
        QCOMPARE(desk.messages.boxes.size(), 1);
        QVERIFY(desk.messages.boxes.first().contains(u"etiquette1.tpl"_s));
        QVERIFY(!labels.findChild<QWidget *>(u"PrintPreview"_s));
        // A start of the program brings them back.
        QVERIFY(ApplicationFolder::fill(QStringLiteral(ZELVANTOR_SHARE), desk.session.applicationFolder));
        QVERIFY(QFile::exists(desk.path(u"data/ft1.tpl"_s)));
    }

    void layoutsOfTheUserStay()
    {
        PaperDesk desk;
        const QString layout = desk.path(u"data/etiquette1.tpl"_s);
        const QString delivered = desk.path(u"share/etiquette1.tpl"_s);
        QDir().mkpath(desk.path(u"share"_s));
        const auto start = [&desk] {
            return bool(ApplicationFolder::fill(desk.path(u"share"_s), desk.path(u"data"_s)));
        };
        Files::write(delivered, "one");
        QVERIFY(start());
        QCOMPARE(Files::read(layout), "one");
        Files::write(layout, "changed");
        QVERIFY(start());
        QCOMPARE(Files::read(layout), "changed");
        Files::write(delivered, "two");
        QVERIFY(start());
        QCOMPARE(Files::read(layout), "two");
        QCOMPARE(Files::read(layout + u".bak"_s), "changed");
        Files::write(delivered, "three");
        QVERIFY(start());
        QCOMPARE(Files::read(layout + u".bak"_s), "changed"); // the second was nobody's own
    }
};

ZELVANTOR_SUITE(ProductPaperTest)
#include "ProductPaperTest.moc"
