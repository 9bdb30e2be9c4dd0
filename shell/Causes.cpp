#include "shell/Causes.h"

#include "shell/Localisation.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Causes as the platform words them. Whatever is not listed stays as it came.
struct Cause {
    QString key;
    QString platformText;
    QString french;
};

const std::array<Cause, 52> &causes()
{
    static const std::array<Cause, 52> table = {{
        {u"c1"_s, u"No such file or directory"_s, u"fichier introuvable"_s},
        {u"c2"_s, u"Permission denied"_s, u"accès refusé"_s},
        {u"c3"_s, u"No space left on device"_s, u"plus de place sur le disque"_s},
        {u"c4"_s, u"Is a directory"_s, u"c’est un dossier"_s},
        {u"c5"_s, u"File too large"_s, u"fichier trop grand pour ce disque"_s},
        {u"c6"_s, u"not UTF-8, read as windows-1252"_s, u"pas en UTF-8, lu en windows-1252"_s},
        {u"c7"_s, u"not UTF-8, read as UTF-16"_s, u"pas en UTF-8, lu en UTF-16"_s},
        {u"c8"_s, u"no \"key=value\" in line"_s, u"pas de « clé=valeur » à la ligne"_s},
        {u"c10"_s, u"can't be written"_s, u"ne peut pas être écrit"_s},
        {u"c11"_s, u"Not a directory"_s, u"un fichier porte le nom d’un dossier"_s},
        {u"c12"_s, u"File exists"_s, u"ce nom existe déjà"_s},
        {u"c13"_s, u"texts missing in [CATALOG]"_s, u"textes absents de [CATALOG]"_s},
        {u"c4"_s, u"file to open is a directory"_s, u"c’est un dossier"_s},
        {u"c4"_s, u"Filename refers to a directory"_s, u"c’est un dossier"_s},
        {u"c9"_s, u"not in the form of a settings file"_s, u"n’a pas la forme d’un fichier de réglages"_s},
        {u"c14"_s, u"not a picture"_s, u"ce n’est pas une image lisible"_s},
        {u"c15"_s, u"not in the form of a language file"_s, u"n’a pas la forme d’un fichier de langue"_s},
        {u"c17"_s, u"apostrophe: "_s, u"un code ne peut pas contenir d’apostrophe : "_s},
        {u"c16"_s, u"no file name"_s, u"nom de fichier impossible"_s},
        {u"c18"_s, u"The operation was aborted."_s, u"L’opération a été interrompue."_s},
        {u"c19"_s, u"The server's certificate was not accepted"_s, u"Le certificat du serveur n’a pas été accepté"_s},
        {u"c20"_s, u"The server offers no TLS."_s, u"Le serveur ne propose pas de chiffrement (TLS)."_s},
        {u"c21"_s, u"This is no name of a server"_s, u"Ceci n’est pas un nom de serveur"_s},
        {u"c22"_s, u"This is no port"_s, u"Ceci n’est pas un port"_s},
        {u"c23"_s, u"No server of that name was found."_s, u"Aucun serveur de ce nom n’a été trouvé."_s},
        {u"c24"_s, u"The server can't be reached."_s, u"Le serveur ne peut pas être joint."_s},
        {u"c25"_s, u"The server did not answer in time."_s, u"Le serveur n’a pas répondu à temps."_s},
        {u"c26"_s, u"The server has closed the connection."_s, u"Le serveur a fermé la connexion."_s},
        {u"c27"_s, u"The server gave no reply."_s, u"Le serveur n’a rien répondu."_s},
        {u"c28"_s, u"The server's reply has no end."_s, u"La réponse du serveur ne finit pas."_s},
        {u"c29"_s, u"The file is shorter than the server announced."_s,
         u"Le fichier est plus court que le serveur ne l’a annoncé."_s},
        {u"c30"_s, u"The server's file is longer"_s, u"Le fichier du serveur est plus long"_s},
        {u"c31"_s, u"A name that can't be kept here"_s, u"Ce nom n’est pas permis sur cet ordinateur"_s},
        {u"c32"_s, u"A name must not hold a line break."_s, u"Un nom ne peut pas contenir de saut de ligne."_s},
        {u"c33"_s, u"Folders too deep"_s, u"Trop de dossiers les uns dans les autres"_s},
        {u"c34"_s, u"This folder can't be made"_s, u"Ce dossier ne peut pas être créé"_s},
        {u"c35"_s, u"This folder can't be read"_s, u"Ce dossier ne peut pas être lu"_s},
        {u"c36"_s, u"This folder's name can't be kept"_s,
         u"Un dossier de ce nom n’est pas supprimé avec son contenu, renommez-le d’abord"_s},
        {u"c37"_s, u"A listing that can't be read"_s, u"Cette liste de fichiers ne peut pas être lue"_s},
        {u"c38"_s, u"Can't be deleted"_s, u"Ne peut pas être supprimé"_s},
        {u"c39"_s, u"Read-only file system"_s, u"ce disque ne peut être que lu"_s},
        {u"c40"_s, u"File name too long"_s, u"nom de fichier trop long"_s},
        {u"c41"_s, u"database is locked"_s, u"la base de données est utilisée par un autre programme"_s},
        {u"c42"_s, u"attempt to write a readonly database"_s, u"la base de données ne peut être que lue"_s},
        {u"c43"_s, u"database disk image is malformed"_s, u"la base de données est endommagée"_s},
        {u"c44"_s, u"file is not a database"_s, u"ce fichier n’est pas une base de données"_s},
        {u"c3"_s, u"database or disk is full"_s, u"plus de place sur le disque"_s},
        {u"c26"_s, u"response reading failed"_s, u"Le serveur a fermé la connexion."_s},
        {u"c21"_s, u"URL using bad/illegal format or missing URL"_s, u"Ceci n’est pas un nom de serveur"_s},
        {u"c46"_s, u"written by a newer version"_s, u"écrit par une version plus récente de ZELVANTOR"_s},
        {u"c47"_s, u"There is no connection."_s, u"Il n’y a pas de connexion."_s},
        {u"c45"_s, u"deleted elsewhere: "_s, u"cette ligne a été supprimée ailleurs : "_s},
    }};
    return table;
}

} // namespace

QString Causes::text(const QString &cause, const Localisation &localisation)
{
    Localisation windows = localisation;
    windows.gbLangueCatalogue = false;
    for (const Cause &known : causes()) {
        if (!cause.startsWith(known.platformText))
            continue;
        const QString words = windows.textOr(u"RUN"_s, known.key, known.french);
        // A language file keeps no blank at the end of a text.
        const bool isApart = known.platformText.endsWith(u' ') && !words.endsWith(u' ');
        return words + (isApart ? u" "_s : QString()) + cause.mid(known.platformText.size());
    }
    return cause;
}

QString Causes::message(const Result &failure, const Localisation &localisation)
{
    return Result(failure.number(), text(failure.text(), localisation)).message();
}
