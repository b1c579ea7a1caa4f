#include "programme.h"

#include <algorithm>

#include "listes.h"
#include "provisoire.h"

namespace common {

namespace fs = std::filesystem;

bool inscriptible(Appels& appels, const fs::path& dossier) {
    Provisoire essai(appels);
    return !essai.creer(dossier / ".orvane") && !essai.retirer();
}

std::string dossierprogramme(Appels& appels, const fs::path& executable, const fs::path& courant) {
    std::error_code erreur;
    const auto octets = executable.u8string();
    std::string texte(octets.begin(), octets.end());
    // A path of the rules cannot say a backslash that is part of a name.
    const bool dicible = fs::path::preferred_separator == '\\' || texte.find('\\') == texte.npos;
    if (texte.empty() || !dicible || fs::equivalent(executable, courant, erreur) ||
        !inscriptible(appels, executable))
        return {};
    std::replace(texte.begin(), texte.end(), '/', '\\');
    if (texte.back() != '\\')
        texte += '\\';
    return texte;
}

std::error_code remettrelistes(Appels& appels, const fs::path& dossier) {
    const auto place = dossier / dossierlistes;
    const auto anciennes = dossier / dossiernouvelleslistes / ancienneslistes;
    Etat etat;
    if (appels.etat(place, etat) != std::errc::no_such_file_or_directory ||
        appels.etat(anciennes, etat))
        return {};
    return appels.renommer(anciennes, place);
}

}  // namespace common
