#include "ftp/frmCertificate.h"
#include "tests/ftp/OpenedWindow.h"
#include "tests/support/Suite.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

class FtpWindowsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void opensUnconnectedOnTheShop();
    void settingsAreCheckedAndKept();
    void loginShowsTheServer();
    void selectionGoesUpAndComesDown();
    void conflictIsAsked();
    void commandsFollowThePane();
    void certificateIsDecidedOnce();
};

void FtpWindowsTest::opensUnconnectedOnTheShop()
{
    FtpDeskTest desk;
    auto window = desk.open();
    QCOMPARE(window->windowTitle(), u"ZELVANTORFTP"_s);
    QCOMPARE(names(pane(*window, "lvwLocal")), (QStringList{QString(), u"images"_s, u"index.htm"_s, u"panier.txt"_s}));
    QCOMPARE(pane(*window, "lvwRemote").topLevelItemCount(), 0);
    QVERIFY(control<QComboBox>(*window, "cmbLocalDir").currentText().contains(u"temp"_s));
    QVERIFY(control<QAction>(*window, "mnuLogin").isEnabled() && !control<QAction>(*window, "mnuLogout").isEnabled());
    QCOMPARE(control<QAction>(*window, "connect").toolTip(), u"Se connecter au serveur"_s);
    QCOMPARE(desk.session0->log, QStringList());
}

void FtpWindowsTest::settingsAreCheckedAndKept()
{
    FtpDeskTest desk;
    auto window = desk.open();
    Visitor visitor;
    visitor.whenShown(u"frmConnect"_s, [&desk](QWidget &dialog) {
        QCOMPARE(control<QComboBox>(dialog, "lstTransferType").currentText(), u"Binary"_s);
        for (const QString &refused : {u"0"_s, u"10000"_s, u"abc"_s}) {
            control<QLineEdit>(dialog, "txtTimeout").setText(refused);
            control<QPushButton>(dialog, "cmdOK").click();
            QVERIFY(dialog.isVisible());
        }
        QCOMPARE(desk.messages.boxes.size(), 3);
        QCOMPARE(desk.messages.boxes.last(),
                 u"ZELVANTORFTP|Invalid Timeout Value. \r\n\r\nEnter a value between 0 and 9999"_s);
        control<QLineEdit>(dialog, "txtTimeout").setText(u"9999"_s);
        control<QComboBox>(dialog, "lstTransferType").setCurrentText(u"EBCIDIC"_s);
        control<QComboBox>(dialog, "cbTls").setCurrentIndex(2);
        control<QCheckBox>(dialog, "chkPassive").setChecked(false);
        control<QPushButton>(dialog, "cmdOK").click();
    });
    control<QAction>(*window, "mnuSettings").trigger();
    QCOMPARE(visitor.waiting(), QStringList());
    const FtpSettings kept = FtpSettings::load(desk.settings);
    QCOMPARE(kept.Timeout, 9999);
    QCOMPARE(kept.TransferType, int(FtpSession::Ebcdic));
    QVERIFY(!kept.Passive && kept.Tls == FtpTls::Never);
    QCOMPARE(desk.session0->log, QStringList()); // the settings alone connect nothing
}

void FtpWindowsTest::loginShowsTheServer()
{
    FtpDeskTest desk;
    auto window = desk.open();
    desk.session0->refusal = {530, u"530 Login incorrect."_s};
    desk.connectTo(*window);
    QCOMPARE(desk.messages.boxes, QStringList{u"ZELVANTORFTP|530 Login incorrect."_s});
    QVERIFY(control<QAction>(*window, "mnuLogin").isEnabled());
    desk.session0->refusal = {};
    desk.connectTo(*window);
    QCOMPARE(desk.session0->log.last(), u"login anne@ftp.example:21"_s);
    QCOMPARE(window->windowTitle(), u"ZELVANTORFTP (Connected to: ftp.example)"_s);
    QCOMPARE(names(pane(*window, "lvwRemote")), (QStringList{QString(), u"www"_s, u"index.htm"_s}));
    const QString log = control<QPlainTextEdit>(*window, "txtLog").toPlainText();
    QVERIFY(log.startsWith(u"Connecting ..."_s) && log.contains(u"Connected to: ftp.example"_s));
    QVERIFY(!log.contains(u"secret-word"_s));
    Visitor visitor;
    visitor.whenShown(u"frmConnect"_s, [](QWidget &dialog) {
        QVERIFY(!control<QLineEdit>(dialog, "txtRemoteHost").isEnabled());
        QVERIFY(control<QComboBox>(dialog, "lstTransferType").isEnabled());
        control<QPushButton>(dialog, "cmdCancel").click();
    });
    control<QAction>(*window, "mnuSettings").trigger();
    QCOMPARE(visitor.waiting(), QStringList());
    control<QAction>(*window, "mnuLogout").trigger();
    QCOMPARE(window->windowTitle(), u"ZELVANTORFTP"_s);
    QCOMPARE(pane(*window, "lvwRemote").topLevelItemCount(), 0);
    QVERIFY(control<QAction>(*window, "mnuLogin").isEnabled());
}

