#include "provisoire.h"

#include <algorithm>
#include <vector>

#include "disquereel.h"
#include "fichier.h"

namespace common {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t pas = 2;      // milliseconds between two looks at a lock
constexpr int essaisdunom = 1000;    // numbers that programs of other machines may have taken
constexpr int lienslimite = 40;      // links one behind the other, as the system bears
constexpr int releveslimite = 1000;  // a disk might number its files anew each time
constexpr std::string_view extension = ".tmp";

/// `<name>.<number>.tmp` of that name.
bool estprovisoirede(const std::string& nom, const std::string& cible) {
    if (nom.size() <= cible.size() + 1 + extension.size() || !nom.starts_with(cible + ".") ||
        !nom.ends_with(extension))
        return false;
    return std::all_of(nom.begin() + static_cast<std::ptrdiff_t>(cible.size()) + 1,
                       nom.end() - static_cast<std::ptrdiff_t>(extension.size()),
                       [](char c) { return c >= '0' && c <= '9'; });
}

/// Whoever writes a temporary file has it locked: one that can be locked is nobody's. One that is
/// the file itself is a second name of it, which `nommer` had no time to take away.
void balayer(Appels& appels, const fs::path& cible) {
    std::vector<fs::path> noms;
    if (appels.lister(cible.parent_path(), noms))
        return;
    for (const auto& nom : noms) {
        if (!estprovisoirede(nom.string(), cible.filename().string()))
            continue;
        const auto reste = cible.parent_path() / nom;
        Descripteur fichier(appels);
        bool pris = false;
        if (fichier.ouvrir(reste, Ouverture::Modification))
            continue;
        if (fichier.nomme(cible) ||
            (!appels.verrouiller(fichier.poignee(), pris) && pris && fichier.nomme(reste)))
            static_cast<void>(appels.supprimer(reste));
    }
}

/// Opens once no program has a lease on the file: a file server takes one, and gives it back when
/// another program asks for the file.
std::error_code ouvrirlibre(Appels& appels, const fs::path& chemin, Ouverture mode,
                            Poignee& poignee) {
    const auto limite = appels.maintenant() + attentelimite;
    auto erreur = appels.ouvrir(chemin, mode, poignee);
    while (erreur == std::errc::operation_would_block) {
        if (appels.maintenant() >= limite)
            return Ennui::Retenu;
        appels.attendre(pas);
        erreur = appels.ouvrir(chemin, mode, poignee);
    }
    return erreur;
}

std::error_code pasunfichier(Genre genre) {
    return genre == Genre::Dossier ? std::make_error_code(std::errc::is_a_directory)
                                   : make_error_code(Ennui::PasUnFichier);
}

/// The disk has no such call.
bool sanscetappel(const std::error_code& erreur) {
    return erreur == std::errc::function_not_supported || erreur == std::errc::not_supported ||
           erreur == std::errc::operation_not_supported;
}

}  // namespace

std::error_code Descripteur::ouvrir(const fs::path& chemin, Ouverture mode) {
    fermer();
    if (const auto erreur = ouvrirlibre(appels_, chemin, mode, poignee_)) {
        // A socket cannot even be opened.
        return erreur == std::errc::no_such_device_or_address ? make_error_code(Ennui::PasUnFichier)
                                                              : erreur;
    }
    Etat etat;
    if (const auto erreur = appels_.etat(poignee_, etat)) {
        fermer();
        return erreur;
    }
    if (etat.genre == Genre::Fichier)
        return {};
    fermer();
    return pasunfichier(etat.genre);
}

void Descripteur::fermer() {
    if (poignee_ != sanspoignee)
        appels_.fermer(poignee_);
    poignee_ = sanspoignee;
}

bool Descripteur::nomme(const fs::path& chemin) const {
    Etat tenu;
    Etat nomme;
    return !appels_.etat(poignee_, tenu) && !appels_.etat(chemin, nomme) &&
           tenu.disque == nomme.disque && tenu.numero == nomme.numero;
}

