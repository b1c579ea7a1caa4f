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
    auto* dedans = ligne.trouve ? tirages_.chercher(ligne.identifiant) : nullptr;
    if (ligne.trouve && dedans == nullptr)
        return;
    auto& place = ligne.trouve ? *dedans : tirages_.ranger(ligne.identifiant);
    place.liste = listes_.ranger(ligne.liste);
    if (!ligne.trouve) {
        place.palier = 0;
        place.jour = ligne.jour + paliers.front();
    } else if (ligne.jour >= place.jour) {
        place.palier = static_cast<std::uint16_t>(
            std::min<std::size_t>(place.palier + std::size_t{1}, paliers.size() - 1));
        place.jour = ligne.jour + intervalle(place.palier, ligne.identifiant);
    }
}

std::vector<Echeance> Echelle::dues(Jour jour) const {
    std::vector<Echeance> dues;
    tirages_.chaque([&](std::string_view identifiant, const Place& place) {
        if (place.jour <= jour)
            dues.push_back({place.jour, place.palier, identifiant, listes_.nom(place.liste)});
    });
    std::sort(dues.begin(), dues.end(), [](const Echeance& a, const Echeance& b) {
        return std::tie(a.jour, a.palier, a.identifiant) <
               std::tie(b.jour, b.palier, b.identifiant);
    });
    return dues;
}

std::array<std::size_t, paliers.size()> Echelle::parpalier() const {
    std::array<std::size_t, paliers.size()> nombres{};
    tirages_.chaque([&](std::string_view, const Place& place) { ++nombres.at(place.palier); });
    return nombres;
}

std::vector<std::size_t> Echelle::prevoir(Jour jour, std::size_t suivants) const {
    std::vector<std::size_t> nombres(suivants + 1);
    tirages_.chaque([&](std::string_view, const Place& place) {
        const auto dans = std::max<std::int64_t>(0, std::int64_t{place.jour} - jour);
        if (dans <= static_cast<std::int64_t>(suivants))
            ++nombres[static_cast<std::size_t>(dans)];
    });
    return nombres;
}

}  // namespace carnet
