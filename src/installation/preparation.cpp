#include "preparation.h"

#include "disquereel.h"
#include "faute.h"
#include "fichier.h"
#include "programme.h"
#include "rafraichissement.h"

namespace installation {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view actionouverture = "Ouverture de votre dossier";

void exiger(const fs::path& dossier, const std::error_code& erreur) {
    if (erreur)
        throw common::Faute(
            common::rapportfichier(actionouverture, dossier.string(), common::raison(erreur)));
}

/// Creates the folder and its missing parents.
std::error_code creer(common::Appels& appels, const fs::path& dossier) {
    auto erreur = appels.creerdossier(dossier);
    if (erreur == std::errc::no_such_file_or_directory && dossier.has_relative_path()) {
        erreur = creer(appels, dossier.parent_path());
        if (!erreur)
            erreur = appels.creerdossier(dossier);
    }
    common::Etat etat;
    const bool la = erreur == std::errc::file_exists && !appels.etat(dossier, etat) &&
                    etat.genre == common::Genre::Dossier;
    return la ? std::error_code() : erreur;
}

}  // namespace

Lieu preparer(common::Appels& appels, const Environs& environs) {
    auto lieu = choisir(appels, environs);
    if (lieu.fournis.empty())
        return lieu;
    exiger(lieu.dossier, common::remettrelistes(appels, lieu.dossier));
    common::DisqueReel source(lieu.fournis, appels);
    common::DisqueReel cible(lieu.dossier, appels);
    const auto inventaire = lireinventaire(source);
    if (versionrecue(cible) == inventaire.version)
        return lieu;
    exiger(lieu.dossier, creer(appels, lieu.dossier));
    rafraichir(appels, lieu.fournis, lieu.dossier, inventaire);
    return lieu;
}

Lieu sinstaller(const fs::path& programme) {
    auto lieu = preparer(common::appelsdusysteme(), environs(programme));
    std::error_code erreur;
    if (!lieu.dossier.empty())
        fs::current_path(lieu.dossier, erreur);
    exiger(lieu.dossier, erreur);
    return lieu;
}

}  // namespace installation
