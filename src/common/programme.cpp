#include "programme.h"

#include <algorithm>

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

}  // namespace common
