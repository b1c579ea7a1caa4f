#include "lancement.h"

#include <algorithm>

#include "listes.h"

namespace menu {
namespace {

/// These first stages run for every panel: stage 0 compares with the sample size for one solution,
/// stage 1 with that for two, and so on. A later stage runs only for the panels that are launched
/// at it, and compares with the sample size for the solutions of the row.
constexpr std::size_t etapescommunes = 3;

using Taille = std::int16_t common::VariablesDialog2::*;
/// By number of solutions, from one.
constexpr std::array<Taille, common::solutionsmulti> lestailles{
    &common::VariablesDialog2::nbechuni, &common::VariablesDialog2::nbechduo,
    &common::VariablesDialog2::nbechtri, &common::VariablesDialog2::nbechqua,
    &common::VariablesDialog2::nbechqui};

std::size_t solutions(const Panneau& panneau, std::size_t rangee) {
    return rangee < panneau.rangees.size() ? panneau.rangees[rangee].solutions : 1;
}

/// A list with several solutions never goes at the first stage.
std::size_t etapedelancement(const Panneau& panneau, Ecran ecran) {
    return std::max<std::size_t>(panneau.etape, ecran == Ecran::multi ? 1 : 0);
}

}  // namespace

Ecran ecran(const Panneau& panneau, std::size_t rangee, bool persomulti) {
    if (panneau.personnel && persomulti)
        return Ecran::multi;
    return rangee < panneau.rangees.size() ? panneau.rangees[rangee].ecran() : Ecran::form1;
}

Etapes etapes(const Panneau& panneau, std::size_t rangee, bool persomulti, double base,
              const common::VariablesDialog2& tailles) {
    Etapes resultat;
    const auto cible = ecran(panneau, rangee, persomulti);
    const auto lancee = etapedelancement(panneau, cible);
    for (std::size_t i = 0; i < nbetapes; ++i) {
        const bool commune = i < etapescommunes;
        if (!commune && i != panneau.etape)
            continue;
        const auto taille = lestailles.at(commune ? i : solutions(panneau, rangee) - 1);
        const bool passe = base > tailles.*taille;
        resultat.at(i).refus = !passe;
        if (passe && i == lancee)
            resultat.at(i).lancement = cible;
    }
    return resultat;
}

}  // namespace menu
