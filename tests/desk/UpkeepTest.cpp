#include "data/SchemaSteps.h"
#include "data/StoreCopies.h"
#include "platform/Spread.h"
#include "shell/Main.h"
#include "shell/OneProgram.h"
#include "shell/frmLogin.h"
#include "shell/frmMain.h"
#include "tests/desk/Desk.h"

#include <QSignalSpy>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

class UpkeepTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_desk = std::make_unique<Desk>();
        for (const QString &name : {u"PAYS"_s, u"LANGUE"_s})
            m_desk->setSetting(name, u"FR"_s);
        m_desk->setSetting(u"MONNAIE"_s, u"EUR"_s);
        m_desk->session.gsDbPath = m_desk->path(u"data/sample/zelvantor.mdb"_s);
        m_desk->setSetting(u"DB"_s, store());
    }

    void theFirstChangeOfTheDayIsPrecededByACopy()
    {
        QVERIFY(logIn());
        QCOMPARE(m_desk->value(u"SELECT Count(*) FROM T_PRODUIT"_s).toInt() > 0, true);
        QVERIFY(copies().list().empty());
        const QString before = m_desk->value(u"SELECT Ref_Produit FROM PARAM"_s);
        m_desk->sql(u"UPDATE PARAM SET Ref_Produit = 71"_s);
        QVERIFY(logIn()); // a second start on the same day
        m_desk->sql(u"UPDATE PARAM SET Ref_Produit = 72"_s);
        QCOMPARE(copies().list().size(), size_t(1));
        Connection copy;
        QVERIFY(copy.open(connectionText(copies().list()[0].path)));
        Reader row = copy.read(u"SELECT Ref_Produit FROM PARAM"_s);
        QVERIFY(row.next());
        QCOMPARE(row.text(0), before);
        QCOMPARE(m_desk->messages.boxes, QStringList());
    }

    void aDamagedStoreOffersItsCopy_data()
    {
        QTest::addColumn<bool>("inTheMiddle");
        QTest::newRow("header") << false;
        QTest::newRow("rows") << true;
    }

    void aDamagedStoreOffersItsCopy()
    {
        QFETCH(bool, inTheMiddle);
        constexpr qsizetype damaged = 3 * 4096;
        QVERIFY(logIn());
        m_desk->sql(u"UPDATE PARAM SET Ref_Produit = 71"_s);
        m_desk->session.gCnn = Connection();
        QByteArray bytes = Files::read(store());
        bytes.replace(inTheMiddle ? bytes.size() / 2 : 0, damaged, QByteArray(damaged, '\x5a'));
        Files::write(store(), bytes);

        m_desk->messages.answer = false;
        QCOMPARE(logIn(), inTheMiddle);
        m_desk->session.gCnn = Connection();
        QCOMPARE(Files::read(store()), bytes);
        m_desk->messages.answer = true;
        QVERIFY(logIn());
        QVERIFY(m_desk->session.gCnn.check());
        QVERIFY(m_desk->value(u"SELECT Ref_Produit FROM PARAM"_s) != u"71"_s);
        QVERIFY(!m_desk->messages.boxes.filter(u"est endommagée"_s).isEmpty());
        const QDir folder(m_desk->path(u"data/sample"_s));
        const QStringList aside = folder.entryList({u"*-damaged-*.mdb"_s});
        QCOMPARE(aside.size(), 1);
        QCOMPARE(Files::read(folder.filePath(aside.first())), bytes);
    }

    void aCopyIsRestoredFromTheMenu()
    {
        QVERIFY(logIn());
        // The copy of the day is of the version before.
        m_desk->sql(u"UPDATE REF_INFO SET sValeur = 'Autre nom' WHERE idInfo = 1"_s);
        {
            Connection copy;
            QVERIFY(copy.open(connectionText(copies().list()[0].path)));
            QVERIFY(copy.execute(u"PRAGMA user_version = 0"_s));
        }
        frmMain window(m_desk->session);
        window.show();
        QCOMPARE(m_desk->session.gInfo.value(0), u"Autre nom"_s);
        Visitor visitor;
        visitor.whenShown(u"frmCopies"_s, [this](QWidget &copiesWindow) {
            QCOMPARE(control<Spread>(copiesWindow, "fpSpread1").MaxRows(), 1);
            m_desk->messages.answer = false;
            control<QPushButton>(copiesWindow, "cmdRestaurer").click();
            QCOMPARE(control<Spread>(copiesWindow, "fpSpread1").MaxRows(), 1);
            m_desk->messages.answer = true;
            control<QPushButton>(copiesWindow, "cmdRestaurer").click();
            QCOMPARE(control<Spread>(copiesWindow, "fpSpread1").MaxRows(), 2);
            control<QPushButton>(copiesWindow, "cmdFermer").click();
        });
        control<QAction>(window, "mnuCopies").trigger();
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(m_desk->session.gInfo.value(0), u"La Remise aux Tilleuls"_s);
        QVERIFY(m_desk->messages.boxes.last().contains(u"est en place"_s));
        QCOMPARE(SchemaSteps::of(m_desk->session.gCnn), SchemaSteps::current());
    }

    void aNewerStoreIsRefused()
    {
        QVERIFY(logIn());
        m_desk->sql(u"PRAGMA user_version = 99"_s);
        QVERIFY(!logIn());
        QVERIFY(m_desk->messages.boxes.last().contains(u"version plus récente"_s));
    }

    void aSecondStartCallsTheFirst()
    {
        OneProgram first(store());
        QVERIFY(first.claim());
        QVERIFY(OneProgram(m_desk->path(u"data/zelvantor.mdb"_s)).claim());
        QSignalSpy called(&first, &OneProgram::called);
        OneProgram second(m_desk->path(u"data/sample/../sample/zelvantor.mdb"_s));
        QVERIFY(!second.claim());
        std::atomic<bool> answered = false;
        std::thread call([&] { answered = second.callHolder(); });
        QTRY_VERIFY(answered);
        call.join();
        QCOMPARE(called.count(), 1);
        // The start ends before a login is asked for; the first program, which is this one, can't answer meanwhile.
        QVERIFY(!Main(m_desk->session));
        QVERIFY(m_desk->messages.boxes.last().contains(u"déjà ouvert"_s));
    }

private:
    QString store() const { return m_desk->session.gsDbPath; }
    StoreCopies copies() const { return StoreCopies(store()); }

    bool logIn()
    {
        frmLogin login(m_desk->session, nullptr);
        control<QLineEdit>(login, "txtUserName").setText(u"admin"_s);
        control<QPushButton>(login, "cmdOK").click();
        return login.LoginSucceeded;
    }

    std::unique_ptr<Desk> m_desk;
};

ZELVANTOR_SUITE(UpkeepTest)
#include "UpkeepTest.moc"