std::error_code destination(Appels& appels, fs::path& chemin) {
    for (int n = 0; n < lienslimite; ++n) {
        fs::path cible;
        if (const auto erreur = appels.lien(chemin, cible))
            return erreur;
        if (cible.empty())
            return {};
        chemin = chemin.parent_path() / cible;
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

std::error_code tenir(Appels& appels, const fs::path& chemin, Descripteur& tenu) {
    const auto limite = appels.maintenant() + attentelimite;
    // Whoever held the file may have put another in its place meanwhile: it is that one which is
    // wanted.
    for (int releves = 0; releves < releveslimite;) {
        if (const auto erreur = tenu.ouvrir(chemin, Ouverture::Modification))
            return erreur;
        bool pris = false;
        if (appels.verrouiller(tenu.poignee(), pris))
            return {};  // some disks have no locks; what they hold is not kept
        if (pris && tenu.nomme(chemin))
            return {};
        if (pris) {
            ++releves;
            continue;
        }
        tenu.fermer();
        if (appels.maintenant() >= limite)
            return Ennui::Retenu;
        appels.attendre(pas);
    }
    return {};
}

std::error_code Provisoire::creer(const fs::path& cible) {
    cible_ = cible;
    Etat ancien;
    const auto absence = appels_.etat(cible, ancien);
    if (absence && absence != std::errc::no_such_file_or_directory)
        return absence;
    if (!absence && ancien.genre != Genre::Fichier)
        return pasunfichier(ancien.genre);
    balayer(appels_, cible);
    const auto erreur = ouvrir();
    return erreur || absence ? erreur : heriter(ancien);
}

/// Creates the file under a name that is free, and locks it.
std::error_code Provisoire::ouvrir() {
    std::error_code erreur;
    for (int n = 0; n < essaisdunom; ++n) {
        auto chemin = cible_;
        chemin += "." + std::to_string(appels_.programme() + n) + std::string(extension);
        erreur = fichier_.ouvrir(chemin, Ouverture::Creation);
        if (erreur == std::errc::file_exists)
            continue;
        if (erreur)
            return erreur;
        // Another program may have taken it for a left one before the lock. Where a disk has no
        // locks nobody does.
        bool pris = true;
        const bool sansverrous = static_cast<bool>(appels_.verrouiller(fichier_.poignee(), pris));
        if (sansverrous || (pris && fichier_.nomme(chemin))) {
            chemin_ = chemin;
            return {};
        }
        if (pris)
            static_cast<void>(appels_.supprimer(chemin));
    }
    return erreur ? erreur : std::make_error_code(std::errc::device_or_resource_busy);
}

/// Takes over the owner and the permissions, before there is a byte that others should not read.
std::error_code Provisoire::heriter(const Etat& ancien) {
    // A file that cannot be given away stays with whoever has made it.
    static_cast<void>(appels_.leguer(cible_, fichier_.poignee()));
    Etat neuf;
    if (const auto erreur = appels_.etat(fichier_.poignee(), neuf))
        return erreur;
    if (neuf.droits == ancien.droits)
        return {};
    const auto erreur = appels_.changerdroits(fichier_.poignee(), ancien.droits);
    return sanscetappel(erreur) ? std::error_code() : erreur;
}

std::error_code Provisoire::remplir(std::string_view octets) {
    while (!octets.empty()) {
        std::size_t ecrits = 0;
        if (const auto erreur = appels_.ecrire(fichier_.poignee(), octets, ecrits))
            return erreur;
        if (ecrits == 0)
            return std::make_error_code(std::errc::no_space_on_device);
        octets.remove_prefix(ecrits);
    }
    return {};
}

std::error_code Provisoire::placer() {
    auto erreur = appels_.synchroniser(fichier_.poignee());
    if (!erreur)
        erreur = appels_.renommer(chemin_, cible_);
    if (!erreur)
        achever();
    return erreur;
}

std::error_code Provisoire::placerneuf() {
    auto erreur = appels_.synchroniser(fichier_.poignee());
    if (!erreur)
        erreur = nommer();
    if (!erreur)
        achever();
    return erreur;
}

/// Gives the file its name, unless something has it.
std::error_code Provisoire::nommer() {
    auto erreur = appels_.nommer(chemin_, cible_);
    if (erreur != std::errc::invalid_argument && !sanscetappel(erreur))
        return erreur;
    // A disk that cannot: a second name, then the first one goes, or is left to the next change.
    erreur = appels_.doubler(chemin_, cible_);
    if (!erreur) {
        static_cast<void>(appels_.supprimer(chemin_));
        return {};
    }
    Etat etat;
    if (erreur == std::errc::file_exists || !appels_.etat(cible_, etat))
        return std::make_error_code(std::errc::file_exists);
    return appels_.renommer(chemin_, cible_);
}

void Provisoire::achever() {
    chemin_.clear();
    // The change is made: a folder that cannot be synchronised takes nothing back.
    static_cast<void>(appels_.synchroniserdossier(cible_.parent_path()));
}

std::error_code Provisoire::retirer() {
    const auto erreur = chemin_.empty() ? std::error_code() : appels_.supprimer(chemin_);
    chemin_.clear();
    return erreur;
}

std::error_code poser(Appels& appels, const fs::path& cible, std::string_view octets, bool neuf) {
    Provisoire provisoire(appels);
    auto erreur = provisoire.creer(cible);
    if (!erreur)
        erreur = provisoire.remplir(octets);
    if (!erreur)
        erreur = neuf ? provisoire.placerneuf() : provisoire.placer();
    return erreur;
}

}  // namespace common
