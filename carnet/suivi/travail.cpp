#include "travail.h"

#include <algorithm>
#include <tuple>

namespace carnet {
namespace {

/// Nearer to the head of the hardest racks.
bool plusdur(const Tiragedur& a, const Tiragedur& b) {
    // With as many misses the smaller share found is that of the rack seen less often.
    return std::tie(b.manques, a.vus, b.dernier, a.identifiant) <
           std::tie(a.manques, b.vus, a.dernier, b.identifiant);
}

}  // namespace

void Travail::prendre(const profiles::Lignejournal& ligne) {
    auto& journee = journees_[ligne.jour];
    ++journee.juges;
    auto& compte = tirages_.ranger(ligne.identifiant);
    ++compte.vus;
    if (ligne.trouve)
        ++journee.trouves;
    else
        ++compte.manques;
    compte.dernier = ligne.jour;
    compte.liste = listes_.ranger(ligne.liste);
}

std::vector<Tiragedur> Travail::durs(std::size_t nombre) const {
    std::vector<Tiragedur> durs;
    tirages_.chaque([&](std::string_view identifiant, const Compte& compte) {
        if (compte.manques > 0)
            durs.push_back({identifiant, listes_.nom(compte.liste), compte.vus, compte.manques,
                            compte.dernier});
    });
    const auto fin = durs.begin() + static_cast<std::ptrdiff_t>(std::min(nombre, durs.size()));
    std::partial_sort(durs.begin(), fin, durs.end(), plusdur);
    durs.erase(fin, durs.end());
    return durs;
}

}  // namespace carnet
