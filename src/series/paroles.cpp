#include "paroles.h"

#include <algorithm>
#include <array>
#include <span>

namespace series {
namespace {

namespace c = ui::couleurs;

struct Sens {
    ui::Couleur couleur;
    std::string_view paroles;
};

constexpr std::array ouvert{
    Sens{c::juste, "Tirage en cours"},
};
constexpr std::array corrige{
    Sens{c::juste, "Solution"},
    Sens{c::faux, "Faux"},
    Sens{c::incomplet, "Incomplet"},
};
constexpr std::array reponse{
    Sens{c::courante, "Réponse en cours"},
    Sens{c::juste, "Juste"},
    Sens{c::faux, "Faux"},
    Sens{c::tirageaurepos, "Mot attendu"},
};
constexpr std::array horloge{
    Sens{c::juste, "Arrêté"},
};

std::string_view chercher(std::span<const Sens> table, ui::Couleur fond) {
    const auto trouve = std::find_if(table.begin(), table.end(),
                                     [fond](const Sens& sens) { return sens.couleur == fond; });
    return trouve == table.end() ? std::string_view() : trouve->paroles;
}

}  // namespace

std::string_view parolesdutirage(ui::Couleur fond, bool serieouverte) {
    return serieouverte ? chercher(ouvert, fond) : chercher(corrige, fond);
}

std::string_view parolesdelareponse(ui::Couleur fond) {
    return chercher(reponse, fond);
}

std::string_view parolesdelhorloge(ui::Couleur fond) {
    return chercher(horloge, fond);
}

}  // namespace series
