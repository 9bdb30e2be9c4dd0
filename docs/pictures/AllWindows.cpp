#include "docs/pictures/AllWindows.h"

#include "catalogue/AttachmentList.h"
#include "catalogue/frmArticle.h"
#include "catalogue/frmDlgOpenDoc.h"
#include "catalogue/frmListProduct.h"
#include "docs/pictures/WebSpace.h"
#include "ftp/FtpPane.h"
#include "ftp/frmCertificate.h"
#include "ftp/frmFTP.h"
#include "reference/frmMaterial.h"
#include "reference/frmRMParamDetail.h"
#include "reference/frmRefDetail.h"
#include "reference/frmTrad.h"
#include "shell/ApplicationFolder.h"
#include "shell/frmAbout.h"
#include "shell/frmCopies.h"
#include "shell/frmDbPath.h"
#include "shell/frmLogin.h"
#include "shell/frmMain.h"
#include "shell/frmPW.h"
#include "shell/frmPays.h"
#include "shell/frmSplash.h"
#include "shop/frmCatalogue.h"
#include "shop/frmInfo.h"

#include "platform/NumberBox.h"
#include "platform/Spread.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QThread>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int productWithBands = 19;
const QString newPicture = u"bol-celadon-1.jpg"_s;

/// Where the session has its pictures, else those of the sample.
QString picturesFolder(const Session &session)
{
    const QString set = session.setting(u"PATHPHOTO"_s);
    return set.isEmpty() ? ApplicationFolder::sample(session.applicationFolder) + u"/pictures"_s : set;
}

void show(QWidget &window, const WindowLook &look, const QString &name)
{
    window.show();
    QApplication::processEvents();
    QApplication::processEvents();
    look(window, name);
}

/// The four tabs, a shop that has been generated, and what the check tells of settings that a visitor would stumble on.
void showCatalogue(Session &session, const WindowLook &look)
{
    frmCatalogue window(session, nullptr);
    const auto press = [&window](const QString &button) { window.findChild<QPushButton *>(button)->click(); };
    auto *tabs = window.findChild<QTabWidget *>(u"SSTab1"_s);
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        show(window, look, u"frmCatalogue-%1"_s.arg(i + 1));
    }
    tabs->setCurrentIndex(0);
    press(u"cmdValider"_s);
    show(window, look, u"frmCatalogue-done"_s);
    tabs->setCurrentIndex(2);
    window.findChild<QLineEdit *>(u"txtMin"_s)->clear();
    window.findChild<QLineEdit *>(u"txtPPEmail"_s)->clear();
    window.findChild<QLineEdit *>(u"txtTaxe"_s)->setText(u"20 %"_s);
    window.findChild<Spread *>(u"fpSpread12"_s)->setText(2, 2, u"6,90"_s);
    window.findChild<QLineEdit *>(u"txtTitre"_s)->setText(u"La \"Remise\" aux Tilleuls"_s);
    press(u"cmdControle"_s);
    show(window, look, u"frmCatalogue-check"_s);
}

/// The model of a tree of folders reads them in a thread of its own.
void waitForFolders(const QTreeView &tree)
{
    constexpr int rounds = 50;
    for (int round = 0; round < rounds && tree.model()->rowCount(tree.rootIndex()) == 0; ++round) {
        QThread::msleep(10);
        QApplication::processEvents();
    }
}

/// The windows of the start, in their order.
void showStart(Session &session, const WindowLook &look)
{
    {
        frmPays window(session, nullptr);
        show(window, look, u"frmPays"_s);
    }
    {
        frmDbPath window(session, nullptr);
        window.findChild<QAbstractButton *>(u"optExemple"_s)->click();
        waitForFolders(*window.findChild<QTreeView *>(u"Dir1"_s));
        show(window, look, u"frmDbPath"_s);
        session.gsDbPath = ApplicationFolder::sample(session.applicationFolder) + u"/zelvantor.mdb"_s;
    }
    {
        const QString user = std::exchange(session.gsLogin, u"admin"_s);
        session.gbPremierLancement = true;
        frmLogin window(session, nullptr);
        show(window, look, u"frmLogin"_s);
        session.gbPremierLancement = false;
        session.gsLogin = user;
    }
    {
        frmSplash window;
        show(window, look, u"frmSplash"_s);
    }
}

