#include "attente.h"

#include <string>

namespace installation {
namespace {

namespace fs = std::filesystem;

// Files that are open at once. Synchronised together they wait for the disk once or twice, one by
// one each of them does.
constexpr std::size_t lot = 100;

}  // namespace

Attente::~Attente() {
    lot_.clear();
    for (std::size_t rang = 0;; ++rang)
        if (appels_.supprimer(fichier(rang)) && rang >= nombre_)
            break;
    static_cast<void>(appels_.supprimer(dossier_));  // gone, or in nobody's way
}

fs::path Attente::fichier(std::size_t rang) const {
    return dossier_ / std::to_string(rang);
}

std::error_code Attente::creer(common::Descripteur& ouvert) {
    const auto chemin = fichier(nombre_);
    auto erreur = ouvert.ouvrir(chemin, common::Ouverture::Creation);
    if (erreur == std::errc::no_such_file_or_directory) {
        erreur = appels_.creerdossier(dossier_);
        if (!erreur)
            erreur = ouvert.ouvrir(chemin, common::Ouverture::Creation);
    }
    if (erreur == std::errc::file_exists) {  // left by a run that was killed
        erreur = appels_.supprimer(chemin);
        if (!erreur)
            erreur = ouvert.ouvrir(chemin, common::Ouverture::Creation);
    }
    return erreur;
}

std::error_code Attente::ajouter(std::string_view octets) {
    auto& ouvert = lot_.emplace_back(appels_);
    auto erreur = creer(ouvert);
    if (!erreur)
        ++nombre_;
    while (!erreur && !octets.empty()) {
        std::size_t ecrits = 0;
        erreur = appels_.ecrire(ouvert.poignee(), octets, ecrits);
        if (!erreur && ecrits == 0)
            erreur = std::make_error_code(std::errc::no_space_on_device);
        octets.remove_prefix(ecrits);
    }
    if (!erreur && lot_.size() >= lot)
        erreur = fermerlot();
    return erreur;
}

std::error_code Attente::fermerlot() {
    for (auto& ouvert : lot_)
        if (const auto erreur = appels_.synchroniser(ouvert.poignee()))
            return erreur;
    lot_.clear();
    return {};
}

std::error_code Attente::synchroniser() {
    const auto erreur = fermerlot();
    return erreur ? erreur : appels_.synchroniserdossier(dossier_);
}

std::error_code Attente::placer(std::size_t rang, const fs::path& place) {
    const auto erreur = appels_.renommer(fichier(rang), place);
    if (!erreur)
        changes_.insert(place.parent_path());
    return erreur;
}

std::error_code Attente::finir() {
    for (const auto& dossier : changes_)
        if (const auto erreur = appels_.synchroniserdossier(dossier))
            return erreur;
    changes_.clear();
    return {};
}

}  // namespace installation
