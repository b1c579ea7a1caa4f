#include "lancement.h"

#include <algorithm>

#include "tableau.h"

namespace menu {
namespace {

using Taille = std::int16_t common::VariablesDialog2::*;

/// A stage of its own for one panel: the sample size that counts for each row.
using Bareme = std::array<Taille, nblignes>;

constexpr Taille duo = &common::VariablesDialog2::nbechduo;
constexpr Taille trio = &common::VariablesDialog2::nbechtri;
constexpr Taille quatuor = &common::VariablesDialog2::nbechqua;
constexpr Taille quintet = &common::VariablesDialog2::nbechqui;

constexpr Bareme tous(Taille taille) {
    Bareme bareme{};
    bareme.fill(taille);
    return bareme;
}

struct Regle {
    Bareme bareme;
    std::string_view panneau;  ///< the only panel of the stage; empty: every panel is compared
};

constexpr std::array<Regle, 5> regles{{
    {tous(&common::VariablesDialog2::nbechuni), ""},
    {tous(duo), ""},
    {tous(trio), ""},
    {{quatuor, quatuor, quatuor, quatuor, quintet, quintet, quintet, quintet}, "quatquin"},
    {{duo, duo, trio, trio, quatuor, quatuor, quintet, quintet}, "conjm"},
}};

/// The stages at which the lists of a panel are launched; the others go at the first.
struct Attente {
    std::string_view panneau;
    std::size_t etape;
};
constexpr std::array attentes{Attente{"duos7", 1}, Attente{"duos8", 1}, Attente{"trios", 2},
                              Attente{"quatquin", 3}, Attente{"conjm", 4}};

std::size_t etapedelancement(std::string_view cle, Ecran ecran) {
    if (cle == panneaupersonnel)
        return ecran == Ecran::multi ? 1 : 0;
    const auto* attente = std::find_if(attentes.begin(), attentes.end(),
                                       [&](const Attente& a) { return a.panneau == cle; });
    return attente == attentes.end() ? 0 : attente->etape;
}

}  // namespace

std::string_view typdupanneau(std::string_view cle) {
    return cle == panneaudesrallonges ? common::typrallonges : std::string_view();
}

Ecran ecran(std::string_view cle, std::size_t rangee, bool persomulti) {
    if (cle == panneaupersonnel && persomulti)
        return Ecran::multi;
    const auto* trouve = panneau(cle);
    if (trouve == nullptr || rangee >= trouve->rangees.size())
        return Ecran::form1;
    return trouve->rangees[rangee].ecran;
}

std::array<Etape, 5> etapes(std::string_view cle, std::size_t rangee, bool persomulti, double base,
                            const common::VariablesDialog2& tailles) {
    std::array<Etape, 5> resultat;
    const auto cible = ecran(cle, rangee, persomulti);
    const auto lancee = etapedelancement(cle, cible);
    for (std::size_t i = 0; i < regles.size(); ++i) {
        const auto& regle = regles.at(i);
        if (!regle.panneau.empty() && regle.panneau != cle)
            continue;
        const bool passe = base > tailles.*regle.bareme.at(rangee);
        resultat.at(i).refus = !passe;
        if (passe && i == lancee)
            resultat.at(i).lancement = cible;
    }
    return resultat;
}

}  // namespace menu
