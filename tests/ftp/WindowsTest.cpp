#include "ftp/frmCertificate.h"
#include "tests/ftp/OpenedWindow.h"

using namespace Qt::StringLiterals;

class FtpWindowsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void settingsAreCheckedAndKept()
    {
        FtpDeskTest desk;
        desk.open();
        QCOMPARE(names(desk.local()), (QStringList{QString(), u"images"_s, u"index.htm"_s, u"panier.txt"_s}));
        QCOMPARE(desk.remote().topLevelItemCount(), 0);
        QVERIFY(desk.offers("mnuLogin") && !desk.offers("mnuLogout"));
        QCOMPARE(control<QAction>(*desk.window, "connect").toolTip(), u"Se connecter au serveur"_s);
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
        desk.trigger("mnuSettings");
        QCOMPARE(visitor.waiting(), QStringList());
        const FtpSettings kept = FtpSettings::load(desk.settings);
        QCOMPARE(kept.Timeout, 9999);
        QCOMPARE(kept.TransferType, int(FtpSession::Ebcdic));
        QVERIFY(!kept.Passive && kept.Tls == FtpTls::Never);
        QCOMPARE(desk.server->log, QStringList()); // the settings alone connect nothing
    }

    void loginShowsTheServer()
    {
        FtpDeskTest desk;
        desk.open();
        desk.server->refusal = {530, u"530 Login incorrect."_s};
        desk.connect();
        QCOMPARE(desk.messages.boxes, QStringList{u"ZELVANTORFTP|530 Login incorrect."_s});
        QVERIFY(desk.offers("mnuLogin"));
        desk.server->refusal = {};
        desk.connect();
        QCOMPARE(desk.server->log.last(), u"login anne@ftp.example:21"_s);
        QCOMPARE(desk.window->windowTitle(), u"ZELVANTORFTP (Connected to: ftp.example)"_s);
        QCOMPARE(names(desk.remote()), (QStringList{QString(), u"www"_s, u"index.htm"_s}));
        const QString log = control<QPlainTextEdit>(*desk.window, "txtLog").toPlainText();
        QVERIFY(log.startsWith(u"Connecting ..."_s) && log.contains(u"Connected to: ftp.example"_s));
        QVERIFY(!log.contains(u"secret-word"_s));
        Visitor visitor;
        visitor.whenShown(u"frmConnect"_s, [](QWidget &dialog) {
            QVERIFY(!control<QLineEdit>(dialog, "txtRemoteHost").isEnabled());
            QVERIFY(control<QComboBox>(dialog, "lstTransferType").isEnabled());
            control<QPushButton>(dialog, "cmdCancel").click();
        });
        desk.trigger("mnuSettings");
        QCOMPARE(visitor.waiting(), QStringList());
        desk.trigger("mnuLogout");
        QCOMPARE(desk.window->windowTitle(), u"ZELVANTORFTP"_s);
        QCOMPARE(desk.remote().topLevelItemCount(), 0);
        QVERIFY(desk.offers("mnuLogin"));
    }

    void selectionGoesUpAndComesDown()
    {
        FtpDeskTest desk;
        desk.openConnected();
        auto &remote = desk.remote();
        auto &local = desk.local();
        select(remote, {u"www"_s});
        QTest::keyClick(&remote, Qt::Key_Return);
        QCOMPARE(names(remote), (QStringList{QString(), u"old.txt"_s}));
        select(local, {u"images"_s, u"panier.txt"_s});
        desk.send();
        QCOMPARE(desk.server->files.value(u"/www/panier.txt"_s), QByteArray("0123456789"));
        QCOMPARE(desk.server->files.value(u"/www/images/a.gif"_s), QByteArray("gif"));
        auto &status = control<QTreeWidget>(*desk.window, "lvwStatus");
        QCOMPARE(names(status), (QStringList{u"Upload"_s, u"Upload"_s}));
        QCOMPARE(status.topLevelItem(0)->text(3), u"-->"_s);
        QCOMPARE(names(remote), (QStringList{QString(), u"images"_s, u"old.txt"_s, u"panier.txt"_s}));
        select(remote, {u"old.txt"_s});
        control<QToolButton>(*desk.window, "cmdRetirer").click();
        QCOMPARE(Files::read(desk.path(u"data/temp/old.txt"_s)), QByteArray("old"));
        QVERIFY(names(local).contains(u"old.txt"_s));
        QCOMPARE(status.topLevelItem(2)->text(0), u"Download"_s);
        select(remote, {u"images"_s});
        QTest::keyClick(&remote, Qt::Key_Delete);
        QVERIFY(!desk.server->files.contains(u"/www/images/"_s));
        QVERIFY(desk.messages.boxes.last().contains(u"Are you sure you want to delete 1 Files or Folders?"_s));
        status.setFocus();
        status.topLevelItem(0)->setSelected(true);
        status.topLevelItem(2)->setSelected(true);
        QTest::keyClick(&status, Qt::Key_Delete);
        QCOMPARE(names(status), (QStringList{u"Upload"_s, u"Delete"_s}));
        desk.trigger("Cdup");
        remote.setFocus();
        desk.trigger("Cdup");
        QCOMPARE(names(remote), (QStringList{QString(), u"www"_s, u"index.htm"_s}));
    }

    void conflictIsAsked()
    {
        FtpDeskTest desk;
        desk.openConnected();
        auto &local = desk.local();
        desk.server->files.insert(u"/panier.txt"_s, "0123");
        desk.trigger("Refresh");
        desk.remote().setFocus();
        desk.trigger("Refresh");
        const auto store = [&](const QStringList &what, const char *button, bool all = false) {
            Visitor visitor;
            visitor.whenShown(u"frmTransfer"_s, [button, all](QWidget &dialog) {
                QCOMPARE(dialog.windowTitle(), u"Storing File..."_s);
                control<QCheckBox>(dialog, "chkSelectedAll").setChecked(all);
                control<QPushButton>(dialog, button).click();
            });
            select(local, what);
            desk.send();
            QCOMPARE(visitor.waiting(), QStringList());
        };
        store({u"panier.txt"_s}, "cmdCancel");
        QCOMPARE(desk.server->files.value(u"/panier.txt"_s), QByteArray("0123"));
        store({u"panier.txt"_s}, "cmdResume");
        QCOMPARE(desk.server->log.last(), u"store /panier.txt at 4"_s);
        QCOMPARE(desk.server->files.value(u"/panier.txt"_s), QByteArray("0123456789"));
        store({u"index.htm"_s, u"panier.txt"_s}, "cmdTransfer", true);
        QCOMPARE(desk.server->files.value(u"/index.htm"_s), QByteArray("page"));
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
        desk.send();
        QCOMPARE(visitor.waiting(), QStringList());
        QCOMPARE(desk.server->files.value(u"/index.old"_s), QByteArray("page"));
    }

    /// Without a listing nobody knows which names are taken: nothing is renamed, and the rest of the queue is asked.
    void renameNeedsAListing()
    {
        for (const QString &spoilt : {QString(), u"what is this\r\n"_s}) {
            FtpDeskTest desk;
            desk.openConnected();
            desk.server->files.insert({{u"/panier.txt"_s, "0123"}, {u"/index.old"_s, "precious"}});
            const auto before = desk.server->files;
            desk.remote().setFocus();
            desk.trigger("Refresh");
            Visitor visitor;
            visitor.whenShown(u"frmTransfer"_s,
                              [](QWidget &dialog) { control<QPushButton>(dialog, "cmdRename").click(); });
            visitor.whenShown(u"frmRename"_s, [&desk, &spoilt](QWidget &dialog) {
                desk.server->spoiltListing = spoilt;
                control<QLineEdit>(dialog, "txtRename").setText(u"index.old"_s);
                control<QPushButton>(dialog, "cmdOK").click();
            });
            visitor.whenShown(u"frmTransfer"_s,
                              [](QWidget &dialog) { control<QPushButton>(dialog, "cmdCancel").click(); });
            select(desk.local(), {u"index.htm"_s, u"panier.txt"_s});
            desk.send();
            QCOMPARE(visitor.waiting(), QStringList());
            QCOMPARE(desk.server->files, before);
        }
    }

    void commandsFollowThePane()
    {
        FtpDeskTest desk;
        desk.open();
        auto &local = desk.local();
        local.setFocus();
        local.setCurrentItem(local.topLevelItem(0));
        QVERIFY(!desk.offers("RenameFile")); // the up row has no name
        select(local, {u"images"_s});
        QVERIFY(desk.offers("RenameFile") && !desk.offers("ViewFile"));
        select(local, {u"index.htm"_s});
        desk.trigger("ViewFile");
        QCOMPARE(desk.desktop.opened.size(), 1);
        desk.remote().setFocus();
        QVERIFY(!desk.offers("NewFolder")); // not connected
        desk.connect();
        desk.remote().setFocus();
        QVERIFY(desk.offers("NewFolder"));
        desk.trigger("NewFolder");
        QVERIFY(desk.server->files.contains(u"/New Folder/"_s));
        QVERIFY(names(desk.remote()).contains(u"New Folder"_s));
    }

    void certificateIsDecidedOnce()
    {
        FtpDeskTest desk;
        desk.open();
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
            const bool accepted = desk.server->onCertificate(certificate);
            return accepted && visitor.waiting().isEmpty();
        };
        QVERIFY(!decide("cmdRefuser"));
        QVERIFY(decide("cmdSession"));
        const auto changed = [&] {
            bool isTold = false;
            Visitor visitor;
            visitor.whenShown(u"frmCertificate"_s, [&isTold](QWidget &dialog) {
                isTold = control<QWidget>(dialog, "lbChange").isVisible()
                         && !control<QWidget>(dialog, "lbInconnu").isVisible();
                control<QPushButton>(dialog, "cmdRefuser").click();
            });
            const QString before = std::exchange(certificate.fingerprint, u"CC:DD"_s);
            const bool accepted = desk.server->onCertificate(certificate);
            certificate.fingerprint = before;
            return isTold && !accepted;
        };
        QVERIFY(changed()); // from the one of this session
        QVERIFY(decide("cmdSession"));
        QVERIFY(decide("cmdToujours"));
        QVERIFY(decide(nullptr));
        QVERIFY(changed());
    }
};

ZELVANTOR_SUITE(FtpWindowsTest)
#include "WindowsTest.moc"