void FtpWindowsTest::selectionGoesUpAndComesDown()
{
    FtpDeskTest desk;
    auto window = desk.open();
    desk.connectTo(*window);
    auto &remote = pane(*window, "lvwRemote");
    auto &local = pane(*window, "lvwLocal");
    select(remote, {u"www"_s});
    QTest::keyClick(&remote, Qt::Key_Return);
    QCOMPARE(names(remote), (QStringList{QString(), u"old.txt"_s}));
    select(local, {u"images"_s, u"panier.txt"_s});
    control<QToolButton>(*window, "cmdAjouter").click();
    QCOMPARE(desk.session0->files.value(u"/www/panier.txt"_s), QByteArray("0123456789"));
    QCOMPARE(desk.session0->files.value(u"/www/images/a.gif"_s), QByteArray("gif"));
    auto &status = control<QTreeWidget>(*window, "lvwStatus");
    QCOMPARE(names(status), (QStringList{u"Upload"_s, u"Upload"_s}));
    QCOMPARE(status.topLevelItem(0)->text(3), u"-->"_s);
    QCOMPARE(names(remote), (QStringList{QString(), u"images"_s, u"old.txt"_s, u"panier.txt"_s}));
    select(remote, {u"old.txt"_s});
    control<QToolButton>(*window, "cmdRetirer").click();
    QCOMPARE(Files::read(desk.path(u"data/temp/old.txt"_s)), QByteArray("old"));
    QVERIFY(names(local).contains(u"old.txt"_s));
    QCOMPARE(status.topLevelItem(2)->text(0), u"Download"_s);
    select(remote, {u"images"_s});
    QTest::keyClick(&remote, Qt::Key_Delete);
    QVERIFY(!desk.session0->files.contains(u"/www/images/"_s));
    QVERIFY(desk.messages.boxes.last().contains(u"Are you sure you want to delete 1 Files or Folders?"_s));
    status.setFocus();
    status.topLevelItem(0)->setSelected(true);
    status.topLevelItem(2)->setSelected(true);
    QTest::keyClick(&status, Qt::Key_Delete);
    QCOMPARE(names(status), (QStringList{u"Upload"_s, u"Delete"_s}));
    control<QAction>(*window, "Cdup").trigger();
    remote.setFocus();
    control<QAction>(*window, "Cdup").trigger();
    QCOMPARE(names(remote), (QStringList{QString(), u"www"_s, u"index.htm"_s}));
}

