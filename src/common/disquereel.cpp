#include "disquereel.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

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

bool finitenmilieu(int numero, off_t taille) {
    char dernier = '\n';
    return taille > 0 && ::pread(numero, &dernier, 1, taille - 1) == 1 && dernier != '\n';
}

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

std::error_code DisqueReel::ajouter(std::string_view chemin, std::string_view octets) {
    const Descripteur fichier(systeme(chemin), O_RDWR | O_APPEND | O_CREAT);
    if (!fichier.valide())
        return derniere();
    // Another copy of the program may be appending: the lock keeps a failed write from cutting its
    // rows when the file is put back to its size.
    if (::flock(fichier.numero(), LOCK_EX) != 0)
        return derniere();
    struct stat etat {};
    if (::fstat(fichier.numero(), &etat) != 0)
        return derniere();
    const std::string lignes = octets.empty() || !finitenmilieu(fichier.numero(), etat.st_size)
                                   ? std::string(octets)
                                   : "\r\n" + std::string(octets);
    auto erreur = ecrire(fichier.numero(), lignes);
    if (!erreur && !lignes.empty() && ::fdatasync(fichier.numero()) != 0 && errno != EINVAL)
        erreur = derniere();
    if (erreur && ::ftruncate(fichier.numero(), etat.st_size) != 0)
        return erreur;
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
