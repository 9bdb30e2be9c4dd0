#include "shell/BuiltInTexts.h"

using namespace Qt::StringLiterals;

QString BuiltInTexts::text(int number)
{
    switch (number) {
    case 1001:
        return u"Chargement en cours"_s;
    case 2015:
        return u"Les informations système ne sont pas disponibles pour l'instant"_s;
    case 2020:
        return u"L'ancien mot de passe est non valide"_s;
    case 2021:
        return u"La confirmation du mot de passe est non valide"_s;
    case 2026:
        return u"Le mot de passe est obligatoire"_s;
    case 2027:
        return u"Le mot de passe est non valide"_s;
    default:
        return {};
    }
}
