#include "dimensions.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace dialogs {
namespace {

/// A picture format: the first bytes of its files, and the places of width and height, four bytes
/// each.
struct Format {
    std::string_view signature;
    std::size_t largeur;
    std::size_t hauteur;
    bool grosboutiste;  ///< the first byte is the highest
};

constexpr std::array formats{
    Format{"\x89PNG\r\n\x1a\n", 16, 20, true},
    Format{"BM", 18, 22, false},
};
constexpr std::size_t tete = 26;

std::int32_t entier32(std::string_view octets, bool grosboutiste) {
    std::uint32_t valeur = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const auto octet = static_cast<unsigned char>(octets[grosboutiste ? i : 3 - i]);
        valeur = (valeur << 8U) | octet;
    }
    return static_cast<std::int32_t>(valeur);
}

std::string liretete(common::Disque& disque, std::string_view chemin) {
    std::unique_ptr<common::Flux> flux;
    if (disque.ouvrir(chemin, flux))
        return {};
    std::string octets(tete, '\0');
    std::size_t place = 0;
    std::size_t lus = 1;
    while (place < tete && lus > 0) {
        if (flux->lire(std::span(octets).subspan(place), lus))
            return {};
        place += lus;
    }
    octets.resize(place);
    return octets;
}

bool admise(std::int32_t cote) {
    return cote >= 1 && cote <= cotemaximal;
}

}  // namespace

std::optional<Dimensions> dimensions(common::Disque& disque, std::string_view chemin) {
    const auto octets = liretete(disque, chemin);
    if (octets.size() < tete)
        return std::nullopt;
    const std::string_view vue(octets);
    for (const auto& format : formats) {
        if (!vue.starts_with(format.signature))
            continue;
        const auto largeur = entier32(vue.substr(format.largeur, 4), format.grosboutiste);
        auto hauteur = entier32(vue.substr(format.hauteur, 4), format.grosboutiste);
        if (hauteur < 0 && hauteur >= -cotemaximal)  // a BMP whose first row is the top one
            hauteur = -hauteur;
        if (admise(largeur) && admise(hauteur))
            return Dimensions{largeur, hauteur};
    }
    return std::nullopt;
}

}  // namespace dialogs
