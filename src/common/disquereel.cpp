#include "disquereel.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "provisoire.h"
#include "texte.h"

namespace common {
namespace {

class FluxReel : public Flux {
  public:
    explicit FluxReel(Appels& appels) : appels_(appels), fichier_(appels) {}
    [[nodiscard]] std::error_code ouvrir(const std::filesystem::path& chemin) {
        return fichier_.ouvrir(chemin, Ouverture::Lecture);
    }
    [[nodiscard]] std::error_code lire(std::span<char> tampon, std::size_t& lus) override {
        return appels_.lire(fichier_.poignee(), tampon, lus);
    }

  private:
    Appels& appels_;
    Descripteur fichier_;
};

class VerrouReel : public Verrou {
  public:
    explicit VerrouReel(Appels& appels) : tenu_(appels) {}
    [[nodiscard]] Descripteur& tenu() { return tenu_; }

  private:
    Descripteur tenu_;
};

std::error_code liretout(Appels& appels, Poignee poignee, std::string& octets) {
    constexpr std::size_t bloc = 64UL * 1024;
    std::size_t lus = 1;
    while (lus > 0) {
        const auto place = octets.size();
        octets.resize(place + bloc);
        lus = 0;
        const auto erreur = appels.lire(poignee, std::span(octets).subspan(place), lus);
        octets.resize(place + lus);
        if (erreur)
            return erreur;
    }
    return {};
}

/// What has to come between the end of a file and a new line.
std::string_view soudure(std::string_view octets) {
    if (octets.empty() || octets.back() == '\n')
        return {};
    return octets.back() == '\r' ? findeligne.substr(1) : findeligne;
}

/// What has to come between the end of a file of that size and a new line.
std::error_code mesurersoudure(Appels& appels, Poignee poignee, std::uint64_t taille,
                               std::string_view& entre) {
    std::array<char, 1> dernier{};
    std::size_t lus = 0;
    if (taille == 0)
        return {};
    if (const auto erreur = appels.placer(poignee, taille - 1))
        return erreur;
    const auto erreur = appels.lire(poignee, dernier, lus);
    entre = soudure({dernier.data(), lus});
    return erreur;
}

/// Opens a file to append to, empty if it is new, and keeps other programs from it. Waits for none.
std::error_code saisir(Appels& appels, const std::filesystem::path& cible, Descripteur& fichier) {
    auto erreur = fichier.ouvrir(cible, Ouverture::Ajout);
    if (erreur == std::errc::no_such_file_or_directory) {
        erreur = fichier.ouvrir(cible, Ouverture::Creation);
        if (erreur && erreur != std::errc::file_exists)
            return erreur;
        erreur = fichier.ouvrir(cible, Ouverture::Ajout);
    }
    if (erreur)
        return erreur;
    bool pris = true;
    if (appels.verrouiller(fichier.poignee(), pris))
        return {};  // a disk without locks
    // Another program may have put a new file in its place before the lock.
    return pris && fichier.nomme(cible) ? std::error_code() : make_error_code(Ennui::Retenu);
}

/// Makes the file, empty, or else says whether it can be written.
std::error_code toucher(Appels& appels, const std::filesystem::path& cible) {
    Descripteur fichier(appels);
    auto erreur = fichier.ouvrir(cible, Ouverture::Creation);
    if (!erreur)
        static_cast<void>(appels.synchroniserdossier(cible.parent_path()));
    return erreur == std::errc::file_exists ? fichier.ouvrir(cible, Ouverture::Modification)
                                            : erreur;
}

}  // namespace

std::filesystem::path DisqueReel::systeme(std::string_view chemin) const {
    std::string texte(chemin);
    std::replace(texte.begin(), texte.end(), '\\', '/');
    const std::filesystem::path relatif(std::u8string(texte.begin(), texte.end()));
    return racine_.empty() ? relatif : racine_ / relatif;
}

std::error_code DisqueReel::ouvrir(std::string_view chemin, std::unique_ptr<Flux>& flux) {
    auto fichier = std::make_unique<FluxReel>(*appels_);
    if (const auto erreur = fichier->ouvrir(systeme(chemin)))
        return erreur;
    flux = std::move(fichier);
    return {};
}

std::error_code DisqueReel::verrouiller(std::string_view chemin, std::unique_ptr<Verrou>& verrou) {
    auto cible = systeme(chemin);
    auto tenu = std::make_unique<VerrouReel>(*appels_);
    auto erreur = destination(*appels_, cible);
    if (!erreur)
        erreur = tenir(*appels_, cible, tenu->tenu());
    if (!erreur)
        verrou = std::move(tenu);
    return erreur;
}

std::error_code DisqueReel::ajouter(std::string_view chemin, std::string_view octets) {
    auto cible = systeme(chemin);
    if (const auto erreur = destination(*appels_, cible))
        return erreur;
    if (octets.empty())
        return toucher(*appels_, cible);
    Descripteur tenu(*appels_);
    auto erreur = tenir(*appels_, cible, tenu);
    if (erreur == std::errc::no_such_file_or_directory) {
        erreur = poser(*appels_, cible, octets, true);
        if (erreur != std::errc::file_exists)
            return erreur;
        erreur = tenir(*appels_, cible, tenu);  // another program has just made it
    }
    std::string contenu;
    if (!erreur)
        erreur = liretout(*appels_, tenu.poignee(), contenu);
    if (erreur)
        return erreur;
    contenu.append(soudure(contenu)).append(octets);
    return poser(*appels_, cible, contenu);
}

std::error_code DisqueReel::deposer(std::string_view chemin, std::string_view octets) {
    auto cible = systeme(chemin);
    if (const auto erreur = destination(*appels_, cible))
        return erreur;
    Descripteur fichier(*appels_);
    Etat avant;
    std::string_view entre;
    auto erreur = saisir(*appels_, cible, fichier);
    if (!erreur)
        erreur = appels_->etat(fichier.poignee(), avant);
    if (!erreur)
        erreur = mesurersoudure(*appels_, fichier.poignee(), avant.taille, entre);
    if (erreur)
        return erreur;
    const auto tout = std::string(entre).append(octets);
    std::size_t ecrits = 0;
    erreur = appels_->ecrire(fichier.poignee(), tout, ecrits);
    if (!erreur && ecrits < tout.size())
        erreur = std::make_error_code(std::errc::no_space_on_device);
    if (erreur)
        static_cast<void>(appels_->couper(fichier.poignee(), avant.taille));
    return erreur;
}

std::error_code DisqueReel::remplacer(std::string_view chemin, std::string_view octets) {
    auto cible = systeme(chemin);
    if (const auto erreur = destination(*appels_, cible))
        return erreur;
    return poser(*appels_, cible, octets);
}

std::error_code DisqueReel::creerdossier(std::string_view chemin) {
    const auto dossier = systeme(chemin);
    const auto erreur = appels_->creerdossier(dossier);
    if (!erreur)
        static_cast<void>(appels_->synchroniserdossier(dossier.parent_path()));
    return erreur == std::errc::file_exists && estdossier(chemin) ? std::error_code() : erreur;
}

std::error_code DisqueReel::supprimer(std::string_view chemin) {
    return appels_->supprimer(systeme(chemin));
}

std::error_code DisqueReel::renommer(std::string_view ancien, std::string_view nouveau) {
    const auto cible = systeme(nouveau);
    const auto erreur = appels_->renommer(systeme(ancien), cible);
    if (!erreur)
        static_cast<void>(appels_->synchroniserdossier(cible.parent_path()));
    return erreur;
}

bool DisqueReel::existe(std::string_view chemin) {
    Etat etat;
    return !appels_->etat(systeme(chemin), etat);
}

bool DisqueReel::estdossier(std::string_view chemin) {
    Etat etat;
    return !appels_->etat(systeme(chemin), etat) && etat.genre == Genre::Dossier;
}

}  // namespace common
