// Opens every window on the sample shop and saves its picture: make_pictures FOLDER [LANGUAGE]
// The user guide and the look over all windows use them.
#include "app/DeskScreens.h"
#include "catalogue/frmArticle.h"
#include "catalogue/frmDlgOpenDoc.h"
#include "catalogue/frmListProduct.h"
#include "ftp/frmCertificate.h"
#include "ftp/frmFTP.h"
#include "reference/frmMaterial.h"
#include "reference/frmRefDetail.h"
#include "reference/frmTrad.h"
#include "shell/ApplicationFolder.h"
#include "shell/MessageBoxes.h"
#include "shell/Skin.h"
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

#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "platform/Spread.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Nothing may wait for a person here.
class Quiet : public Messages, public Desktop {
public:
    void box(const QString &text, const QString &title) override
    {
        std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(text));
    }
    bool question(const QString &, const QString &) override { return true; }
    void alert(const QString &) override {}
    bool open(const QString &) override { return true; }
};

void save(QWidget &window, const QString &folder, const QString &name)
{
    window.show();
    QApplication::processEvents();
    QApplication::processEvents();
    window.grab().save(folder + u'/' + name + u".png"_s);
}

void saveCatalogue(Session &session, const QString &folder)
{
    frmCatalogue window(session, nullptr);
    auto *tabs = window.findChild<QTabWidget *>(u"SSTab1"_s);
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        save(window, folder, u"frmCatalogue-%1"_s.arg(i + 1));
    }
}

/// The windows of the start, in their order.
void saveStart(Session &session, const QString &folder)
{
    {
        frmPays window(session, nullptr);
        save(window, folder, u"frmPays"_s);
    }
    {
        frmDbPath window(session, nullptr);
        save(window, folder, u"frmDbPath"_s);
        session.gsDbPath = ApplicationFolder::sample(session.applicationFolder) + u"/zelvantor.mdb"_s;
    }
    {
        frmLogin window(session, nullptr);
        save(window, folder, u"frmLogin"_s);
    }
    {
        frmSplash window;
        save(window, folder, u"frmSplash"_s);
    }
}

void saveWindows(Session &session, const QString &folder)
{
    {
        frmMain window(session);
        window.resize(1000, 640);
        save(window, folder, u"frmMain"_s);
        window.findChild<QToolButton *>(u"produit"_s)->click();
        save(window, folder, u"frmMain-2"_s);
    }
    {
        frmPW window(session, nullptr);
        save(window, folder, u"frmPW"_s);
    }
    {
        frmAbout window(session, nullptr);
        save(window, folder, u"frmAbout"_s);
    }
    {
        const StoreCopies copies(session.gsDbPath);
        for (int day = 1; day <= 3; ++day)
            (void)copies.keepDay(session.gCnn, QDate(2026, 3, day));
        frmCopies window(session, nullptr);
        save(window, folder, u"frmCopies"_s);
    }
    {
        frmInfo window(session, nullptr);
        save(window, folder, u"frmInfo"_s);
    }
    {
        frmTrad window(session, u"CATALOG"_s, u"Catalogue"_s, nullptr);
        save(window, folder, u"frmTrad"_s);
    }
    {
        (void)session.saveSetting(u"PATHPHOTO"_s,
                                  ApplicationFolder::sample(session.applicationFolder) + u"/pictures"_s);
        session.gbPhotos = true;
        session.gbChoixFichier = true;
        frmDlgOpenDoc window(session, nullptr);
        window.findChild<QComboBox *>(u"cbType"_s)->setCurrentIndex(6);
        window.findChild<QListWidget *>(u"File1"_s)->setCurrentRow(0);
        save(window, folder, u"frmDlgOpenDoc"_s);
    }
}

/// The list with a row chosen, and the screen of its product with a picture chosen.
void saveProducts(Session &session, const QString &folder)
{
    {
        frmListProduct window(session, nullptr);
        window.findChild<Spread *>(u"fpSpread1"_s)->setActiveCell(2, 3);
        save(window, folder, u"frmListProduct"_s);
    }
    {
        frmMaterial window(session, true, nullptr);
        window.findChild<QTreeWidget *>(u"tvTools"_s)->expandAll();
        save(window, folder, u"frmMaterial"_s);
    }
    {
        ReferenceSelection family{true, u"Couteaux et planches"_s};
        Reader row = session.gCnn.read(u"SELECT idFamille FROM T_PRODUIT"_s);
        family.idParent = row.next() ? int(row.integer(0)) : 0;
        frmRefDetail window(session, family, nullptr);
        window.findChild<Spread *>(u"fpSpread4"_s)->setActiveCell(1, 2);
        save(window, folder, u"frmRefDetail"_s);
    }
    session.giModeProduit = 2;
    frmArticle window(session, nullptr);
    window.findChild<QListWidget *>(u"lstPicture"_s)->setCurrentRow(0);
    window.findChild<QCheckBox *>(u"chPrix"_s)->setChecked(true);
    save(window, folder, u"frmArticle"_s);
}

