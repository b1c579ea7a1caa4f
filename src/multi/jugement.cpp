#include "jugement.h"

#include <algorithm>

namespace multi {
namespace {

constexpr std::string_view saisie = "Vous aviez saisi : ";
constexpr std::string_view riendefaux = "Vous n'aviez pas saisi de mot faux.";

/// The solutions that no typed word equals, in row order.
std::vector<std::string> manquees(std::span<const std::string> saisis,
                                  std::span<const std::string> solutions) {
    std::vector<std::string> mots;
    std::copy_if(solutions.begin(), solutions.end(), std::back_inserter(mots),
                 [&](const std::string& solution) {
                     return std::find(saisis.begin(), saisis.end(), solution) == saisis.end();
                 });
    return mots;
}

/// Boxes with a right word keep it; the others take the missed solutions, in order.
void juger(Verdict& verdict, std::span<const std::string> saisis,
           std::span<const std::string> solutions, std::span<const std::string> attendues) {
    auto attendue = attendues.begin();
    for (const auto& mot : saisis) {
        auto& boite = verdict.boites.emplace_back();
        boite.texte = mot;
        boite.bonne = std::find(solutions.begin(), solutions.end(), mot) != solutions.end();
        if (boite.bonne)
            continue;
        if (!mot.empty()) {
            verdict.infobulle += verdict.infobulle.empty() ? saisie : " - ";
            verdict.infobulle += mot;
            verdict.etat = series::Etattirage::Faux;
            boite.infobulle = std::string(saisie) + mot;
        } else if (verdict.etat != series::Etattirage::Faux) {
            verdict.etat = series::Etattirage::Incomplet;
        }
        if (attendue != attendues.end())
            boite.texte = *attendue++;
    }
    if (verdict.etat == series::Etattirage::Incomplet && verdict.infobulle.empty())
        verdict.infobulle = riendefaux;
}

}  // namespace

bool Ratages::raterlemot(const std::string& mot) {
    if (nbmotsfaux_ == limitemots)
        return false;
    ++nbmotsfaux_;
    motsfaux_.insert(mot);
    return true;
}

bool Ratages::raterletirage(const std::string& tirage) {
    if (tiragesfaux_.contains(tirage))
        return true;
    if (tiragesfaux_.size() == limitetirages)
        return false;
    tiragesfaux_.insert(tirage);
    return true;
}

std::size_t nombrejuge(std::span<const std::string> solutions) {
    const auto vide = std::find(solutions.begin(), solutions.end(), std::string());
    return static_cast<std::size_t>(vide - solutions.begin());
}

Verdict corrigertirage(const Rack& rack, Ratages& ratages) {
    const auto n = nombrejuge(rack.solutions);
    const auto solutions = std::span(rack.solutions).first(n);
    const auto saisis = std::span(rack.saisis).first(n);
    Verdict verdict;
    verdict.etat = rack.etat;
    const auto attendues = manquees(saisis, solutions);
    juger(verdict, saisis, solutions, attendues);
    std::size_t egalites = 0;
    for (const auto& mot : saisis)
        egalites += static_cast<std::size_t>(std::count(solutions.begin(), solutions.end(), mot));
    verdict.juste = egalites == n;
    const bool place = std::all_of(attendues.begin(), attendues.end(),
                                   [&](const std::string& mot) { return ratages.raterlemot(mot); });
    if (!place)
        verdict.debordement = Debordement::Motsfaux;
    else if (!verdict.juste && !ratages.raterletirage(rack.texte))
        verdict.debordement = Debordement::Tiragesfaux;
    return verdict;
}

}  // namespace multi
