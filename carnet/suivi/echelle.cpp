#include "echelle.h"

#include <algorithm>
#include <tuple>

namespace carnet {
namespace {

constexpr int premieretale = 7;  // days of the first step that is spread
constexpr int fraction = 10;

}  // namespace

int intervalle(std::size_t palier, std::string_view identifiant) {
    const int jours = paliers.at(palier);
    if (jours < premieretale)
        return jours;
    const auto marge = static_cast<std::uint64_t>(jours / fraction);
    const auto ecart = static_cast<int>(fnv1a(identifiant) % (2 * marge + 1));
    return jours + ecart - static_cast<int>(marge);
}

void Echelle::prendre(const profiles::Lignejournal& ligne) {
    auto trouve = racks_.find(ligne.identifiant);
    if (trouve == racks_.end()) {
        if (ligne.trouve)
            return;
        trouve = racks_.emplace(ligne.identifiant, Place{}).first;
    }
    auto& place = trouve->second;
    place.liste = ranger(ligne.liste);
    if (!ligne.trouve) {
        place.palier = 0;
        place.jour = ligne.jour + paliers.front();
    } else if (ligne.jour >= place.jour) {
        place.palier = static_cast<std::uint16_t>(
            std::min<std::size_t>(place.palier + std::size_t{1}, paliers.size() - 1));
        place.jour = ligne.jour + intervalle(place.palier, ligne.identifiant);
    }
}

/// The place of a list's name. A series is of one list.
std::uint32_t Echelle::ranger(std::string_view liste) {
    if (derniere_ < listes_.size() && listes_[derniere_] == liste)
        return derniere_;
    auto rang = rangs_.find(liste);
    if (rang == rangs_.end()) {
        rang = rangs_.emplace(liste, static_cast<std::uint32_t>(listes_.size())).first;
        listes_.emplace_back(liste);
    }
    return derniere_ = rang->second;
}

std::vector<Echeance> Echelle::dues(Jour jour) const {
    std::vector<Echeance> dues;
    for (const auto& [identifiant, place] : racks_) {
        if (place.jour <= jour)
            dues.push_back({place.jour, place.palier, identifiant, listes_[place.liste]});
    }
    std::sort(dues.begin(), dues.end(), [](const Echeance& a, const Echeance& b) {
        return std::tie(a.jour, a.palier, a.identifiant) <
               std::tie(b.jour, b.palier, b.identifiant);
    });
    return dues;
}

}  // namespace carnet
