#include "tableau.h"

#include <algorithm>

namespace menu {

std::vector<Liste> listesdupanneau(const Panneau& panneau, std::string_view personnel) {
    std::vector<Liste> listes;
    for (const auto& rangee : panneau.rangees)
        listes.push_back({std::string(rangee.fichier), rangee.parties});
    if (panneau.personnel)
        listes.push_back({std::string(personnel), 0});
    return listes;
}

std::size_t boutondepartie(const Panneau& panneau, std::size_t rangee) {
    if (!panneau.partiesserrees)
        return rangee;
    const auto avant = panneau.rangees.first(std::min(rangee, panneau.rangees.size()));
    return static_cast<std::size_t>(
        std::count_if(avant.begin(), avant.end(), [](const Rangee& r) { return r.parties > 0; }));
}

std::optional<std::size_t> rangeedepartie(const Panneau& panneau, std::size_t index,
                                          std::size_t partie) {
    for (std::size_t r = 0; r < panneau.rangees.size(); ++r) {
        if (panneau.rangees[r].parties > partie && boutondepartie(panneau, r) == index)
            return r;
    }
    return std::nullopt;
}

}  // namespace menu
