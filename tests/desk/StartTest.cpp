#include "shell/Login.h"
#include "shell/Main.h"
#include "shell/frmMain.h"
#include "tests/desk/Desk.h"

#include <QDialog>
#include <QFile>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

void press(QWidget &window, const char *button)
{
    control<QPushButton>(window, button).click();
}

void logInAsAdmin(QWidget &window)
{
    control<QLineEdit>(window, "txtUserName").setText(u"admin"_s);
    press(window, "cmdOK");
}

} // namespace

class StartTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void firstStartLeadsToTheSample()
    {
        Desk desk;
        Visitor visitor;
        visitor.whenShown(u"frmPays"_s, [](QWidget &window) {
            QCOMPARE(control<QComboBox>(window, "cbPays").currentText(), u"France"_s);
            QCOMPARE(control<QComboBox>(window, "cbMonnaie").currentText(), u"Euro"_s);
            control<QComboBox>(window, "cbPays").setCurrentText(u"Belgium"_s);
            press(window, "cmdValider");
        });
        visitor.whenShown(u"frmDbPath"_s, [](QWidget &window) {
            QVERIFY(!control<QPushButton>(window, "cmdValider").isEnabled());
            control<QRadioButton>(window, "optExemple").click();
            press(window, "cmdValider");
        });
        visitor.whenShown(u"frmLogin"_s, [](QWidget &window) {
            QCOMPARE(control<QLineEdit>(window, "txtUserName").text(), u"admin"_s);
            press(window, "cmdOK");
        });
        const std::unique_ptr<frmMain> window = Main(desk.session);
        QCOMPARE(visitor.waiting(), QStringList());
        QVERIFY(window && window->isVisible());
        QCOMPARE(desk.messages.boxes, QStringList());
        QCOMPARE(desk.setting(u"PAYS"_s), u"BE"_s);
        QCOMPARE(desk.setting(u"LANGUE"_s), u"FR"_s);
        QCOMPARE(desk.setting(u"MONNAIE"_s), u"EUR"_s);
        QCOMPARE(desk.setting(u"NomLogin"_s), u"admin"_s);
        QVERIFY(desk.setting(u"DB"_s).endsWith(u"/sample/zelvantor.mdb"_s));
        QCOMPARE(desk.setting(u"MINCMD"_s), u"15"_s);
        QVERIFY(QFile(desk.path(u"data/accueil.txt"_s)).size() > 0);
        QCOMPARE(desk.settings.value(u"ODBC"_s, u"ODBC Data Sources"_s, u"MS Access Database"_s),
                 u"MIcrosoft Access Driver (*.mdb)"_s);
        QCOMPARE(control<QLabel>(*window, "Utilisateur").text(), u"admin"_s);
        QCOMPARE(desk.session.gInfo.value(0), u"La Remise aux Tilleuls"_s);
        QVERIFY(desk.session.gCnnLocal.isOpen());
    }

    void closedRegionalWindowIsAskedAgain()
    {
        Desk desk;
        for (int start = 0; start < 2; ++start) {
            Visitor visitor;
            visitor.whenShown(u"frmPays"_s, [](QWidget &window) { press(window, "cmdFermer"); });
            visitor.whenShown(u"frmDbPath"_s, [](QWidget &window) { press(window, "cmdFermer"); });
            QVERIFY(!Main(desk.session));
            QCOMPARE(visitor.waiting(), QStringList());
            QCOMPARE(desk.session.gsPays, u"FR"_s);
            QCOMPARE(desk.session.localisation.gsLangue, u"FR"_s);
            QCOMPARE(desk.setting(u"PAYS"_s), QString());
        }
        QCOMPARE(desk.messages.boxes, QStringList());
    }

    void refusedPathOrLoginEndsSilently()
    {
        Desk desk;
        for (const QString &name : {u"PAYS"_s, u"LANGUE"_s, u"MONNAIE"_s})
            desk.setSetting(name, name == u"MONNAIE"_s ? u"EUR"_s : u"FR"_s);
        {
            Visitor visitor;
            visitor.whenShown(u"frmDbPath"_s, [&desk](QWidget &window) {
                control<QRadioButton>(window, "optVide").click();
                QVERIFY(desk.screens.translate(&window));
                press(window, "cmdFermer");
            });
            visitor.whenShown(u"frmTrad"_s, [](QWidget &window) { press(window, "cmdValider0"); });
            QVERIFY(!Main(desk.session));
            QCOMPARE(visitor.waiting(), QStringList());
            QCOMPARE(desk.setting(u"DB"_s), QString());
        }
        Visitor visitor;
        visitor.whenShown(u"frmDbPath"_s, [](QWidget &window) {
            control<QRadioButton>(window, "optVide").click();
            press(window, "cmdValider");
        });
        visitor.whenShown(u"frmLogin"_s, [](QWidget &window) { press(window, "cmdCancel"); });
        QVERIFY(!Main(desk.session));
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(desk.setting(u"DB"_s), desk.path(u"data/zelvantor.mdb"_s));
        QCOMPARE(desk.messages.boxes, QStringList());
    }

    void laterStartAsksNothing()
    {
        Desk desk;
        for (const QString &name : {u"PAYS"_s, u"LANGUE"_s, u"MONNAIE"_s})
            desk.setSetting(name, name == u"LANGUE"_s ? u"DE"_s : u"EUR"_s);
        desk.setSetting(u"DB"_s, desk.path(u"data/zelvantor.mdb"_s));
        Visitor visitor;
        visitor.whenShown(u"frmLogin"_s, [](QWidget &window) {
            QCOMPARE(window.windowTitle(), u"Anmeldung"_s);
            logInAsAdmin(window);
        });
        const std::unique_ptr<frmMain> window = Main(desk.session);
        QCOMPARE(visitor.waiting(), QStringList());
        QVERIFY(window);
        QCOMPARE(window->windowTitle(), u"ZELVANTOR"_s);
        QVERIFY(!desk.session.gbPremierLancement);
    }

    void brokenSettingsAreToldAndKept()
    {
        Desk desk;
        const QByteArray rubbish("\x01\x02\xff[ZELVANTOR\nmk\n", 18);
        for (const QString &name : {u"DORNELIQUE.ini"_s, u"BRAXOSOFT.ini"_s})
            Files::write(desk.path(u"settings/"_s + name), rubbish);
        Visitor visitor;
        visitor.whenShown(u"frmPays"_s, [](QWidget &window) {
            control<QComboBox>(window, "cbLangue").setCurrentText(u"Deutsch"_s);
            press(window, "cmdValider");
            QVERIFY(!window.isVisible());
        });
        visitor.whenShown(u"frmDbPath"_s, [](QWidget &window) { press(window, "cmdFermer"); });
        QVERIFY(!Main(desk.session));
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(desk.messages.boxes.size(), 2);
        QVERIFY(desk.messages.boxes[0].contains(u"DORNELIQUE.ini.bad"_s));
        QCOMPARE(Files::read(desk.path(u"settings/DORNELIQUE.ini.bad"_s)), rubbish);
        QCOMPARE(desk.setting(u"LANGUE"_s), u"DE"_s);
        desk.session.gsDbPath = desk.path(u"data/zelvantor.mdb"_s);
        const QString password = AdminPassword::read(desk.settings);
        QVERIFY(logIn(desk.session, u"admin"_s, QString(), password) == LoginStep::PasswordMissing);
        QVERIFY(logIn(desk.session, u"admin"_s, u"x"_s, password) == LoginStep::AdminRefused);
    }

    void missingDeliveredStoreEndsTheStart()
    {
        Desk desk;
        QVERIFY(QFile::remove(desk.path(u"data/zelvantor.mdb"_s)));
        QVERIFY(!Main(desk.session));
        QCOMPARE(desk.messages.boxes.last(), u"ZELVANTOR|Database access failed"_s);
        QVERIFY(!desk.session.gCnn.isOpen());
    }
};

ZELVANTOR_SUITE(StartTest)
#include "StartTest.moc"
