#include "shop/RunReport.h"

#include "shell/Causes.h"
#include "shell/Localisation.h"

#include <QLoggingCategory>

#include <algorithm>

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

} // namespace

void RunReport::add(Incident::Kind kind, const QString &piece, const QString &cause)
{
    Incident incident{kind, piece, cause};
    if (std::find(m_incidents.begin(), m_incidents.end(), incident) != m_incidents.end())
        return;
    qCInfo(logShop).noquote() << frenchLine(kind).arg(piece, cause);
    m_incidents.push_back(std::move(incident));
}

void RunReport::forget(Incident::Kind kind)
{
    std::erase_if(m_incidents, [kind](const Incident &incident) { return incident.kind == kind; });
}

QString describe(const Incident &incident, const Localisation &localisation)
{
    Localisation windows = localisation;
    windows.gbLangueCatalogue = false;
    const QString line = windows.Traduire(u"RUN"_s, QString::number(incident.kind));
    return (line.contains(u"%1"_s) ? line : frenchLine(incident.kind))
        .arg(incident.piece, Causes::text(incident.cause, windows));
}