void showWindows(Session &session, const WindowLook &look)
{
    {
        frmMain window(session);
        window.show();
        window.resize(1180, 660); // the platform without a display fits a window into its small screen at first
        show(window, look, u"frmMain"_s);
        window.findChild<QToolButton *>(u"produit"_s)->click();
        window.resize(1300, 700); // the list asks for it where the screen has the room
        show(window, look, u"frmMain-2"_s);
    }
    {
        frmPW window(session, nullptr);
        show(window, look, u"frmPW"_s);
    }
    {
        frmAbout window(session, nullptr);
        show(window, look, u"frmAbout"_s);
    }
    {
        const StoreCopies copies(session.gsDbPath);
        for (const QDate day : {QDate(2026, 2, 27), QDate(2026, 3, 1), QDate(2026, 3, 2)})
            (void)copies.keepDay(session.gCnn, day);
        frmCopies window(session, nullptr);
        show(window, look, u"frmCopies"_s);
    }
    {
        frmInfo window(session, nullptr);
        show(window, look, u"frmInfo"_s);
    }
    {
        frmTrad window(session, u"CATALOG"_s, u"Catalogue"_s, nullptr);
        show(window, look, u"frmTrad"_s);
    }
    {
        (void)session.saveSetting(u"PATHPHOTO"_s, picturesFolder(session));
        session.gbPhotos = true;
        session.glIdProduit = productWithBands;
        frmDlgOpenDoc window(session, nullptr);
        window.findChild<QComboBox *>(u"cbType"_s)->setCurrentIndex(6);
        auto *files = window.findChild<QListWidget *>(u"File1"_s);
        for (QListWidgetItem *file : files->findItems(newPicture, Qt::MatchExactly))
            files->setCurrentItem(file);
        show(window, look, u"frmDlgOpenDoc"_s);
    }
}

/// A product as it stands before its first save: group, name, prices and a picture.
void showNewProduct(Session &session, const WindowLook &look)
{
    session.giModeProduit = 1;
    frmArticle window(session, nullptr);
    window.show();
    const auto type = [&window](const QString &box, const QString &text) {
        window.findChild<QLineEdit *>(box)->setText(text);
        if (auto *number = window.findChild<NumberBox *>(box))
            number->complete();
    };
    const auto choose = [&window](const QString &box, const QString &text) {
        window.findChild<QComboBox *>(box)->setCurrentText(text);
    };
    choose(u"cbCategory"_s, u"Table"_s);
    choose(u"cbFamille"_s, u"Tasses et bols"_s);
    window.findChild<QToolButton *>(u"cmdTrans"_s)->click();
    type(u"txtNom_0"_s, u"Bol à déjeuner en grès céladon"_s);
    type(u"txtNom_1"_s, u"Breakfast bowl, celadon stoneware"_s);
    window.findChild<QPlainTextEdit *>(u"txtObservation_0"_s)
        ->setPlainText(u"<p>Un bol de 50 cl, tourné et émaillé à la main.</p>"_s);
    type(u"txtPrixAchat"_s, u"7.50"_s);
    type(u"txtFrais"_s, u"0.50"_s);
    type(u"txtMarge"_s, u"2"_s);
    type(u"txtQte"_s, u"12"_s);
    auto *pictures = window.findChild<AttachmentList *>(u"lstPicture"_s);
    Q_EMIT pictures->filesDropped({picturesFolder(session) + u'/' + newPicture});
    show(window, look, u"frmArticle-new"_s);
}

/// The list with a row chosen, and the screen of its product with a picture chosen.
void showProducts(Session &session, const WindowLook &look)
{
    {
        frmListProduct window(session, nullptr);
        window.findChild<Spread *>(u"fpSpread1"_s)->setActiveCell(2, 3);
        show(window, look, u"frmListProduct"_s);
    }
    {
        Reader row = session.gCnn.read(u"SELECT idCategorie FROM T_PRODUIT"_s);
        ReferenceSelection group{true, u"Cuisine"_s};
        group.idParent = row.next() ? int(row.integer(0)) : 0;
        group.iNiveau = 2;
        frmRMParamDetail window(session, group, nullptr);
        window.findChild<Spread *>(u"fpSpread4"_s)->setActiveCell(1, 1);
        show(window, look, u"frmRMParamDetail"_s);
    }
    {
        frmMaterial window(session, true, nullptr);
        window.findChild<QTreeWidget *>(u"tvTools"_s)->expandAll();
        show(window, look, u"frmMaterial"_s);
    }
    {
        ReferenceSelection family{true, u"Couteaux et planches"_s};
        Reader row = session.gCnn.read(u"SELECT idFamille FROM T_PRODUIT"_s);
        family.idParent = row.next() ? int(row.integer(0)) : 0;
        frmRefDetail window(session, family, nullptr);
        window.findChild<Spread *>(u"fpSpread4"_s)->setActiveCell(1, 2);
        show(window, look, u"frmRefDetail"_s);
    }
    session.giModeProduit = 2;
    session.glIdProduit = productWithBands;
    {
        frmArticle window(session, nullptr);
        window.findChild<QListWidget *>(u"lstPicture"_s)->setCurrentRow(0);
        window.findChild<QCheckBox *>(u"chPrix"_s)->setChecked(true);
        show(window, look, u"frmArticle"_s);
    }
    showNewProduct(session, look);
}

