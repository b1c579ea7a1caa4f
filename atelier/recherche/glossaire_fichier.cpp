#include <algorithm>
#include <bit>
#include <concepts>
#include <cstring>

#include "glossaire.h"

namespace recherche {
namespace {

using atelier::Capitales;

// The file: a title, the number of words, the number of racks, the words, a sum of all before it.
// Numbers are little-endian.
constexpr std::string_view titre = "ORVMOTS1";
constexpr std::size_t tailletete = titre.size() + 2 * sizeof(std::uint32_t);
constexpr std::size_t taillemot = 16 + 3 * sizeof(std::uint32_t) + 2 * sizeof(std::uint16_t);
constexpr std::size_t taillesomme = sizeof(std::uint64_t);

/// A sum that another byte anywhere changes: FNV-1a on words of eight bytes, then on what is left.
std::uint64_t somme(std::string_view octets) {
    constexpr std::uint64_t premier = 0x100000001B3ULL;
    std::uint64_t s = 0xCBF29CE484222325ULL;
    while (octets.size() >= sizeof s) {
        std::uint64_t huit = 0;
        std::memcpy(&huit, octets.data(), sizeof huit);
        if constexpr (std::endian::native == std::endian::big)
            huit = __builtin_bswap64(huit);
        s = std::rotl((s ^ huit) * premier, 31);
        octets.remove_prefix(sizeof s);
    }
    for (const char octet : octets)
        s = (s ^ static_cast<unsigned char>(octet)) * premier;
    return s;
}

template <std::unsigned_integral Nombre>
void ecrire(std::string& octets, Nombre nombre) {
    for (std::size_t i = 0; i < sizeof nombre; ++i)
        octets += static_cast<char>((nombre >> (8 * i)) & 0xFFU);
}

template <std::unsigned_integral Nombre>
Nombre prendre(std::string_view& octets) {
    std::uint64_t nombre = 0;
    for (std::size_t i = 0; i < sizeof(Nombre); ++i)
        nombre |= std::uint64_t{static_cast<unsigned char>(octets[i])} << (8 * i);
    octets.remove_prefix(sizeof(Nombre));
    return static_cast<Nombre>(nombre);
}

/// A word that a list may hold.
bool valide(std::string_view mot) {
    return mot.size() >= atelier::longueurmin && mot.size() <= atelier::longueurmax &&
           std::all_of(mot.begin(), mot.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

Fiche prendrefiche(std::string_view& octets) {
    Fiche fiche;
    const auto mot = octets.substr(0, static_cast<unsigned char>(octets[atelier::longueurmax]));
    if (valide(mot))
        fiche.mot = Capitales(mot);
    octets.remove_prefix(16);
    fiche.tirage = prendre<std::uint32_t>(octets);
    fiche.devant = prendre<std::uint32_t>(octets);
    fiche.derriere = prendre<std::uint32_t>(octets);
    fiche.difficulte = static_cast<std::int16_t>(prendre<std::uint16_t>(octets));
    fiche.marques = prendre<std::uint16_t>(octets);
    return fiche;
}

}  // namespace

std::string Glossaire::octets() const {
    std::string octets;
    octets.reserve(tailletete + fiches_.size() * taillemot + taillesomme);
    octets += titre;
    ecrire(octets, static_cast<std::uint32_t>(fiches_.size()));
    ecrire(octets, static_cast<std::uint32_t>(tirages()));
    for (const auto& fiche : fiches_) {
        const auto texte = fiche.texte();
        octets += texte;
        octets.append(atelier::longueurmax - texte.size(), '\0');
        octets += static_cast<char>(texte.size());
        ecrire(octets, fiche.tirage);
        ecrire(octets, fiche.devant);
        ecrire(octets, fiche.derriere);
        ecrire(octets, static_cast<std::uint16_t>(fiche.difficulte));
        ecrire(octets, fiche.marques);
    }
    ecrire(octets, somme(octets));
    return octets;
}

std::optional<Glossaire> Glossaire::lire(std::string_view octets) {
    if (octets.size() < tailletete + taillesomme || !octets.starts_with(titre))
        return std::nullopt;
    auto fin = octets.substr(octets.size() - taillesomme);
    octets.remove_suffix(taillesomme);
    if (prendre<std::uint64_t>(fin) != somme(octets))
        return std::nullopt;
    octets.remove_prefix(titre.size());
    const auto mots = prendre<std::uint32_t>(octets);
    const auto tirages = prendre<std::uint32_t>(octets);
    if (octets.size() != std::size_t{mots} * taillemot || tirages > mots)
        return std::nullopt;
    std::vector<Fiche> fiches(mots);
    for (auto& fiche : fiches) {
        fiche = prendrefiche(octets);
        if (fiche.mot.taille() == 0 || fiche.tirage >= tirages)
            return std::nullopt;
    }
    return Glossaire(std::move(fiches), tirages);
}

}  // namespace recherche