void FtpWindowsTest::conflictIsAsked()
{
    FtpDeskTest desk;
    auto window = desk.open();
    desk.connectTo(*window);
    auto &local = pane(*window, "lvwLocal");
    desk.session0->files.insert(u"/panier.txt"_s, "0123");
    control<QAction>(*window, "Refresh").trigger();
    pane(*window, "lvwRemote").setFocus();
    control<QAction>(*window, "Refresh").trigger();
    const auto store = [&](const QStringList &what, const char *button, bool all = false) {
        Visitor visitor;
        visitor.whenShown(u"frmTransfer"_s, [button, all](QWidget &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Storing File..."_s);
            control<QCheckBox>(dialog, "chkSelectedAll").setChecked(all);
            control<QPushButton>(dialog, button).click();
        });
        select(local, what);
        control<QToolButton>(*window, "cmdAjouter").click();
        QCOMPARE(visitor.waiting(), QStringList());
    };
    store({u"panier.txt"_s}, "cmdCancel");
    QCOMPARE(desk.session0->files.value(u"/panier.txt"_s), QByteArray("0123"));
    store({u"panier.txt"_s}, "cmdResume");
    QCOMPARE(desk.session0->log.last(), u"store /panier.txt at 4"_s);
    QCOMPARE(desk.session0->files.value(u"/panier.txt"_s), QByteArray("0123456789"));
    store({u"index.htm"_s, u"panier.txt"_s}, "cmdTransfer", true);
    QCOMPARE(desk.session0->files.value(u"/index.htm"_s), QByteArray("page"));
    // Rename moves the old one out of the way; a name that is taken asks again.
    Visitor visitor;
    visitor.whenShown(u"frmTransfer"_s, [](QWidget &dialog) { control<QPushButton>(dialog, "cmdRename").click(); });
    visitor.whenShown(u"frmRename"_s, [](QWidget &dialog) {
        QCOMPARE(control<QLineEdit>(dialog, "txtRename").text(), u"index.htm"_s);
        control<QLineEdit>(dialog, "txtRename").setText(u"panier.txt"_s);
        control<QPushButton>(dialog, "cmdOK").click();
    });
    visitor.whenShown(u"frmTransfer"_s, [](QWidget &dialog) { control<QPushButton>(dialog, "cmdRename").click(); });
    visitor.whenShown(u"frmRename"_s, [](QWidget &dialog) {
        control<QLineEdit>(dialog, "txtRename").setText(u"index.old"_s);
        control<QPushButton>(dialog, "cmdOK").click();
    });
    select(local, {u"index.htm"_s});
    control<QToolButton>(*window, "cmdAjouter").click();
    QCOMPARE(visitor.waiting(), QStringList());
    QCOMPARE(desk.session0->files.value(u"/index.old"_s), QByteArray("page"));
}

void FtpWindowsTest::commandsFollowThePane()
{
    FtpDeskTest desk;
    auto window = desk.open();
    auto &local = pane(*window, "lvwLocal");
    local.setFocus();
    local.setCurrentItem(local.topLevelItem(0));
    QVERIFY(!control<QAction>(*window, "RenameFile").isEnabled()); // the up row has no name
    select(local, {u"images"_s});
    QVERIFY(control<QAction>(*window, "RenameFile").isEnabled() && !control<QAction>(*window, "ViewFile").isEnabled());
    select(local, {u"index.htm"_s});
    control<QAction>(*window, "ViewFile").trigger();
    QCOMPARE(desk.desktop.opened.size(), 1);
    pane(*window, "lvwRemote").setFocus();
    QVERIFY(!control<QAction>(*window, "NewFolder").isEnabled()); // not connected
    desk.connectTo(*window);
    pane(*window, "lvwRemote").setFocus();
    QVERIFY(control<QAction>(*window, "NewFolder").isEnabled());
    control<QAction>(*window, "NewFolder").trigger();
    QVERIFY(desk.session0->files.contains(u"/New Folder/"_s));
    QVERIFY(names(pane(*window, "lvwRemote")).contains(u"New Folder"_s));
}

void FtpWindowsTest::certificateIsDecidedOnce()
{
    FtpDeskTest desk;
    auto window = desk.open();
    FtpCertificate certificate;
    certificate.host = u"ftp.example"_s;
    certificate.fingerprint = u"AA:BB"_s;
    const auto decide = [&](const char *button) {
        Visitor visitor;
        if (button)
            visitor.whenShown(u"frmCertificate"_s, [button](QWidget &dialog) {
                QCOMPARE(control<QLineEdit>(dialog, "txtHote").text(), u"ftp.example"_s);
                control<QPushButton>(dialog, button).click();
            });
        const bool accepted = desk.session0->onCertificate(certificate);
        return accepted && visitor.waiting().isEmpty();
    };
    QVERIFY(!decide("cmdRefuser"));
    QVERIFY(decide("cmdSession"));
    const auto changed = [&] {
        bool isTold = false;
        Visitor visitor;
        visitor.whenShown(u"frmCertificate"_s, [&isTold](QWidget &dialog) {
            isTold =
                control<QWidget>(dialog, "lbChange").isVisible() && !control<QWidget>(dialog, "lbInconnu").isVisible();
            control<QPushButton>(dialog, "cmdRefuser").click();
        });
        const QString before = std::exchange(certificate.fingerprint, u"CC:DD"_s);
        const bool accepted = desk.session0->onCertificate(certificate);
        certificate.fingerprint = before;
        return isTold && !accepted;
    };
    QVERIFY(changed()); // from the one of this session
    QVERIFY(decide("cmdSession"));
    QVERIFY(decide("cmdToujours"));
    QVERIFY(decide(nullptr));
    QVERIFY(changed());
}

ZELVANTOR_SUITE(FtpWindowsTest)
#include "WindowsTest.moc"
