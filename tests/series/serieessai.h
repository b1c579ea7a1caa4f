#pragma once

// A series as a plain value: rows from a text, chance from a list of numbers, no window.

#include <deque>
#include <string>
#include <string_view>
#include <utility>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "serie.h"

namespace essai {

/// Chance that gives the numbers of a list, the last one again and again.
class Suite : public common::Hasard {
  public:
    explicit Suite(std::deque<double> nombres) : nombres_(std::move(nombres)) {}
    void amorcer(std::int32_t /*secondes*/) override {}
    [[nodiscard]] double tirer() override {
        const double nombre = nombres_.front();
        if (nombres_.size() > 1)
            nombres_.pop_front();
        return nombre;
    }

  private:
    std::deque<double> nombres_;
};

inline std::string enligne(std::string_view tirage, std::string_view suite,
                           std::size_t /*nbsolutions*/) {
    return std::string(tirage) + ";" + std::string(suite);
}

/// Three racks a series, one box each.
inline const series::Regles reglesdessai{.nbplaces = 3,
                                         .nbboites = 3,
                                         .limiterangees = 100,
                                         .comblement = series::Comblement::Suivants,
                                         .enligne = enligne,
                                         .marquesgardees = "-+("};

/// A list of these lines, of which a series is drawn in their order.
inline series::Serie tiree(const std::string& lignes,
                           series::Nature nature = series::Nature::Simple,
                           const series::Regles& regles = reglesdessai) {
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
    dossier.ecrire("liste.txt", lignes);
    series::Serie serie(regles);
    ouvrirliste(serie, disque, "liste.txt", nature);
    Suite hasard({0});
    tirer(serie, hasard);
    return serie;
}

}  // namespace essai