/// The label window, which waits for a person, and the preview of the button that is pressed in a window.
void savePaper(Session &session, const QString &folder)
{
    const auto savePreview = [&folder](QWidget &window, const QString &button, const QString &name) {
        window.findChild<QPushButton *>(button)->click();
        auto *preview = window.findChild<QDialog *>(u"PrintPreview"_s);
        save(*preview, folder, name);
        preview->close();
    };
    session.giModeProduit = 2;
    session.glIdProduit = 1;
    frmArticle window(session, nullptr);
    window.show();
    savePreview(window, u"cmdFiche"_s, u"PrintPreview-fiche"_s);
    QTimer::singleShot(0, &window, [&] {
        QWidget *labels = QApplication::activeModalWidget();
        save(*labels, folder, u"frmEtiquette"_s);
        savePreview(*labels, u"cmdValider0"_s, u"PrintPreview-etiquette"_s);
        labels->close();
    });
    window.findChild<QPushButton *>(u"cmdEtiquette"_s)->click();
}

/// The FTP client beside a shop that has been generated, and its dialogues.
void saveFtp(Session &session, const QString &folder)
{
    QDir().mkpath(session.applicationFolder + u"/temp/images"_s);
    for (const QString &name : {u"index.htm"_s, u"checkout.htm"_s, u"nopcart.js"_s, u"searchdb.js"_s})
        QFile::copy(session.applicationFolder + u"/FR.cda"_s, session.applicationFolder + u"/temp/"_s + name);
    frmFTP window(session, nullptr);
    save(window, folder, u"frmFTP"_s);
    FtpCertificate certificate;
    certificate.host = u"ftp.mon-hebergeur.example"_s;
    certificate.subject = u"ftp.mon-hebergeur.example"_s;
    certificate.issuer = u"ftp.mon-hebergeur.example"_s;
    certificate.from = QDateTime(QDate(2026, 1, 1), QTime());
    certificate.until = QDateTime(QDate(2027, 1, 1), QTime());
    certificate.fingerprint = u"5E:7C:0B:91:A4:33:D8:62:17:EE:40:5A:9C:28:B6:F1:"
                              "03:7D:E9:54:88:CA:1F:60:B3:92:4E:D7:05:6A:FC:21"_s;
    frmCertificate question(session, certificate, false, nullptr);
    save(question, folder, u"frmCertificate"_s);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: make_pictures FOLDER [LANGUAGE]\n");
        return 2;
    }
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"zelvantor"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELVANTOR_VERSION));
    Skin::apply(application);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);

    const QTemporaryDir place;
    qputenv("HOME", QFile::encodeName(place.path()));
    SettingsStore settings(place.filePath(u"settings"_s));
    const Clock clock;
    Quiet quiet;
    Session session(settings, clock, place.filePath(u"data"_s));
    DeskScreens screens(session);
    session.messages = &quiet;
    session.desktop = &quiet;
    FileDialogs files;
    session.files = &files;
    session.screens = &screens;
    if (const Result filled = ApplicationFolder::fill(ApplicationFolder::delivered(), session.applicationFolder);
        !filled)
        quiet.box(filled.text(), u"fill"_s);
    if (const Result taken = ApplicationFolder::takeSampleSettings(session); !taken)
        quiet.box(taken.text(), u"sample"_s);
    session.readSettings();
    session.gsLogin = u"vendeur"_s;
    if (argc > 2)
        session.localisation.gsLangue = QString::fromLocal8Bit(argv[2]);
    session.gsDbPath = ApplicationFolder::sample(session.applicationFolder) + u"/zelvantor.mdb"_s;
    if (const Result opened = session.gCnn.open(connectionText(session.gsDbPath)); !opened)
        quiet.box(opened.text(), session.gsDbPath);

    saveStart(session, folder);
    saveWindows(session, folder);
    saveProducts(session, folder);
    saveCatalogue(session, folder);
    savePaper(session, folder);
    saveFtp(session, folder);
    return 0;
}
