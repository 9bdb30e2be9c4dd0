#include "tests/ftp/OpenedWindow.h"
#include "tests/support/Suite.h"

#include <QComboBox>
#include <QHeaderView>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

void open(FtpPane &list, const QString &name)
{
    select(list, {name});
    Q_EMIT list.itemDoubleClicked(list.currentItem(), 0);
}

QString box(QWidget &window, const char *name)
{
    return control<QComboBox>(window, name).currentText();
}

} // namespace

/// Whatever way a pane came to its folder, its box shows that folder and the commands work in it.
class FtpPanesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void enteredFolderIsWorkedOn();
    void typedFolderIsWorkedOn();
    void chosenRemoteFolderIsWorkedOn();
    void nothingToViewAfterSorting();
};

void FtpPanesTest::enteredFolderIsWorkedOn()
{
    FtpDeskTest desk;
    const auto path = [&desk](const QString &name) { return desk.path(u"data/temp/images/"_s + name); };
    Files::write(path(u"index.htm"_s), "inner");
    auto window = desk.open();
    desk.connectTo(*window);
    auto &local = pane(*window, "lvwLocal");
    open(local, u"images"_s);
    QCOMPARE(box(*window, "cmbLocalDir"), path({}).chopped(1));
    select(local, {u"index.htm"_s});
    control<QAction>(*window, "RenameFile").trigger();
    auto *editor = local.findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(u"inner.htm"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(QFile::exists(path(u"inner.htm"_s)));
    control<QAction>(*window, "NewFolder").trigger();
    QVERIFY(QFileInfo(path(u"New Folder"_s)).isDir());
    open(local, u"inner.htm"_s);
    QCOMPARE(desk.session0->files.value(u"/inner.htm"_s), QByteArray("inner"));
    select(local, {u"a.gif"_s});
    control<QAction>(*window, "DeleteFiles").trigger();
    QCOMPARE(names(local), (QStringList{QString(), u"inner.htm"_s, u"New Folder"_s}));
    QVERIFY(!QFile::exists(path(u"a.gif"_s)));
    QCOMPARE(Files::read(desk.path(u"data/temp/index.htm"_s)), QByteArray("page"));
    open(local, QString());
    QCOMPARE(box(*window, "cmbLocalDir"), desk.path(u"data/temp/"_s));
    QVERIFY(names(local).contains(u"panier.txt"_s));
}

void FtpPanesTest::typedFolderIsWorkedOn()
{
    FtpDeskTest desk;
    Files::write(desk.path(u"data/temp/images/index.htm"_s), "inner");
    auto window = desk.open();
    auto &local = pane(*window, "lvwLocal");
    auto &directory = control<QComboBox>(*window, "cmbLocalDir");
    directory.setFocus();
    directory.lineEdit()->end(false);
    QTest::keyClicks(&directory, u"/images"_s);
    QCOMPARE(directory.lineEdit()->cursorPosition(), int(directory.currentText().size()));
    QCOMPARE(names(local), (QStringList{QString(), u"a.gif"_s, u"index.htm"_s}));
    select(local, {u"index.htm"_s});
    control<QAction>(*window, "DeleteFiles").trigger();
    QVERIFY(!QFile::exists(desk.path(u"data/temp/images/index.htm"_s)));
    QVERIFY(QFile::exists(desk.path(u"data/temp/index.htm"_s)));
    desk.messages.boxes.clear();
    directory.setFocus();
    QTest::keyClicks(&directory, u"/nowhere"_s);
    QCOMPARE(names(local), QStringList(QString()));
    QVERIFY(desk.messages.boxes.isEmpty()); // a folder is on its way to its name
    QTest::keyClick(&directory, Qt::Key_Return);
    QCOMPARE(desk.messages.boxes.size(), 1);
    QVERIFY(desk.messages.boxes.first().contains(u"images/nowhere"_s));
}

void FtpPanesTest::chosenRemoteFolderIsWorkedOn()
{
    FtpDeskTest desk;
    QFile::remove(desk.path(u"data/temp/index.htm"_s));
    auto window = desk.open();
    desk.connectTo(*window);
    auto &files = desk.session0->files;
    files.insert(u"/www/index.htm"_s, "of www");
    auto &remote = pane(*window, "lvwRemote");
    open(remote, u"www"_s);
    QCOMPARE(box(*window, "cmbRemoteDir"), u"/www"_s);
    open(remote, QString());
    QCOMPARE(box(*window, "cmbRemoteDir"), u"/"_s);
    auto &directory = control<QComboBox>(*window, "cmbRemoteDir");
    for (const QString &chosen : {u"/www"_s, u"/"_s}) {
        directory.setCurrentText(chosen);
        Q_EMIT directory.textActivated(chosen);
    }
    QVERIFY(names(remote).contains(u"www"_s));
    open(remote, u"index.htm"_s);
    QCOMPARE(box(*window, "cmbRemoteDir"), u"/"_s);
    control<QAction>(*window, "NewFolder").trigger();
    QVERIFY(files.contains(u"/New Folder/"_s));
    window->activateWindow();
    select(remote, {u"index.htm"_s});
    control<QAction>(*window, "DeleteFiles").trigger();
    QVERIFY(!files.contains(u"/index.htm"_s));
    QCOMPARE(files.value(u"/www/index.htm"_s), QByteArray("of www"));
}

void FtpPanesTest::nothingToViewAfterSorting()
{
    FtpDeskTest desk;
    auto window = desk.open();
    desk.connectTo(*window);
    for (const char *name : {"lvwLocal", "lvwRemote"}) {
        auto &list = pane(*window, name);
        select(list, {u"index.htm"_s});
        QVERIFY(control<QAction>(*window, "ViewFile").isEnabled());
        Q_EMIT list.header()->sectionClicked(1);
        QCOMPARE(list.currentRow(), -1);
        QVERIFY(!control<QAction>(*window, "ViewFile").isEnabled());
    }
    select(pane(*window, "lvwRemote"), {u"index.htm"_s});
    control<QAction>(*window, "mnuClose").trigger();
    QVERIFY(!control<QAction>(*window, "ViewFile").isEnabled());
    QVERIFY(desk.desktop.opened.isEmpty());
}

ZELVANTOR_SUITE(FtpPanesTest)
#include "PanesTest.moc"
