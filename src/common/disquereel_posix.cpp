// The calls of the real disk on a POSIX system.

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "appels.h"
#include "disque.h"

namespace common {
namespace {

constexpr mode_t modeneuf = 0666;
constexpr mode_t modedossier = 0777;
constexpr mode_t bitsdemode = 07777;
constexpr auto meme = static_cast<uid_t>(-1);  // no change of owner

std::error_code derniere() {
    if (errno == EDQUOT)  // which the standard library has no name for
        return Ennui::PartPleine;
    return {errno, std::generic_category()};
}

/// The outcome of a call that answers 0 when it went well.
std::error_code issue(int reponse) {
    return reponse == 0 ? std::error_code() : derniere();
}

/// Makes a call again as long as a signal breaks it off.
template <class Appel>
auto recommencer(const Appel& appel) {
    auto reponse = appel();
    while (reponse < 0 && errno == EINTR)
        reponse = appel();
    return reponse;
}

int numero(Poignee poignee) {
    return static_cast<int>(poignee);
}

Etat traduire(const struct stat& lu) {
    Etat etat;
    if (S_ISREG(lu.st_mode))
        etat.genre = Genre::Fichier;
    else if (S_ISDIR(lu.st_mode))
        etat.genre = Genre::Dossier;
    etat.disque = static_cast<std::uint64_t>(lu.st_dev);
    etat.numero = static_cast<std::uint64_t>(lu.st_ino);
    etat.taille = static_cast<std::uint64_t>(lu.st_size);
    etat.droits = lu.st_mode & bitsdemode;
    return etat;
}

int modes(Ouverture mode) {
    // A pipe without a partner would make the opening wait, and a terminal would adopt the program.
    constexpr int toujours = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    switch (mode) {
        case Ouverture::Lecture:
            return O_RDONLY | toujours;
        case Ouverture::Modification:
            return O_RDWR | toujours;
        case Ouverture::Ajout:
            return O_RDWR | O_APPEND | toujours;
        case Ouverture::Creation:
            break;
    }
    return O_RDWR | O_CREAT | O_EXCL | toujours;
}

class AppelsPosix : public Appels {
  public:
    std::error_code ouvrir(const Chemin& chemin, Ouverture mode, Poignee& poignee) override {
        const int n = recommencer([&] { return ::open(chemin.c_str(), modes(mode), modeneuf); });
        if (n < 0)
            return derniere();
        poignee = n;
        return {};
    }

    void fermer(Poignee poignee) override { ::close(numero(poignee)); }

    std::error_code lire(Poignee poignee, std::span<char> tampon, std::size_t& lus) override {
        const auto n =
            recommencer([&] { return ::read(numero(poignee), tampon.data(), tampon.size()); });
        if (n < 0)
            return derniere();
        lus = static_cast<std::size_t>(n);
        return {};
    }

    std::error_code ecrire(Poignee poignee, std::string_view octets, std::size_t& ecrits) override {
        const auto n =
            recommencer([&] { return ::write(numero(poignee), octets.data(), octets.size()); });
        if (n < 0)
            return derniere();
        ecrits = static_cast<std::size_t>(n);
        return {};
    }

    std::error_code placer(Poignee poignee, std::uint64_t place) override {
        const auto ou = ::lseek(numero(poignee), static_cast<off_t>(place), SEEK_SET);
        return ou < 0 ? derniere() : std::error_code();
    }

    std::error_code couper(Poignee poignee, std::uint64_t taille) override {
        return issue(
            recommencer([&] { return ::ftruncate(numero(poignee), static_cast<off_t>(taille)); }));
    }

    std::error_code synchroniser(Poignee poignee) override {
        const int n = recommencer([&] { return ::fsync(numero(poignee)); });
        return n != 0 && errno == EINVAL ? std::error_code() : issue(n);  // a disk without it
    }

    std::error_code synchroniserdossier(const Chemin& dossier) override {
        const int n =
            ::open(dossier.empty() ? "." : dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (n < 0)
            return derniere();
        const auto erreur = synchroniser(n);
        ::close(n);
        return erreur;
    }

    std::error_code etat(Poignee poignee, Etat& etat) override {
        struct stat lu = {};
        if (::fstat(numero(poignee), &lu) != 0)
            return derniere();
        etat = traduire(lu);
        return {};
    }

    std::error_code etat(const Chemin& chemin, Etat& etat) override {
        struct stat lu = {};
        if (::stat(chemin.c_str(), &lu) != 0)
            return derniere();
        etat = traduire(lu);
        return {};
    }

    std::error_code lien(const Chemin& chemin, Chemin& cible) override {
        cible.clear();
        std::error_code erreur;
        if (std::filesystem::is_symlink(std::filesystem::symlink_status(chemin, erreur)))
            cible = std::filesystem::read_symlink(chemin, erreur);
        return erreur == std::errc::no_such_file_or_directory ? std::error_code() : erreur;
    }

    std::error_code leguer(const Chemin& modele, Poignee neuf) override {
        struct stat lu = {};
        if (::stat(modele.c_str(), &lu) != 0)
            return derniere();
        // Only the system's administrator may give a file away; another can leave it to a group of
        // his own.
        if (::fchown(numero(neuf), lu.st_uid, lu.st_gid) == 0)
            return {};
        return issue(::fchown(numero(neuf), meme, lu.st_gid));
    }

    std::error_code changerdroits(Poignee poignee, std::uint32_t droits) override {
        return issue(::fchmod(numero(poignee), droits));
    }

    std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) override {
        return issue(::rename(ancien.c_str(), nouveau.c_str()));
    }

    std::error_code echanger(const Chemin& un, const Chemin& autre) override {
        return issue(::renameat2(AT_FDCWD, un.c_str(), AT_FDCWD, autre.c_str(), RENAME_EXCHANGE));
    }

    std::error_code nommer(const Chemin& ancien, const Chemin& nouveau) override {
        return issue(
            ::renameat2(AT_FDCWD, ancien.c_str(), AT_FDCWD, nouveau.c_str(), RENAME_NOREPLACE));
    }

    std::error_code doubler(const Chemin& ancien, const Chemin& nouveau) override {
        return issue(::link(ancien.c_str(), nouveau.c_str()));
    }

    std::error_code supprimer(const Chemin& chemin) override {
        return issue(::remove(chemin.c_str()));
    }

    std::error_code creerdossier(const Chemin& chemin) override {
        return issue(::mkdir(chemin.c_str(), modedossier));
    }

    std::error_code lister(const Chemin& dossier, std::vector<Chemin>& noms) override {
        std::error_code erreur;
        const std::filesystem::directory_iterator fin;
        for (std::filesystem::directory_iterator i(dossier.empty() ? "." : dossier, erreur);
             !erreur && i != fin; i.increment(erreur))
            noms.push_back(i->path().filename());
        return erreur;
    }

    std::error_code verrouiller(Poignee poignee, bool& pris) override {
        const int n = recommencer([&] { return ::flock(numero(poignee), LOCK_EX | LOCK_NB); });
        pris = n == 0;
        return pris || errno == EWOULDBLOCK ? std::error_code() : derniere();
    }

    std::int64_t programme() override { return ::getpid(); }

    std::int64_t maintenant() override {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    }

    void attendre(std::int64_t millisecondes) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(millisecondes));
    }
};

}  // namespace

Appels& appelsdusysteme() {
    static AppelsPosix appels;
    return appels;
}

}  // namespace common
