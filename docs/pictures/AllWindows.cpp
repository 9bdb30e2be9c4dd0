#include "docs/pictures/AllWindows.h"

#include "catalogue/frmArticle.h"
#include "catalogue/frmDlgOpenDoc.h"
#include "catalogue/frmListProduct.h"
#include "ftp/frmCertificate.h"
#include "ftp/frmFTP.h"
#include "reference/frmMaterial.h"
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

#include "platform/Spread.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

void show(QWidget &window, const WindowLook &look, const QString &name)
{
    window.show();
    QApplication::processEvents();
    QApplication::processEvents();
    look(window, name);
}

void showCatalogue(Session &session, const WindowLook &look)
{
    frmCatalogue window(session, nullptr);
    auto *tabs = window.findChild<QTabWidget *>(u"SSTab1"_s);
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        show(window, look, u"frmCatalogue-%1"_s.arg(i + 1));
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
        show(window, look, u"frmDbPath"_s);
        session.gsDbPath = ApplicationFolder::sample(session.applicationFolder) + u"/zelvantor.mdb"_s;
    }
    {
        frmLogin window(session, nullptr);
        show(window, look, u"frmLogin"_s);
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
        window.resize(1000, 640);
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
        for (int day = 1; day <= 3; ++day)
            (void)copies.keepDay(session.gCnn, QDate(2026, 3, day));
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
        (void)session.saveSetting(u"PATHPHOTO"_s,
                                  ApplicationFolder::sample(session.applicationFolder) + u"/pictures"_s);
        session.gbPhotos = true;
        session.gbChoixFichier = true;
        frmDlgOpenDoc window(session, nullptr);
        window.findChild<QComboBox *>(u"cbType"_s)->setCurrentIndex(6);
        window.findChild<QListWidget *>(u"File1"_s)->setCurrentRow(0);
        show(window, look, u"frmDlgOpenDoc"_s);
    }
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
    frmArticle window(session, nullptr);
    window.findChild<QListWidget *>(u"lstPicture"_s)->setCurrentRow(0);
    window.findChild<QCheckBox *>(u"chPrix"_s)->setChecked(true);
    show(window, look, u"frmArticle"_s);
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

/// The FTP client beside a shop that has been generated, and its dialogues.
void showFtp(Session &session, const WindowLook &look)
{
    QDir().mkpath(session.applicationFolder + u"/temp/images"_s);
    for (const QString &name : {u"index.htm"_s, u"checkout.htm"_s, u"nopcart.js"_s, u"searchdb.js"_s})
        QFile::copy(session.applicationFolder + u"/FR.cda"_s, session.applicationFolder + u"/temp/"_s + name);
    frmFTP window(session, nullptr);
    show(window, look, u"frmFTP"_s);
    FtpCertificate certificate;
    certificate.host = u"ftp.mon-hebergeur.example"_s;
    certificate.subject = u"ftp.mon-hebergeur.example"_s;
    certificate.issuer = u"ftp.mon-hebergeur.example"_s;
    certificate.from = QDateTime(QDate(2026, 1, 1), QTime());
    certificate.until = QDateTime(QDate(2027, 1, 1), QTime());
    certificate.fingerprint = u"5E:7C:0B:91:A4:33:D8:62:17:EE:40:5A:9C:28:B6:F1:"
                              "03:7D:E9:54:88:CA:1F:60:B3:92:4E:D7:05:6A:FC:21"_s;
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
