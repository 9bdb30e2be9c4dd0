#include "tests/ftp/OpenedWindow.h"

#include <QHeaderView>
#include <QTimer>

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
    void enteredFolderIsWorkedOn()
    {
        FtpDeskTest desk;
        const auto path = [&desk](const QString &name) { return desk.path(u"data/temp/images/"_s + name); };
        Files::write(path(u"index.htm"_s), "inner");
        desk.openConnected();
        auto &local = desk.local();
        open(local, u"images"_s);
        QCOMPARE(box(*desk.window, "cmbLocalDir"), path({}).chopped(1));
        select(local, {u"index.htm"_s});
        desk.trigger("RenameFile");
        auto *editor = local.findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->setText(u"inner.htm"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(QFile::exists(path(u"inner.htm"_s)));
        desk.trigger("NewFolder");
        QVERIFY(QFileInfo(path(u"New Folder"_s)).isDir());
        open(local, u"inner.htm"_s);
        QCOMPARE(desk.server->files.value(u"/inner.htm"_s), QByteArray("inner"));
        select(local, {u"a.gif"_s});
        desk.trigger("DeleteFiles");
        QCOMPARE(names(local), (QStringList{QString(), u"inner.htm"_s, u"New Folder"_s}));
        QVERIFY(!QFile::exists(path(u"a.gif"_s)));
        QCOMPARE(Files::read(desk.path(u"data/temp/index.htm"_s)), QByteArray("page"));
        open(local, QString());
        QCOMPARE(box(*desk.window, "cmbLocalDir"), desk.path(u"data/temp/"_s));
        QVERIFY(names(local).contains(u"panier.txt"_s));
    }

    void typedFolderIsWorkedOn()
    {
        FtpDeskTest desk;
        Files::write(desk.path(u"data/temp/images/index.htm"_s), "inner");
        desk.open();
        auto &local = desk.local();
        auto &directory = control<QComboBox>(*desk.window, "cmbLocalDir");
        directory.setFocus();
        directory.lineEdit()->end(false);
        QTest::keyClicks(&directory, u"/images"_s);
        QCOMPARE(directory.lineEdit()->cursorPosition(), int(directory.currentText().size()));
        QCOMPARE(names(local), (QStringList{QString(), u"a.gif"_s, u"index.htm"_s}));
        select(local, {u"index.htm"_s});
        desk.trigger("DeleteFiles");
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

    void localDeletionCanBeStopped()
    {
        FtpDeskTest desk;
        desk.open();
        const auto remove = [&desk] {
            select(desk.local(), {u"images"_s});
            desk.trigger("DeleteFiles");
            return QFile::exists(desk.path(u"data/temp/images/a.gif"_s));
        };
        auto &abort = control<QPushButton>(*desk.window, "cmdAbort");
        QTimer::singleShot(0, &abort, &QPushButton::click); // between two files
        select(desk.local(), {u"images"_s});
        const auto icon = [&desk] { return desk.local().currentItem()->icon(0).pixmap(16).toImage(); };
        const QImage plain = icon();
        desk.local().mark(desk.local().currentRow(), true);
        QVERIFY(!icon().isNull() && icon() != plain);
        QVERIFY(remove());
        QVERIFY(names(desk.local()).contains(u"images"_s) && !abort.isEnabled());
        QVERIFY(!remove());
        QVERIFY(!names(desk.local()).contains(u"images"_s));
    }

    void chosenRemoteFolderIsWorkedOn()
    {
        FtpDeskTest desk;
        QFile::remove(desk.path(u"data/temp/index.htm"_s));
        desk.openConnected();
        auto &files = desk.server->files;
        files.insert(u"/www/index.htm"_s, "of www");
        auto &remote = desk.remote();
        open(remote, u"www"_s);
        QCOMPARE(box(*desk.window, "cmbRemoteDir"), u"/www"_s);
        open(remote, QString());
        QCOMPARE(box(*desk.window, "cmbRemoteDir"), u"/"_s);
        auto &directory = control<QComboBox>(*desk.window, "cmbRemoteDir");
        for (const QString &chosen : {u"/www"_s, u"/"_s}) {
            directory.setCurrentText(chosen);
            Q_EMIT directory.textActivated(chosen);
        }
        QVERIFY(names(remote).contains(u"www"_s));
        open(remote, u"index.htm"_s);
        QCOMPARE(box(*desk.window, "cmbRemoteDir"), u"/"_s);
        desk.trigger("NewFolder");
        QVERIFY(files.contains(u"/New Folder/"_s));
        desk.window->activateWindow();
        select(remote, {u"index.htm"_s});
        desk.trigger("DeleteFiles");
        QVERIFY(!files.contains(u"/index.htm"_s));
        QCOMPARE(files.value(u"/www/index.htm"_s), QByteArray("of www"));
    }

    void nothingToViewAfterSorting()
    {
        FtpDeskTest desk;
        desk.openConnected();
        for (FtpPane *list : {&desk.local(), &desk.remote()}) {
            select(*list, {u"index.htm"_s});
            QVERIFY(desk.offers("ViewFile"));
            Q_EMIT list->header()->sectionClicked(1);
            QCOMPARE(list->currentRow(), -1);
            QVERIFY(!desk.offers("ViewFile"));
        }
        select(desk.remote(), {u"index.htm"_s});
        desk.trigger("mnuClose");
        QVERIFY(!desk.offers("ViewFile"));
        QVERIFY(desk.desktop.opened.isEmpty());
    }
};

ZELVANTOR_SUITE(FtpPanesTest)
#include "PanesTest.moc"
