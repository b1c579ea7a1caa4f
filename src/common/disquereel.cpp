#include "disquereel.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace common {
namespace {

std::error_code derniere() {
    return {errno, std::generic_category()};
}

/// A file descriptor that closes itself.
class Descripteur {
  public:
    Descripteur(const std::filesystem::path& chemin, int modes)
        : numero_(::open(chemin.c_str(), modes | O_CLOEXEC, 0666)) {}
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    ~Descripteur() {
        if (numero_ >= 0)
            ::close(numero_);
    }
    [[nodiscard]] bool valide() const { return numero_ >= 0; }
    [[nodiscard]] int numero() const { return numero_; }

  private:
    int numero_;
};

class FluxReel : public Flux {
  public:
    explicit FluxReel(const std::filesystem::path& chemin) : fichier_(chemin, O_RDONLY) {}
    [[nodiscard]] bool ouvert() const { return fichier_.valide(); }
    [[nodiscard]] std::error_code lire(std::span<char> tampon, std::size_t& lus) override {
        ssize_t n = -1;
        do {
            n = ::read(fichier_.numero(), tampon.data(), tampon.size());
        } while (n < 0 && errno == EINTR);
        if (n < 0)
            return derniere();
        lus = static_cast<std::size_t>(n);
        return {};
    }

  private:
    Descripteur fichier_;
};

/// One write of all bytes; a short write counts as a full disk.
std::error_code ecrire(int numero, std::string_view octets) {
    if (octets.empty())
        return {};
    const auto n = ::write(numero, octets.data(), octets.size());
    if (n < 0)
        return derniere();
    if (static_cast<std::size_t>(n) != octets.size())
        return std::make_error_code(std::errc::no_space_on_device);
    return {};
}

/// What has to come between the end of a file and a new line.
std::string_view soudure(int numero, off_t taille) {
    char dernier = '\n';
    if (taille == 0 || ::pread(numero, &dernier, 1, taille - 1) != 1 || dernier == '\n')
        return {};
    constexpr std::string_view fin = "\r\n";
    return dernier == '\r' ? fin.substr(1) : fin;
}

bool verrouille(int numero) {
    int statut = -1;
    do {
        statut = ::flock(numero, LOCK_EX);
    } while (statut != 0 && errno == EINTR);
    return statut == 0;
}

/// The file of a descriptor is the one that bears the name by now.
bool nommeencore(int numero, const std::filesystem::path& chemin) {
    struct stat tenu = {};
    struct stat nomme = {};
    return ::fstat(numero, &tenu) == 0 && ::stat(chemin.c_str(), &nomme) == 0 &&
           tenu.st_dev == nomme.st_dev && tenu.st_ino == nomme.st_ino;
}

/// Opens a file or a folder and keeps the other copies of the program from it. Whoever held it may
/// have put another in its place meanwhile: it is that one which is wanted. Some disks have no
/// locks; what they hold is not kept. Null, with the reason in `errno`, if it cannot be opened.
std::unique_ptr<Descripteur> tenir(const std::filesystem::path& chemin, int modes) {
    constexpr int essais = 10'000;  // a disk might number its files anew each time
    std::unique_ptr<Descripteur> tenu;
    for (int n = 0; n < essais; ++n) {
        tenu = std::make_unique<Descripteur>(chemin, modes);
        if (!tenu->valide())
            return nullptr;
        if (!verrouille(tenu->numero()) || nommeencore(tenu->numero(), chemin))
            break;
    }
    return tenu;
}

class VerrouReel : public Verrou {
  public:
    explicit VerrouReel(std::unique_ptr<Descripteur> tenu) : tenu_(std::move(tenu)) {}

  private:
    std::unique_ptr<Descripteur> tenu_;
};

}  // namespace

