#pragma once
#include "data/Connection.h"
#include "platform/Clock.h"
#include "platform/SettingsStore.h"
#include "shell/Localisation.h"

#include <QStringList>

class Desktop;
class FileChooser;
class Messages;
class Screens;

/// The values of the session, one user in one process, the folders that the program works in, and the seams
/// through which it meets its surroundings.
struct Session {
    Session(SettingsStore &settings, const Clock &clock, QString applicationFolder);

    SettingsStore &settings;
    const Clock &clock;
    QString applicationFolder;
    Localisation localisation; ///< holds `gsLangue`

    // Set before the first window opens; a run without windows has none of them.
    Messages *messages = nullptr;
    Desktop *desktop = nullptr;
    FileChooser *files = nullptr;
    Screens *screens = nullptr;

    QString gsPays;
    QString gsMonnaie;
    QString gsDbPath;
    QString gsLogin;
    QString gsPassword;
    QString gsDroits;
    Connection gCnn;
    Connection gCnnLocal; ///< opened by the main window, read by no screen
    Connection gCnnCopy;  ///< its sister for the copy, which nothing asks for
    bool gbPremierLancement = false;
    bool gbValider = false; ///< how the last modal dialogue ended

    // What the product list and the screens that it opens tell one another.
    int giModeProduit = 1; ///< 1 new, 2 modify, 3 consult
    int glIdProduit = 0;   ///< the product at hand
    int glIdFamille = 0;   ///< keys of the chosen sub-group, group, supplier and VAT rates
    int glIdCategorie = 0;
    int glIdFournisseur = 0;
    int glIdTvaA = 0;
    int glIdTvaV = 0;
    bool gbRafraichirListe = false; ///< the list searches again when the dialogue ends
    bool gbPhotos = false;          ///< the next action on attachments is about pictures, else about documents
    int giSmall = 0;                ///< 0 full pictures, 1 small ones
    bool gbChoixFichier = false;    ///< the file dialogue picks one file for another screen

    /// The values of REF_INFO in the order of their rows; position 1 is the first.
    QStringList gInfo;

    /// Takes country, language, currency, the path of the store and the last user from the settings. What is
    /// not stored is France, French, no currency, the store in the application folder, nobody.
    void readSettings();
    /// A value of the program's own settings, and its writing.
    QString setting(const QString &name) const;
    Result saveSetting(const QString &name, const QString &value);
    /// A path that the store holds: a relative one starts at the folder of the store, so that a shop can be
    /// moved with its pictures.
    QString filePath(const QString &stored) const;
};

/// Refills `gInfo` from the store; a null or empty value stands as one blank. What was read before a failure stays.
Result AfficherInfo(Session &session);
