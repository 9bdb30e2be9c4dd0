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

const std::array<Cause, 19> &causes()
{
    static const std::array<Cause, 19> table = {{
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
        return windows.textOr(u"RUN"_s, known.key, known.french) + cause.mid(known.platformText.size());
    }
    return cause;
}

QString Causes::message(const Result &failure, const Localisation &localisation)
{
    return Result(failure.number(), text(failure.text(), localisation)).message();
}
