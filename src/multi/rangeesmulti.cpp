#include "rangeesmulti.h"

#include <algorithm>

#include "faute.h"
#include "fichier.h"

namespace multi {

std::size_t nbsolutionsdelaliste(const series::Rangees& rangees, std::string_view chemin) {
    auto nbsolutions = minsolutions;
    for (int rang = 0; rang < rangees.nbmots(); ++rang) {
        const auto nombre = nombredesolutions(rangees.octetsdelasuite(rang));
        if (nombre > maxsolutions) {
            throw common::Faute(common::rapportligne(
                "Lecture de la liste", chemin, rangees.ligne(rang),
                "le tirage a " + std::to_string(nombre) + " solutions ; la limite est de " +
                    std::to_string(maxsolutions)));
        }
        nbsolutions = std::max(nbsolutions, nombre);
    }
    return nbsolutions;
}

std::size_t nombredesolutions(std::string_view suite) {
    if (suite.empty())
        return 0;
    const auto separateurs = std::count(suite.begin(), suite.end(), ';');
    return static_cast<std::size_t>(separateurs) + (suite.back() == ';' ? 0 : 1);
}

std::vector<std::string> solutions(std::string_view suite) {
    std::vector<std::string> mots;
    while (!suite.empty()) {
        const auto place = std::min(suite.find(';'), suite.size());
        mots.emplace_back(suite.substr(0, place));
        suite.remove_prefix(std::min(place + 1, suite.size()));
    }
    return mots;
}

std::string lignederangee(std::string_view tirage, std::span<const std::string> solutions,
                          std::size_t nombre) {
    std::string ligne(tirage);
    for (std::size_t i = 0; i < nombre; ++i)
        ligne.append(";").append(i < solutions.size() ? solutions[i] : std::string());
    return ligne;
}

}  // namespace multi
