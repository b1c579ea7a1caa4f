#include "couleurs.h"

#include <algorithm>
#include <array>

namespace profiles {
namespace {

constexpr std::array lescouleurs{
    Couleurdufond{couleurpardefaut, ui::couleurs::parDefaut},
    Couleurdufond{"Jaune", ui::Couleur{0xFFFF80}},
    Couleurdufond{"Orange", ui::Couleur{0xFFC080}},
    Couleurdufond{"Vert", ui::Couleur{0x80FF80}},
    Couleurdufond{"Bleu", ui::Couleur{0xC0C0FF}},
    Couleurdufond{"Gris", ui::Couleur{0xE0E0E0}},
};

}  // namespace

std::span<const Couleurdufond> couleursdufond() {
    return lescouleurs;
}

ui::Couleur couleurdufond(std::string_view nom) {
    const auto* trouvee = std::find_if(lescouleurs.begin(), lescouleurs.end(),
                                       [&](const Couleurdufond& c) { return c.nom == nom; });
    return trouvee == lescouleurs.end() ? ui::couleurs::parDefaut : trouvee->couleur;
}

}  // namespace profiles
