// Where a POSIX system with the folders of XDG keeps what is a player's.

#include "lieux.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace installation {

Environs environs(const std::filesystem::path& programme) {
    const char* maison = std::getenv("HOME");
    if (maison == nullptr)
        if (const auto* compte = ::getpwuid(::getuid()))
            maison = compte->pw_dir;
    return {programme, donneesxdg(std::getenv("XDG_DATA_HOME"), maison),
            "HOME n'est pas un dossier"};
}

}  // namespace installation
