#include "processus.h"

#include "appels.h"

namespace essais {

int enfant(Action action, const Mots& mots) {
    return Enfant(action, mots).attendre();
}

void attendrefichier(const std::filesystem::path& chemin) {
    while (!std::filesystem::exists(chemin))
        common::appelsdusysteme().attendre(1);
}

}  // namespace essais
