#include "regles.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace endurance {

std::string pourcentage(std::int64_t base, std::int64_t fautes) {
    const auto ratio = static_cast<double>(base - fautes) / static_cast<double>(base);
    constexpr long double milliemes = 1000;  // exact in a long double
    const auto arrondi =
        static_cast<std::int64_t>(std::floor(static_cast<long double>(ratio) * milliemes + .5L));
    const auto decimale = arrondi % 10;
    return std::to_string(arrondi / 10) +
           (decimale == 0 ? std::string() : "." + std::to_string(decimale));
}

std::string texteserie(int secondes) {
    std::array<char, 32> tampon{};
    std::snprintf(tampon.data(), tampon.size(), "%d:%02d", secondes / 60, secondes % 60);
    return tampon.data();
}

std::string textetotal(int secondes) {
    std::array<char, 32> tampon{};
    std::snprintf(tampon.data(), tampon.size(), "%d:%02d:%02d", secondes / 3600, secondes / 60 % 60,
                  secondes % 60);
    return tampon.data();
}

Jugement juger(const std::vector<std::string>& saisis, const std::vector<std::string>& solutions) {
    Jugement jugement;
    std::size_t egalites = 0;
    for (const auto& mot : saisis)
        egalites += static_cast<std::size_t>(std::count(solutions.begin(), solutions.end(), mot));
    jugement.juste = egalites == solutions.size();
    for (const auto& mot : solutions)
        if (std::count(saisis.begin(), saisis.end(), mot) == 0)
            jugement.manquees.push_back(mot);
    std::size_t suivante = 0;
    for (const auto& mot : saisis) {
        const bool bonne = std::count(solutions.begin(), solutions.end(), mot) > 0;
        jugement.bonnes.push_back(bonne);
        const bool remplacee = !bonne && suivante < jugement.manquees.size();
        jugement.textes.push_back(remplacee ? jugement.manquees[suivante++] : mot);
    }
    return jugement;
}

int entier(std::string_view texte) {
    int valeur = -1;
    const auto lu = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
    return lu.ec == std::errc{} && lu.ptr == texte.data() + texte.size() ? valeur : -1;
}

}  // namespace endurance
