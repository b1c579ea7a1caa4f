#include "sortie.h"

#include "chemin.h"
#include "faute.h"
#include "fichier.h"
#include "listes.h"
#include "programme.h"
#include "provisoire.h"

namespace atelier {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view action = "Installation des listes";

[[noreturn]] void faute(const fs::path& chemin, const std::error_code& erreur) {
    throw common::Faute(common::rapportfichier(action, chemin.string(), common::raison(erreur)));
}

void verifier(const fs::path& chemin, const std::error_code& erreur) {
    if (erreur)
        faute(chemin, erreur);
}

/// The waiting folder: empty at first, gone at the end, whatever happens.
class Attente {
  public:
    Attente(common::Appels& appels, const fs::path& dossier)
        : appels_(appels),
          dossier_(dossier),
          exclusion_(dossier, erreur_),
          chemin_(dossier / common::dossiernouvelleslistes) {
        if (erreur_ == std::errc::operation_would_block)
            throw common::Faute(common::rapportfichier(action, dossier.string(),
                                                       "une autre fabrication y est en cours"));
        verifier(dossier, erreur_);
        verifier(dossier, common::remettrelistes(appels, dossier));
        fs::remove_all(chemin_);
        fs::create_directory(chemin_, erreur_);
        verifier(chemin_, erreur_);
    }
    Attente(const Attente&) = delete;
    Attente& operator=(const Attente&) = delete;
    ~Attente() {
        std::error_code oubli = common::remettrelistes(appels_, dossier_);
        // The old lists may still be in it, if the disk has refused to put them back.
        if (fs::exists(dossier_ / common::dossierlistes, oubli) ||
            !fs::exists(chemin_ / common::ancienneslistes, oubli))
            fs::remove_all(chemin_, oubli);  // the next run clears what is left
    }
    [[nodiscard]] const fs::path& chemin() const { return chemin_; }

  private:
    common::Appels& appels_;
    fs::path dossier_;
    std::error_code erreur_;
    Exclusion exclusion_;
    fs::path chemin_;
};

void deplacer(common::Appels& appels, const fs::path& source, const fs::path& cible) {
    verifier(cible, appels.renommer(source, cible));
}

/// Takes over what only the old folder has.
void reprendre(const fs::path& ancien, const fs::path& nouveau) {
    if (!fs::exists(ancien))
        return;
    std::error_code erreur;
    for (const auto& entree : fs::directory_iterator(ancien, erreur)) {
        const auto cible = nouveau / entree.path().filename();
        if (fs::exists(fs::symlink_status(cible)))
            continue;
        fs::copy(entree.path(), cible,
                 fs::copy_options::recursive | fs::copy_options::copy_symlinks, erreur);
        verifier(cible, erreur);
    }
    verifier(ancien, erreur);
}

/// Puts the new folder in the place of the old one; the old one stays in the waiting folder.
void echanger(common::Appels& appels, const fs::path& nouveau, const fs::path& place) {
    if (!fs::exists(place)) {
        deplacer(appels, nouveau, place);
        return;
    }
    if (!appels.echanger(nouveau, place))
        return;
    // A disk that cannot: the old folder steps aside first, and comes back on a failure.
    const auto anciennes = nouveau.parent_path() / common::ancienneslistes;
    deplacer(appels, place, anciennes);
    const auto erreur = appels.renommer(nouveau, place);
    if (!erreur)
        return;
    static_cast<void>(appels.renommer(anciennes, place));  // the reason to tell is the first one
    faute(place, erreur);
}

}  // namespace

std::error_code ecrirefichier(const fs::path& chemin, std::string_view octets) {
    auto& appels = common::appelsdusysteme();
    common::Descripteur fichier(appels);
    auto erreur = fichier.ouvrir(chemin, common::Ouverture::Creation);
    if (erreur == std::errc::file_exists) {
        erreur = appels.supprimer(chemin);
        if (!erreur)
            erreur = fichier.ouvrir(chemin, common::Ouverture::Creation);
    }
    while (!erreur && !octets.empty()) {
        std::size_t ecrits = 0;
        erreur = appels.ecrire(fichier.poignee(), octets, ecrits);
        octets.remove_prefix(ecrits);
    }
    return erreur;
}

void installer(const std::vector<Fichier>& fichiers, const fs::path& dossier, const Ecrire& ecrire,
               const Abriter& mettrealabri, common::Appels& appels) {
    std::error_code erreur;
    fs::create_directories(dossier, erreur);
    verifier(dossier, erreur);
    const Attente neufs(appels, dossier);
    for (const auto& fichier : fichiers) {
        const auto chemin = neufs.chemin() / common::chemin(fichier.chemin);
        fs::create_directories(chemin.parent_path(), erreur);
        verifier(chemin.parent_path(), erreur);
        verifier(dossier / common::chemin(fichier.chemin), ecrire(chemin, fichier.octets));
    }
    const fs::path listes(common::dossierlistes);
    const bool deslistes = fs::exists(neufs.chemin() / listes);
    if (deslistes)
        reprendre(dossier / listes, neufs.chemin() / listes);
    verifier(dossier, mettrealabri(neufs.chemin()));
    if (deslistes)
        echanger(appels, neufs.chemin() / listes, dossier / listes);
    for (const auto& fichier : fichiers) {
        const auto chemin = common::chemin(fichier.chemin);
        if (*chemin.begin() == listes)
            continue;
        fs::create_directories((dossier / chemin).parent_path(), erreur);
        verifier((dossier / chemin).parent_path(), erreur);
        deplacer(appels, neufs.chemin() / chemin, dossier / chemin);
    }
    // The files are in place: names that cannot be brought onto the disk take nothing back.
    static_cast<void>(mettrealabri(dossier));
}

}  // namespace atelier
