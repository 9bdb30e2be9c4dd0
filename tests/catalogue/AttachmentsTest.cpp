#include "catalogue/Attachments.h"
#include "catalogue/AttachmentList.h"
#include "catalogue/frmDlgOpenDoc.h"
#include "tests/desk/Desk.h"

#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QSignalSpy>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int product = 900;
constexpr int allPictures = 8; // the entry " *.*" of the file types
constexpr int allDocuments = 4;

/// Product 900 has two full pictures, a small one and a document; a folder on the disk holds more files.
struct Attached : Desk {
    Attached()
    {
        openSample();
        QDir().mkpath(folder);
        QImage picture(400, 100, QImage::Format_RGB32);
        picture.fill(Qt::red);
        if (!picture.save(folder + u"/a.png"_s))
            qFatal("no picture");
        for (const QString &name : {u"b.bmp"_s, u"c.txt"_s, u"d.DOC"_s, u"l'été.png"_s})
            Files::write(folder + u'/' + name, "texte");
        setSetting(u"PATHPHOTO"_s, folder);
        session.glIdProduit = product;
        sql(u"INSERT INTO T_PRODUIT_IMAGE VALUES (900, '/x/un.jpg', 0), (900, '/x/deux.jpg', 0), (900, NULL, 1), "
            "(900, '/x/petite.jpg', 1), (901, '/x/autre.jpg', 0)"_s);
        sql(u"INSERT INTO T_PRODUIT_DOC VALUES (900, '/x/notice.pdf'), (901, '/x/autre.pdf')"_s);
    }

    void about(bool pictures, int small = 0)
    {
        session.gbPhotos = pictures;
        session.giSmall = small;
    }
    QString rows() { return column(u"SELECT sImage || ':' || iSmall FROM T_PRODUIT_IMAGE WHERE idProduit = 900"_s); }
    QString documents() { return column(u"SELECT sDoc FROM T_PRODUIT_DOC WHERE idProduit = 900"_s); }
    QString column(const QString &statement)
    {
        QStringList found;
        for (Reader reader = session.gCnn.read(statement + u" ORDER BY rowid"_s); reader.next();)
            found << reader.text(0);
        return found.join(u' ');
    }

    const QString folder = path(u"photos"_s);
};

void add(QWidget &dialog, int type, const QString &name)
{
    control<QComboBox>(dialog, "cbType").setCurrentIndex(type);
    auto &files = control<QListWidget>(dialog, "File1");
    const auto found = files.findItems(name, Qt::MatchExactly);
    QVERIFY2(!found.isEmpty(), qPrintable(name));
    files.setCurrentItem(found.first());
    control<QPushButton>(dialog, "cmdAjouter").click();
}

QStringList selected(QWidget &dialog)
{
    QStringList texts;
    const auto &list = control<QListWidget>(dialog, "lstSelected");
    for (int i = 0; i < list.count(); ++i)
        texts << list.item(i)->text();
    return texts;
}

void validate(QWidget &dialog)
{
    control<QLineEdit>(dialog, "txtNom").setText(u"xx"_s);
    control<QPushButton>(dialog, "cmdValider").click();
}

} // namespace

class AttachmentsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void eachKindAndSizeIsEditedApart()
    {
        Attached desk;
        // Empties the list with the buttons alone, or takes out its first entry and adds a file twice.
        const auto edit = [&desk](bool pictures, int small, const QString &name) {
            desk.about(pictures, small);
            frmDlgOpenDoc dialog(desk.session, nullptr);
            auto &list = control<QListWidget>(dialog, "lstSelected");
            list.setCurrentRow(0);
            do
                control<QPushButton>(dialog, "cmdRetirer").click();
            while (name.isEmpty() && list.count() > 0);
            if (!name.isEmpty()) {
                add(dialog, pictures ? allPictures : allDocuments, name);
                control<QPushButton>(dialog, "cmdAjouter").click();
            }
            control<QPushButton>(dialog, "cmdValider").click();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QVERIFY(std::exchange(desk.session.gbRafraichirListe, false));
        };
        const QString a = desk.folder + u"/a.png"_s;
        edit(true, 0, u"a.png"_s);
        QCOMPARE(desk.rows(), QString(u" /x/petite.jpg:1 /x/deux.jpg:0 "_s + a + u":0"_s));
        edit(true, 1, u"a.png"_s);
        QCOMPARE(desk.rows(), QString(u"/x/deux.jpg:0 "_s + a + u":0 "_s + a + u":1"_s));
        {
            desk.about(true, 0);
            frmDlgOpenDoc dialog(desk.session, nullptr);
            dialog.show();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            auto &files = control<QListWidget>(dialog, "File1"); // b.bmp alone
            files.setFocus();
            files.setCurrentRow(0);
            QTest::keyClick(&files, Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            control<QPushButton>(dialog, "cmdValider").click();
        }
        QCOMPARE(desk.rows(), QString(u"/x/deux.jpg:0 "_s + a + u":0 "_s + a + u":1 "_s + desk.folder + u"/b.bmp:0"_s));
        edit(true, 0, {});
        QCOMPARE(desk.rows(), QString(a + u":1"_s));
        QCOMPARE(desk.documents(), u"/x/notice.pdf"_s);
        edit(false, 1, u"c.txt"_s);
        QCOMPARE(desk.documents(), QString(desk.folder + u"/c.txt"_s));
        edit(false, 1, {});
        QCOMPARE(desk.documents(), QString());
        QCOMPARE(desk.rows(), QString(a + u":1"_s));
        QCOMPARE(desk.value(u"SELECT count(*) FROM T_PRODUIT_IMAGE WHERE idProduit = 901"_s), u"1"_s);
        QCOMPARE(desk.messages.boxes, QStringList());
    }

    void anotherProgramsChangesStay()
    {
        Attached desk;
        desk.about(true, 0);
        frmDlgOpenDoc dialog(desk.session, nullptr);
        desk.sql(u"DELETE FROM T_PRODUIT_IMAGE WHERE sImage = '/x/deux.jpg'"_s);
        desk.sql(u"INSERT INTO T_PRODUIT_IMAGE VALUES (900, '/x/ailleurs.jpg', 0)"_s);
        control<QListWidget>(dialog, "lstSelected").setCurrentRow(0);
        control<QPushButton>(dialog, "cmdRetirer").click();
        add(dialog, allPictures, u"a.png"_s);
        validate(dialog);
        QCOMPARE(desk.rows(), QString(u" /x/petite.jpg:1 /x/ailleurs.jpg:0 "_s + desk.folder + u"/a.png:0"_s));
        // What a validation has done before it failed is not another program's.
        frmDlgOpenDoc again(desk.session, nullptr);
        auto &list = control<QListWidget>(again, "lstSelected");
        list.setCurrentRow(1); // a.png
        control<QPushButton>(again, "cmdRetirer").click();
        desk.sql(u"DELETE FROM T_PRODUIT_IMAGE WHERE sImage = '/x/ailleurs.jpg'"_s);
        desk.sql(u"INSERT INTO T_PRODUIT_IMAGE VALUES (900, '/x/tard.jpg', 0)"_s);
        add(again, allPictures, u"l'été.png"_s);
        validate(again);
        QVERIFY(again.result() != QDialog::Accepted);
        delete list.takeItem(1);
        add(again, allPictures, u"a.png"_s);
        validate(again);
        QCOMPARE(desk.rows(), QString(u" /x/petite.jpg:1 /x/tard.jpg:0 "_s + desk.folder + u"/a.png:0"_s));
    }

    void controlsFollowTheUse()
    {
        Attached desk;
        const QString other = desk.path(u"textes"_s);
        QDir().mkpath(other);
        Files::write(other + u"/e.doc"_s, "texte");
        // Caption, size hint, first type and first file; then a validation, which stores the folder.
        const auto shown = [&desk](bool pictures, int small) -> QString {
            desk.about(pictures, small);
            frmDlgOpenDoc dialog(desk.session, nullptr);
            const QListWidgetItem *file = control<QListWidget>(dialog, "File1").item(0);
            const QStringList found = {
                dialog.windowTitle(), control<QLabel>(dialog, "lbPixel").isVisibleTo(&dialog) ? u"hint"_s : u""_s,
                control<QComboBox>(dialog, "cbType").currentText(), file ? file->text() : QString()};
            control<QLineEdit>(dialog, "txtNom").setText(u"a"_s);
            const bool early = control<QPushButton>(dialog, "cmdValider").isEnabled();
            validate(dialog);
            return found.join(u'|') + (early ? u" early"_s : QString());
        };
        QCOMPARE(shown(true, 0), u"Pictures||BMP - *.bmp|b.bmp"_s);
        QCOMPARE(shown(false, 1), u"Documents|hint|DOC - *.doc|d.DOC"_s);
        QCOMPARE(desk.setting(u"PATHDOC"_s), desk.folder);
        desk.setSetting(u"PATHDOC"_s, other);
        QCOMPARE(shown(false, 0), u"Documents||DOC - *.doc|d.DOC"_s);
        desk.setSetting(u"PATHPDOC"_s, other);
        QCOMPARE(shown(false, 0), u"Documents||DOC - *.doc|e.doc"_s);
        QCOMPARE(desk.setting(u"PATHDOC"_s), other);
        QCOMPARE(shown(true, 1), u"Pictures|hint|BMP - *.bmp|b.bmp"_s);
    }

    void previewFollowsTheCursor()
    {
        Attached desk;
        desk.about(true);
        desk.sql(u"INSERT INTO T_PRODUIT_IMAGE VALUES (900, '"_s + desk.folder + u"/a.png', 0)"_s);
        frmDlgOpenDoc dialog(desk.session, nullptr);
        dialog.show();
        const auto &preview = control<QLabel>(dialog, "imgApercu");
        auto &list = control<QListWidget>(dialog, "lstSelected");
        list.setCurrentRow(2);
        const QSize size = preview.pixmap().size();
        QVERIFY(size.width() > 0 && size.width() <= preview.width() && size.width() >= 3 * size.height());
        add(dialog, allPictures, u"b.bmp"_s);
        QVERIFY(preview.pixmap().isNull());
        list.setFocus();
        QTRY_VERIFY(!preview.pixmap().isNull());
    }

    void apostropheFailsAlone()
    {
        Attached desk;
        desk.about(true);
        const QString cunning = u"/x/it'', 0); DELETE FROM T_PRODUIT; --.jpg"_s;
        desk.sql(u"INSERT INTO T_PRODUIT_IMAGE VALUES (900, '/x/d''avant.jpg', 0)"_s);
        frmDlgOpenDoc dialog(desk.session, nullptr);
        dialog.show();
        control<QListWidget>(dialog, "lstSelected").setCurrentRow(0);
        control<QPushButton>(dialog, "cmdRetirer").click();
        add(dialog, allPictures, u"l'été.png"_s);
        control<QListWidget>(dialog, "lstSelected").addItem(cunning);
        add(dialog, allPictures, u"a.png"_s);
        const QStringList before = selected(dialog);
        validate(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(selected(dialog), before);
        QVERIFY(desk.messages.boxes.size() == 3 && desk.messages.boxes.filter(u"AjouterDoc|1: "_s).size() == 3);
        QVERIFY(desk.messages.boxes.at(1).contains(u"l'été.png"_s));
        const QString kept = u" /x/petite.jpg:1 /x/deux.jpg:0 /x/d'avant.jpg:0 "_s;
        QCOMPARE(desk.rows(), QString(kept + desk.folder + u"/a.png:0"_s));
        QVERIFY(desk.value(u"SELECT count(*) FROM T_PRODUIT"_s).toInt() > 80);
    }

    void lockedStoreLosesNothing()
    {
        Attached desk;
        desk.about(true);
        const QString before = desk.rows();
        frmDlgOpenDoc dialog(desk.session, nullptr);
        dialog.show();
        add(dialog, allPictures, u"a.png"_s);
        Result opened;
        const auto other = Store::open(desk.session.gsDbPath, opened);
        QVERIFY(opened && other->execute(u"BEGIN IMMEDIATE"_s));
        validate(dialog);
        QVERIFY(desk.messages.boxes.size() == 1 && desk.messages.boxes.first().startsWith(u"SupprimerDoc|5: "_s));
        QVERIFY(dialog.isVisible() && !desk.session.gbRafraichirListe);
        QCOMPARE(selected(dialog).size(), 3);
        QVERIFY(other->execute(u"COMMIT"_s));
        QCOMPARE(desk.rows(), before);
        validate(dialog);
        QVERIFY(desk.rows().endsWith(u"/a.png:0"_s));

        desk.sql(u"DROP TABLE T_PRODUIT_IMAGE"_s);
        frmDlgOpenDoc without(desk.session, nullptr);
        QVERIFY(desk.messages.boxes.last().startsWith(u"AfficherDocs|1: "_s));
    }

    void pickerTakesOneFile()
    {
        Attached desk;
        desk.about(false, 1);
        const QString before = desk.rows() + desk.documents();
        Visitor visitor;
        visitor.whenShown(u"frmDlgOpenDoc"_s, [](QWidget &dialog) {
            QVERIFY(dialog.windowTitle() == u"Pictures"_s && !control<QLabel>(dialog, "lbPixel").isVisible());
            add(dialog, allPictures, u"l'été.png"_s);
            add(dialog, allPictures, u"a.png"_s);
            QCOMPARE(selected(dialog).size(), 1);
            control<QPushButton>(dialog, "cmdValider").click();
        });
        const auto picked = desk.screens.pickPicture(nullptr);
        QVERIFY(picked && picked->name == u"l'été.png"_s);
        QCOMPARE(picked->path, QString(desk.folder + u"/l'été.png"_s));
        QVERIFY(!desk.session.gbChoixFichier && !desk.session.gbRafraichirListe);
        QCOMPARE(QString(desk.rows() + desk.documents()), before);
        QCOMPARE(desk.messages.boxes, QStringList());
    }

    void droppedFilesGoInOnce()
    {
        Attached desk;
        desk.about(true, 1);
        const auto failures = Attachments::addDroppedFiles(
            desk.session, {u"/x/petite.jpg"_s, u"/x/un.jpg"_s, u"/x/l'autre.jpg"_s, u"/x/./un.jpg"_s});
        QVERIFY(failures.size() == 1 && failures.front().method == u"AjouterDoc"_s);
        QCOMPARE(desk.rows(), u"/x/un.jpg:0 /x/deux.jpg:0  /x/petite.jpg:1 /x/un.jpg:1"_s);
        QStringList both;
        QVERIFY(Attachments::pictures(desk.session, both));
        QCOMPARE(both.size(), 4);
        desk.about(false);
        QVERIFY(Attachments::addDroppedFiles(desk.session, {u"/x/a.txt"_s, u"/x/notice.pdf"_s}).empty());
        QCOMPARE(desk.documents(), u"/x/notice.pdf /x/a.txt"_s);
        QVERIFY(desk.session.gbRafraichirListe);
    }

    void listTakesLocalFilesOnly()
    {
        Attached desk;
        AttachmentList list;
        QSignalSpy dropped(&list, &AttachmentList::filesDropped);
        const auto drop = [&list](const QList<QUrl> &urls, Qt::DropActions offered) {
            QMimeData data;
            data.setUrls(urls);
            QDragEnterEvent enter({5, 5}, offered, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(list.viewport(), &enter);
            QDropEvent event({5, 5}, offered, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(list.viewport(), &event);
            return enter.isAccepted() && event.isAccepted() && event.dropAction() == Qt::CopyAction;
        };
        const QUrl folder = QUrl::fromLocalFile(desk.folder);
        const QUrl remote(u"https://example.org/a.png"_s);
        const QUrl file = QUrl::fromLocalFile(desk.folder + u"/l'été.png"_s);
        QVERIFY(!drop({folder, remote}, Qt::CopyAction));
        QVERIFY(!drop({file}, Qt::MoveAction));
        QCOMPARE(dropped.size(), 0);
        QVERIFY(drop({folder, file, remote}, Qt::CopyAction | Qt::MoveAction));
        QCOMPARE(dropped.value(0).value(0).toStringList(), QStringList{desk.folder + u"/l'été.png"_s});
    }
};

ZELVANTOR_SUITE(AttachmentsTest)
#include "AttachmentsTest.moc"
