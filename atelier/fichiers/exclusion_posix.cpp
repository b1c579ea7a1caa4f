#include "exclusion.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace atelier {
namespace {

std::error_code derniere() {
    return {errno, std::generic_category()};
}

int ouvrir(const std::filesystem::path& dossier) {
    return ::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

}  // namespace

Exclusion::Exclusion(const std::filesystem::path& dossier, std::error_code& erreur)
    : poignee_(ouvrir(dossier)) {
    erreur.clear();
    const auto numero = static_cast<int>(poignee_);
    if (numero < 0 || ::flock(numero, LOCK_EX | LOCK_NB) != 0)
        erreur = derniere();
}

Exclusion::~Exclusion() {
    if (poignee_ >= 0)
        ::close(static_cast<int>(poignee_));
}

std::error_code abriter(const std::filesystem::path& dossier) {
    const int numero = ouvrir(dossier);
    if (numero < 0)
        return derniere();
    const auto erreur = ::syncfs(numero) != 0 ? derniere() : std::error_code();
    ::close(numero);
    return erreur;
}

}  // namespace atelier
