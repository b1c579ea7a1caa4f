#include "tableau.h"

#include <algorithm>

namespace menu {

std::vector<Liste> listesdupanneau(std::string_view cle, std::string_view personnel) {
    std::vector<Liste> listes;
    if (const auto* trouve = panneau(cle)) {
        for (const auto& rangee : trouve->rangees)
            listes.push_back({std::string(rangee.fichier), rangee.parties});
    }
    if (cle == panneaupersonnel)
        listes.push_back({std::string(personnel), 0});
    return listes;
}

std::size_t boutondepartie(std::string_view cle, std::size_t rangee) {
    constexpr std::string_view panneauserre = "bt";
    const auto* trouve = panneau(cle);
    if (trouve == nullptr || cle != panneauserre)
        return rangee;
    const auto avant = trouve->rangees.first(std::min(rangee, trouve->rangees.size()));
    return static_cast<std::size_t>(
        std::count_if(avant.begin(), avant.end(), [](const Rangee& r) { return r.parties > 0; }));
}

std::optional<std::size_t> rangeedepartie(std::string_view cle, std::span<const Liste> listes,
                                          std::size_t index, std::size_t partie) {
    for (std::size_t r = 0; r < listes.size(); ++r) {
        if (listes[r].parties > partie && boutondepartie(cle, r) == index)
            return r;
    }
    return std::nullopt;
}

}  // namespace menu
