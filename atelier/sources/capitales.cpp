#include "capitales.h"

#include <stdexcept>

#include "texte.h"

namespace atelier {
namespace {

struct Accentuees {
    std::u32string_view lettres;
    std::string_view capitales;
};

constexpr std::array accentuees{
    Accentuees{U"àâäáãåā", "A"}, Accentuees{U"ç", "C"},  Accentuees{U"éèêëē", "E"},
    Accentuees{U"îïíìī", "I"},   Accentuees{U"ñ", "N"},  Accentuees{U"ôöóòõō", "O"},
    Accentuees{U"ùûüúū", "U"},   Accentuees{U"ÿý", "Y"}, Accentuees{U"œ", "OE"},
    Accentuees{U"æ", "AE"},      Accentuees{U"š", "S"},  Accentuees{U"ž", "Z"},
};

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

}  // namespace

void Capitales::troplong(std::string_view texte) {
    throw std::length_error("le mot « " + std::string(texte) + " » a plus de " +
                            std::to_string(longueurmax) + " lettres");
}

std::string_view capitalesde(char32_t lettre) {
    if (lettre >= U'a' && lettre <= U'z')
        return alphabet.substr(lettre - U'a', 1);
    if (lettre < 0x80)
        return {};
    for (const auto& a : accentuees) {
        if (a.lettres.find(lettre) != std::u32string_view::npos)
            return a.capitales;
    }
    return {};
}

std::optional<std::u32string> points(std::string_view utf8) {
    std::u32string resultat;
    resultat.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto tete = static_cast<unsigned char>(utf8[i]);
        if (tete < 0x80) {
            resultat += static_cast<char32_t>(tete);
            ++i;
            continue;
        }
        const std::size_t taille = tete < 0xC2 ? 0 : tete < 0xE0 ? 2 : tete < 0xF0 ? 3 : 4;
        if (taille == 0 || tete > 0xF4 || i + taille > utf8.size())
            return std::nullopt;
        for (std::size_t k = 1; k < taille; ++k) {
            if ((static_cast<unsigned char>(utf8[i + k]) & 0xC0U) != 0x80U)
                return std::nullopt;
        }
        resultat += common::premier(utf8.substr(i, taille));
        i += taille;
    }
    return resultat;
}

std::optional<std::string> encapitales(std::u32string_view mot) {
    std::string resultat;
    for (const auto lettre : mot) {
        const auto capitales = capitalesde(lettre);
        if (capitales.empty())
            return std::nullopt;
        resultat += capitales;
    }
    return resultat;
}

std::optional<std::string> encapitales(std::string_view utf8) {
    const auto mot = points(utf8);
    return mot ? encapitales(std::u32string_view(*mot)) : std::nullopt;
}

}  // namespace atelier
