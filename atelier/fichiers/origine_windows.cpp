// Windows has no lexicon of its own: that of the lists comes with the programs.

#include <windows.h>
#include <filesystem>

#include "chantier.h"

namespace atelier {
namespace {

namespace fs = std::filesystem;

/// The folder of the executable; empty if the system does not tell.
fs::path dossierexecutable() {
    std::wstring chemin(MAX_PATH, L'\0');
    for (;;) {
        const auto taille =
            ::GetModuleFileNameW(nullptr, chemin.data(), static_cast<DWORD>(chemin.size()));
        if (taille < chemin.size()) {
            chemin.resize(taille);
            return fs::path(chemin).parent_path();
        }
        chemin.resize(chemin.size() * 2);
    }
}

}  // namespace

Chemins cheminsdorigine() {
    const auto lexique = dossierexecutable() / "lexique";
    std::error_code absent;
    if (!fs::is_directory(lexique, absent))
        return {ORVANE_LEXIQUE, ORVANE_AFFIXES, ORVANE_THESAURUS};
    const auto place = [&](const char* fichier) { return (lexique / fichier).string(); };
    return {place("fr.dic"), place("fr.aff"), place("thes_fr.dat")};
}

}  // namespace atelier
