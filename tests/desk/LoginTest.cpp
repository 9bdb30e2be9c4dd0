#include "shell/Login.h"
#include "shell/frmLogin.h"
#include "shell/frmPW.h"
#include "tests/desk/Desk.h"

using namespace Qt::StringLiterals;

class LoginTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void bothKindsOfUsers()
    {
        const QString refused = u"ZELVANTOR|Login or Password is invalid !"_s;
        const Rows<QString, QString, QString, bool, QString, QString> rows = {
            {"admin without password", QString(), u"Admin"_s, QString(), true, QString(), QString()},
            {"no name", QString(), u"  "_s, QString(), false, u"QUILMARDOT/Login|Please fill the login "_s, QString()},
            {"admin, right", u"secret"_s, u"ADMIN"_s, u" secret "_s, true, QString(), QString()},
            {"admin, wrong", u"secret"_s, u"admin"_s, u"Secret"_s, false, QString(),
             u"Le mot de passe est non valide"_s},
            {"every user must type one", u"secret"_s, u"libre"_s, QString(), false, QString(),
             u"Le mot de passe est obligatoire"_s},
            {"user, right", QString(), u"VENDEUR"_s, u"tilleul"_s, true, QString(), QString()},
            {"user, wrong", QString(), u"vendeur"_s, u"Tilleul"_s, false, refused, QString()},
            {"unknown", QString(), u"personne"_s, u"x"_s, false, refused, QString()},
            {"null password accepts any", QString(), u"libre"_s, u"n’importe"_s, true, QString(), QString()},
            {"quote is no statement", QString(), u"' OR '1'='1"_s, u"x"_s, false, refused, QString()}};
        for (const auto &[row, adminPassword, user, password, accepted, box, alert] : rows) {
            const Row named(row);
            SampleDesk desk;
            desk.sql(u"INSERT INTO REF_USER (Num_user, Login, sDroits) VALUES (2, 'libre', '')"_s);
            desk.session.gCnn = Connection();
            if (!adminPassword.isEmpty())
                QVERIFY(AdminPassword::write(desk.settings, adminPassword));
            desk.setSetting(u"NomLogin"_s, u"avant"_s);

            frmLogin window(desk.session, nullptr);
            QCOMPARE(control<QLineEdit>(window, "txtUserName").text(), u"avant"_s);
            control<QLineEdit>(window, "txtUserName").setText(user);
            control<QLineEdit>(window, "txtPassword").setText(password);
            control<QPushButton>(window, "cmdOK").click();
            QCOMPARE(window.LoginSucceeded, accepted);
            QCOMPARE(desk.messages.boxes, box.isEmpty() ? QStringList() : QStringList{box});
            QCOMPARE(desk.messages.alerts, alert.isEmpty() ? QStringList() : QStringList{alert});
            QCOMPARE(desk.setting(u"NomLogin"_s), accepted ? user.trimmed() : u"avant"_s);
            if (accepted)
                QVERIFY(desk.session.gCnn.isOpen());
        }
    }

    void rightsOfUsers()
    {
        const Rows<QString, QString> rows = {{"none stored", QString(), u"/1111/"_s},
                                             {"other code only", u"S2:/0000/"_s, u"/1111/"_s},
                                             {"second entry", u"S2:/0000/S1:/1101/"_s, u"/1101/"_s},
                                             {"first hit, wherever", u"XS1:/0101/S1:/1010/"_s, u"/0101/"_s}};
        for (const auto &[row, rights, expected] : rows) {
            const Row named(row);
            QCOMPARE(ChercherDroit(u"S1"_s, rights), expected);
        }
    }

    void loginStaysOpenOverABrokenStore()
    {
        SampleDesk desk;
        desk.session.gCnn = Connection();
        const QString good = desk.session.gsDbPath;
        desk.session.gsDbPath = desk.path(u"nowhere/zelvantor.mdb"_s);
        frmLogin window(desk.session, nullptr);
        window.show();
        control<QLineEdit>(window, "txtUserName").setText(u"admin"_s);
        control<QPushButton>(window, "cmdOK").click();
        QCOMPARE(desk.messages.boxes.size(), 3);
        QCOMPARE(desk.messages.boxes.first(), u"ZELVANTOR|14: abc no such file"_s);
        QCOMPARE(desk.messages.boxes.last(), u"ZELVANTOR|Login or Password is invalid !"_s);
        QVERIFY(window.isVisible() && !window.LoginSucceeded);
        desk.session.gsDbPath = good;
        control<QPushButton>(window, "cmdOK").click();
        QVERIFY(window.LoginSucceeded);
        // A failure to read the users is no wrong password.
        desk.sql(u"DROP TABLE REF_USER"_s);
        desk.messages.boxes.clear();
        control<QLineEdit>(window, "txtUserName").setText(u"vendeur"_s);
        control<QPushButton>(window, "cmdOK").click();
        QCOMPARE(desk.messages.boxes, QStringList{u"Login/cmdOK|1: no such table: REF_USER"_s});
    }

    void administratorPasswordChanges()
    {
        SampleDesk desk;
        frmPW window(desk.session, nullptr);
        const auto change = [&](const QString &old, const QString &next, const QString &again) {
            control<QLineEdit>(window, "txtPWA").setText(old);
            control<QLineEdit>(window, "txtPWN").setText(next);
            control<QLineEdit>(window, "txtPWC").setText(again);
            control<QPushButton>(window, "cmdOK").click();
            return AdminPassword::read(desk.settings);
        };
        QCOMPARE(change(u"faux"_s, u"neuf"_s, u"neuf"_s), QString());
        QCOMPARE(desk.messages.alerts, QStringList{u"L'ancien mot de passe est non valide"_s});
        QCOMPARE(change(QString(), u"neuf"_s, u"neuve"_s), QString());
        QCOMPARE(desk.messages.alerts.last(), u"La confirmation du mot de passe est non valide"_s);
        QCOMPARE(change(QString(), u"né€uf"_s, u"né€uf"_s), u"né€uf"_s);
    }

    void passwordStandsNowhereInClear()
    {
        Desk desk;
        QVERIFY(AdminPassword::write(desk.settings, u"tres-secret"_s));
        const QString first = desk.settings.value(u"BRAXOSOFT"_s, u"ZELVANTOR"_s, u"mk"_s);
        QVERIFY(AdminPassword::write(desk.settings, u"tres-secret"_s));
        QVERIFY(desk.settings.value(u"BRAXOSOFT"_s, u"ZELVANTOR"_s, u"mk"_s) != first);
        const auto files = Files::tree(desk.path(u"settings"_s));
        QVERIFY(files.contains(u"BRAXOSOFT.ini"_s));
        for (const QByteArray &content : files)
            QVERIFY(!content.contains("tres-secret"));
    }

    void damagedPasswordOpensNothing()
    {
        SampleDesk desk;
        QVERIFY(AdminPassword::write(desk.settings, u"secret"_s));
        QString stored = desk.settings.value(u"BRAXOSOFT"_s, u"ZELVANTOR"_s, u"mk"_s);
        stored[stored.size() / 2] = stored[stored.size() / 2] == u'A' ? u'B' : u'A';
        QVERIFY(desk.settings.save(u"BRAXOSOFT"_s, u"ZELVANTOR"_s, u"mk"_s, stored));
        for (const QString &password : {QString(), u"secret"_s})
            QVERIFY(logIn(desk.session, u"admin"_s, password, AdminPassword::read(desk.settings)) != LoginStep::Done);
    }
};

ZELVANTOR_SUITE(LoginTest)
#include "LoginTest.moc"