/// The label window, which waits for a person, and the preview of the button that is pressed in a window.
void showPaper(Session &session, const WindowLook &look)
{
    const auto showPreview = [&look](QWidget &window, const QString &button, const QString &name) {
        window.findChild<QPushButton *>(button)->click();
        auto *preview = window.findChild<QDialog *>(u"PrintPreview"_s);
        show(*preview, look, name);
        preview->close();
    };
    session.giModeProduit = 2;
    session.glIdProduit = 1;
    frmArticle window(session, nullptr);
    window.show();
    showPreview(window, u"cmdFiche"_s, u"PrintPreview-fiche"_s);
    QTimer::singleShot(0, &window, [&] {
        QWidget *labels = QApplication::activeModalWidget();
        show(*labels, look, u"frmEtiquette"_s);
        showPreview(*labels, u"cmdValider0"_s, u"PrintPreview-etiquette"_s);
        labels->close();
    });
    window.findChild<QPushButton *>(u"cmdEtiquette"_s)->click();
}

/// The FTP client beside the shop that has been generated, with what it asks on the way.
void showFtp(Session &session, const WindowLook &look)
{
    const QString shop = session.applicationFolder + u"/temp"_s;
    for (QDirIterator files(shop, QDir::Files); files.hasNext();) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadWrite))
            file.setFileTime(QDateTime(session.clock.today(), QTime(9, 30)), QFileDevice::FileModificationTime);
    }
    frmFTP window(session, nullptr, std::make_unique<WebSpace>());
    window.show();
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, &window, [&] {
        QWidget *asks = QApplication::activeModalWidget();
        if (!asks)
            return;
        answers.stop();
        const QString name = asks->objectName();
        const auto fill = [asks](const QString &box, const QString &text) {
            if (auto *field = asks->findChild<QLineEdit *>(box))
                field->setText(text);
        };
        fill(u"txtRemoteHost"_s, u"ftp.mon-hebergeur.example"_s);
        fill(u"txtUserName"_s, u"remise-tilleuls"_s);
        fill(u"txtPassword"_s, u"tilleul"_s);
        fill(u"txtRemoteDir"_s, u"/www"_s);
        fill(u"txtRename"_s, u"index-ancien.htm"_s);
        show(*asks, look, name);
        asks->findChild<QPushButton *>(name == u"frmTransfer"_s ? u"cmdRename"_s : u"cmdOK"_s)->click();
        answers.start();
    });
    answers.start(50);
    window.findChild<QAction *>(u"connect"_s)->trigger();
    auto *local = window.findChild<FtpPane *>(u"lvwLocal"_s);
    const auto choose = [local](const QStringList &names) {
        local->clearSelection();
        for (const QString &name : names)
            for (QTreeWidgetItem *row : local->findItems(name, Qt::MatchExactly)) {
                local->setCurrentItem(row, 0, QItemSelectionModel::NoUpdate);
                row->setSelected(true);
            }
    };
    const auto send = [&window] { window.findChild<QToolButton *>(u"cmdAjouter"_s)->click(); };
    choose({u"contact.htm"_s, u"index.htm"_s, u"nopcart.js"_s, u"searchdb.js"_s});
    send();
    answers.stop();
    choose({u"contact.htm"_s});
    local->selectAll();
    show(window, look, u"frmFTP"_s);
    FtpCertificate certificate;
    certificate.host = u"ftp.mon-hebergeur.example"_s;
    certificate.subject = u"ftp.mon-hebergeur.example"_s;
    certificate.issuer = u"ftp.mon-hebergeur.example"_s;
    certificate.from = QDateTime(QDate(2026, 1, 1), QTime());
    certificate.until = QDateTime(QDate(2027, 1, 1), QTime());
    certificate.fingerprint = u"5E:7C:0B:91:A4:33:D8:62:17:EE:40:5A:9C:28:B6:F1:"
                              "03:7D:E9:54:88:CA:1F:60:B3:92:4E:D7:05:6A:FC:21"_s;
    certificate.reasonNumber = 18;
    certificate.reason = u"self-signed certificate"_s;
    frmCertificate question(session, certificate, false, nullptr);
    show(question, look, u"frmCertificate"_s);
}

} // namespace

void showAllWindows(Session &session, const WindowLook &look)
{
    showStart(session, look);
    showWindows(session, look);
    showProducts(session, look);
    showCatalogue(session, look);
    showPaper(session, look);
    showFtp(session, look);
}
