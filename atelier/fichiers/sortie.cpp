#include "sortie.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "faute.h"
#include "fichier.h"
#include "listes.h"

namespace atelier {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view action = "Installation des listes";
/// Where the new files wait until all are there.
constexpr std::string_view attente = ".nouvelles-listes";

std::error_code derniere() {
    return {errno, std::generic_category()};
}

[[noreturn]] void faute(const fs::path& chemin, const std::error_code& erreur) {
    throw common::Faute(common::rapportfichier(action, chemin.string(), common::raison(erreur)));
}

void verifier(const fs::path& chemin, const std::error_code& erreur) {
    if (erreur)
        faute(chemin, erreur);
}

class Descripteur {
  public:
    explicit Descripteur(int numero) : numero_(numero) {}
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    ~Descripteur() {
        if (numero_ >= 0)
            ::close(numero_);
    }
    [[nodiscard]] int numero() const { return numero_; }

  private:
    int numero_;
};

/// The waiting folder: empty at first, gone at the end, whatever happens.
class Attente {
  public:
    explicit Attente(const fs::path& dossier)
        : verrou_(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
          chemin_(dossier / attente) {
        if (verrou_.numero() < 0)
            faute(dossier, derniere());
        if (::flock(verrou_.numero(), LOCK_EX | LOCK_NB) != 0)
            throw common::Faute(common::rapportfichier(action, dossier.string(),
                                                       "une autre fabrication y est en cours"));
        fs::remove_all(chemin_);
        std::error_code erreur;
        fs::create_directory(chemin_, erreur);
        verifier(chemin_, erreur);
    }
    Attente(const Attente&) = delete;
    Attente& operator=(const Attente&) = delete;
    ~Attente() {
        std::error_code oubli;  // the next run clears what is left
        fs::remove_all(chemin_, oubli);
    }
    [[nodiscard]] const fs::path& chemin() const { return chemin_; }

  private:
    Descripteur verrou_;
    fs::path chemin_;
};

void deplacer(const fs::path& source, const fs::path& cible) {
    std::error_code erreur;
    fs::rename(source, cible, erreur);
    verifier(cible, erreur);
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
void echanger(const fs::path& nouveau, const fs::path& place) {
    if (!fs::exists(place)) {
        deplacer(nouveau, place);
        return;
    }
    if (::renameat2(AT_FDCWD, nouveau.c_str(), AT_FDCWD, place.c_str(), RENAME_EXCHANGE) == 0)
        return;
    // A disk that cannot exchange: the old folder steps aside first, and comes back on a failure.
    auto ancien = nouveau;
    ancien += "-anciennes";
    deplacer(place, ancien);
    std::error_code erreur;
    fs::rename(nouveau, place, erreur);
    if (!erreur)
        return;
    std::error_code oubli;  // the reason to tell is the first one
    fs::rename(ancien, place, oubli);
    faute(place, erreur);
}

}  // namespace

std::error_code ecrirefichier(const fs::path& chemin, std::string_view octets) {
    const Descripteur fichier(
        ::open(chemin.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (fichier.numero() < 0)
        return derniere();
    while (!octets.empty()) {
        const auto n = ::write(fichier.numero(), octets.data(), octets.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return derniere();
        octets.remove_prefix(static_cast<std::size_t>(n));
    }
    return {};
}

std::error_code abriter(const fs::path& dossier) {
    const Descripteur ouvert(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return ouvert.numero() < 0 || ::syncfs(ouvert.numero()) != 0 ? derniere() : std::error_code();
}

void installer(const std::vector<Fichier>& fichiers, const fs::path& dossier, const Ecrire& ecrire,
               const Abriter& mettrealabri) {
    std::error_code erreur;
    fs::create_directories(dossier, erreur);
    verifier(dossier, erreur);
    const Attente neufs(dossier);
    for (const auto& fichier : fichiers) {
        const auto chemin = neufs.chemin() / fichier.chemin;
        fs::create_directories(chemin.parent_path(), erreur);
        verifier(chemin.parent_path(), erreur);
        verifier(dossier / fichier.chemin, ecrire(chemin, fichier.octets));
    }
    const fs::path listes(common::dossierlistes);
    const bool deslistes = fs::exists(neufs.chemin() / listes);
    if (deslistes)
        reprendre(dossier / listes, neufs.chemin() / listes);
    verifier(dossier, mettrealabri(neufs.chemin()));
    if (deslistes)
        echanger(neufs.chemin() / listes, dossier / listes);
    for (const auto& fichier : fichiers) {
        const fs::path chemin(fichier.chemin);
        if (*chemin.begin() == listes)
            continue;
        fs::create_directories((dossier / chemin).parent_path(), erreur);
        verifier((dossier / chemin).parent_path(), erreur);
        deplacer(neufs.chemin() / chemin, dossier / chemin);
    }
    // The files are in place: names that cannot be brought onto the disk take nothing back.
    static_cast<void>(mettrealabri(dossier));
}

}  // namespace atelier