std::filesystem::path DisqueReel::systeme(std::string_view chemin) const {
    std::string texte(chemin);
    std::replace(texte.begin(), texte.end(), '\\', '/');
    const std::filesystem::path relatif(std::u8string(texte.begin(), texte.end()));
    return racine_.empty() ? relatif : racine_ / relatif;
}

std::error_code DisqueReel::ouvrir(std::string_view chemin, std::unique_ptr<Flux>& flux) {
    auto fichier = std::make_unique<FluxReel>(systeme(chemin));
    if (!fichier->ouvert())
        return derniere();
    if (estdossier(chemin))
        return std::make_error_code(std::errc::is_a_directory);
    flux = std::move(fichier);
    return {};
}

std::unique_ptr<Verrou> DisqueReel::verrouiller(std::string_view chemin) {
    auto tenu = tenir(systeme(chemin), O_RDONLY);
    if (tenu == nullptr && errno == ENOENT)
        return nullptr;
    return std::make_unique<VerrouReel>(std::move(tenu));
}

std::error_code DisqueReel::ajouter(std::string_view chemin, std::string_view octets) {
    const auto cible = systeme(chemin);
    const bool nouveau = !existe(chemin);
    // The lock keeps a failed write from cutting the rows of another copy of the program when the
    // file is put back to its size.
    const auto fichier = tenir(cible, O_RDWR | O_APPEND | O_CREAT);
    if (fichier == nullptr)
        return derniere();
    struct stat etat = {};
    if (::fstat(fichier->numero(), &etat) != 0)
        return derniere();
    if (octets.empty())
        return {};
    const auto lignes = std::string(soudure(fichier->numero(), etat.st_size)).append(octets);
    auto erreur = ecrire(fichier->numero(), lignes);
    if (!erreur && ::fdatasync(fichier->numero()) != 0 && errno != EINVAL)
        erreur = derniere();
    if (!erreur)
        return {};
    if (::ftruncate(fichier->numero(), etat.st_size) != 0)
        return derniere();
    if (nouveau && etat.st_size == 0)
        static_cast<void>(supprimer(chemin));
    return erreur;
}

std::error_code DisqueReel::remplacer(std::string_view chemin, std::string_view octets) {
    const auto cible = systeme(chemin);
    auto provisoire = cible;
    provisoire += "." + std::to_string(::getpid()) + ".tmp";
    std::error_code erreur;
    {
        const Descripteur fichier(provisoire, O_WRONLY | O_CREAT | O_TRUNC);
        if (!fichier.valide())
            return derniere();
        erreur = ecrire(fichier.numero(), octets);
        if (!erreur && ::fsync(fichier.numero()) != 0 && errno != EINVAL)
            erreur = derniere();
    }
    if (!erreur)
        std::filesystem::rename(provisoire, cible, erreur);
    if (erreur) {
        std::error_code oubli;  // the reason to tell is the first one
        std::filesystem::remove(provisoire, oubli);
    }
    return erreur;
}

std::error_code DisqueReel::creerdossier(std::string_view chemin) {
    std::error_code erreur;
    std::filesystem::create_directory(systeme(chemin), erreur);
    return erreur;
}

std::error_code DisqueReel::supprimer(std::string_view chemin) {
    std::error_code erreur;
    if (!std::filesystem::remove(systeme(chemin), erreur) && !erreur)
        erreur = std::make_error_code(std::errc::no_such_file_or_directory);
    return erreur;
}

std::error_code DisqueReel::renommer(std::string_view ancien, std::string_view nouveau) {
    std::error_code erreur;
    std::filesystem::rename(systeme(ancien), systeme(nouveau), erreur);
    return erreur;
}

bool DisqueReel::existe(std::string_view chemin) {
    std::error_code erreur;
    return std::filesystem::exists(systeme(chemin), erreur);
}

bool DisqueReel::estdossier(std::string_view chemin) {
    std::error_code erreur;
    return std::filesystem::is_directory(systeme(chemin), erreur);
}

}  // namespace common
