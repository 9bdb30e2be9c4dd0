#include "shop/RunReport.h"

#include "shell/Localisation.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(logShop, "zelvantor.shop", QtWarningMsg)

namespace {

QString frenchLine(Incident::Kind kind)
{
    switch (kind) {
    case Incident::FileNotWritten:
        return u"Fichier %1 non écrit : %2"_s;
    case Incident::FileNameRefused:
        return u"Page %1 non écrite, ce nom de fichier n’est pas permis : %2"_s;
    case Incident::PageWrittenTwice:
        return u"Page %1 écrite deux fois, la dernière reste : %2"_s;
    case Incident::CharactersLost:
        return u"Fichier %1 : caractères absents du jeu windows-1252, écrits « ? » : %2"_s;
    case Incident::PictureNotCopied:
        return u"Image %1 non copiée : %2"_s;
    case Incident::PicturesOfOneName:
        return u"Deux images différentes portent le nom %1, une seule reste : %2"_s;
    case Incident::AssetNotCopied:
        return u"Fichier fixe %1 non copié : %2"_s;
    case Incident::LogoNotCopied:
        return u"Logo %1 non copié : %2"_s;
    case Incident::StoreNotRead:
        return u"Base de données, %1 : %2"_s;
    case Incident::LanguageFile:
        return u"Fichier de langue %1 : %2"_s;
    case Incident::SettingsFile:
        return u"Fichier de réglages %1 : %2"_s;
    case Incident::TextFile:
        return u"Fichier de texte %1 non lu : %2"_s;
    case Incident::OldFileNotRemoved:
        return u"Ancien fichier %1 non supprimé : %2"_s;
    case Incident::FolderNotMade:
        return u"Dossier %1 non créé : %2"_s;
    }
    return {};
}

/// Causes as the platform words them. Whatever is not listed stays as it came.
struct Cause {
    QString key;
    QString platformText;
    QString french;
};

const std::array<Cause, 15> &causes()
{
    static const std::array<Cause, 15> table = {{
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
    }};
    return table;
}

QString causeText(const QString &cause, const Localisation &localisation)
{
    for (const Cause &known : causes()) {
        if (!cause.startsWith(known.platformText))
            continue;
        const QString text = localisation.Traduire(u"RUN"_s, known.key);
        return (text.isEmpty() ? known.french : text) + cause.mid(known.platformText.size());
    }
    return cause;
}

} // namespace

void RunReport::add(Incident::Kind kind, const QString &piece, const QString &cause)
{
    Incident incident{kind, piece, cause};
    if (std::find(m_incidents.begin(), m_incidents.end(), incident) != m_incidents.end())
        return;
    qCInfo(logShop).noquote() << frenchLine(kind).arg(piece, cause);
    m_incidents.push_back(std::move(incident));
}

QString describe(const Incident &incident, const Localisation &localisation)
{
    Localisation windows = localisation;
    windows.gbLangueCatalogue = false;
    const QString line = windows.Traduire(u"RUN"_s, QString::number(incident.kind));
    return (line.contains(u"%1"_s) ? line : frenchLine(incident.kind))
        .arg(incident.piece, causeText(incident.cause, windows));
}
