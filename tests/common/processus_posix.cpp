#include "processus.h"

#include <array>
#include <chrono>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "dossiertemporaire.h"

namespace essais {
namespace {

int attendreprogramme(pid_t pid) {
    int statut = -1;
    ::waitpid(pid, &statut, 0);
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
}

/// In a copy of this program: becomes another one.
[[noreturn]] void devenir(const std::string& programme, const Mots& arguments,
                          const std::filesystem::path& ici, const DossierTemporaire& flux) {
    constexpr int echec = 99;
    std::vector<char*> mots{const_cast<char*>(programme.c_str())};
    for (const auto& argument : arguments)
        mots.push_back(const_cast<char*>(argument.c_str()));
    mots.push_back(nullptr);
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    if (::chdir(ici.c_str()) == 0 &&
        std::freopen((flux.chemin() / "sortie").c_str(), "w", stdout) != nullptr &&
        std::freopen((flux.chemin() / "erreurs").c_str(), "w", stderr) != nullptr)
        ::execv(programme.c_str(), mots.data());
    ::_exit(echec);
}

}  // namespace

Enfant::Enfant(Action action, const Mots& mots) : programme_(::fork()) {
    // A fault may not go back to the tests, which would run on in this copy.
    if (programme_ == 0)
        ::_exit([&]() noexcept { return action(mots); }());
}

Enfant::~Enfant() {
    if (programme_ > 0)
        static_cast<void>(attendre());
}

int Enfant::attendre() {
    const auto statut = attendreprogramme(static_cast<pid_t>(programme_));
    programme_ = -1;
    return statut;
}

int encopie(const std::function<int()>& action) {
    const auto pid = ::fork();
    if (pid == 0)
        ::_exit([&]() noexcept { return action(); }());
    return attendreprogramme(pid);
}

bool copiable() {
    return true;
}

void mourir(int statut) {
    ::_exit(statut);
}

bool mort() {
    return false;
}

std::size_t memoire() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

Fin lancer(const std::string& programme, const Mots& arguments, const std::filesystem::path& ici) {
    const DossierTemporaire flux;
    const auto pid = ::fork();
    if (pid == 0)
        devenir(programme, arguments, ici, flux);
    const int etat = attendreprogramme(pid);
    return {etat, flux.lire("sortie"), flux.lire("erreurs")};
}

}  // namespace essais
