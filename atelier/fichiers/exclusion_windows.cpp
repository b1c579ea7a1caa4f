#include "exclusion.h"

#include <windows.h>

#include "chemins_windows.h"
#include "erreurs_windows.h"
#include "provisoire.h"

namespace atelier {
namespace {

namespace fs = std::filesystem;

/// In the folder, and deleted by the system when the program ends, however it ends.
constexpr const char* fichierexclusif = ".nouvelles-listes.verrou";

}  // namespace

Exclusion::Exclusion(const fs::path& dossier, std::error_code& erreur) : poignee_(0) {
    std::wstring large;
    erreur = common::cheminlarge(dossier / fichierexclusif, large);
    if (erreur)
        return;
    void* const fichier =
        ::CreateFileW(large.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                      FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (fichier != INVALID_HANDLE_VALUE)
        poignee_ = reinterpret_cast<std::intptr_t>(fichier);
    else
        erreur = common::nomquipart() ? std::make_error_code(std::errc::operation_would_block)
                                      : common::erreurwindows();
}

Exclusion::~Exclusion() {
    if (poignee_ != 0)
        ::CloseHandle(reinterpret_cast<void*>(poignee_));
}

std::error_code abriter(const fs::path& dossier) {
    // Only an administrator has a whole disk written.
    auto& appels = common::appelsdusysteme();
    std::vector<fs::path> noms;
    if (const auto erreur = appels.lister(dossier, noms))
        return erreur;
    for (const auto& nom : noms) {
        if (nom == fichierexclusif)
            continue;  // kept from everybody, this program included
        const auto chemin = dossier / nom;
        common::Descripteur fichier(appels);
        auto erreur = fichier.ouvrir(chemin, common::Ouverture::Modification);
        if (erreur == std::errc::is_a_directory)
            erreur = abriter(chemin);
        else if (!erreur)
            erreur = appels.synchroniser(fichier.poignee());
        if (erreur)
            return erreur;
    }
    return {};
}

}  // namespace atelier
