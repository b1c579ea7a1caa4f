#include "verification_rangee.h"

#include <algorithm>
#include <functional>

#include "capitales.h"
#include "listes.h"

namespace atelier {
namespace {

/// Racks of this many letters or more are written smaller.
constexpr std::size_t tiragelong = 9;
constexpr std::size_t lettresdebenjamin = 3;
/// Signs that a rack may hold beside its letters.
constexpr std::string_view signes = "+()12345678-";

bool capitales(std::string_view texte) {
    return std::all_of(texte.begin(), texte.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

std::string tri(std::string_view texte) {
    std::string trie(texte);
    std::sort(trie.begin(), trie.end());
    return trie;
}

std::vector<std::string_view> champs(std::string_view ligne) {
    std::vector<std::string_view> liste;
    while (true) {
        const auto fin = ligne.find(';');
        liste.push_back(ligne.substr(0, fin));
        if (fin == std::string_view::npos)
            return liste;
        ligne.remove_prefix(fin + 1);
    }
}

/// The letters of a rack, without its signs.
std::string nu(std::string_view tirage, Sorte sorte) {
    std::string lettres(tirage);
    if (sorte == Sorte::rallonge) {
        if (lettres.starts_with('?'))
            lettres.erase(0, 1);
        else if (lettres.ends_with('?'))
            lettres.pop_back();
        return lettres;
    }
    std::erase_if(lettres, [](char c) { return signes.find(c) != std::string_view::npos; });
    return lettres;
}

}  // namespace

Sorte sorte(const menu::Rangee& rangee) {
    switch (rangee.reponses) {
        case menu::Reponses::devant:
        case menu::Reponses::derriere:
            return Sorte::rallonge;
        case menu::Reponses::benjamin:
            return Sorte::benjamin;
        case menu::Reponses::mots:
            break;
    }
    return rangee.ecran() == menu::Ecran::multi ? Sorte::multi : Sorte::simple;
}

std::optional<Sorte> sorteconnue(std::string_view fichier) {
    const auto* rangee = menu::rangeedefichier(fichier);
    return rangee == nullptr ? std::nullopt : std::optional(sorte(*rangee));
}

bool motjouable(std::string_view texte) {
    return texte.size() >= longueurmin && texte.size() <= longueurmax && capitales(texte);
}

std::vector<std::string> Rangees::lire(std::string_view ligne) {
    ++lignes_;
    std::vector<std::string> ennuis;
    if (ligne.empty())
        return {"ligne vide"};
    if (ligne.find(',') != std::string_view::npos || ligne.find('"') != std::string_view::npos)
        return {"une virgule ou un guillemet couperait la ligne en deux"};
    auto solutions = champs(ligne);
    const auto tirage = solutions.front();
    solutions.erase(solutions.begin());
    if (solutions.empty()) {
        ennuis.emplace_back("il manque le « ; » entre le tirage et la solution");
        return ennuis;
    }
    const auto [premier, nouveau] = tirages_.try_emplace(std::string(tirage), lignes_);
    if (!nouveau)
        ennuis.push_back("le tirage est déjà à la ligne " + std::to_string(premier->second));
    const auto lettres = nu(tirage, sorte_);
    if (lettres.empty() || !capitales(lettres)) {
        ennuis.emplace_back("le tirage a autre chose que des lettres de A à Z");
    } else if (lettres.size() > longueurmax) {
        ennuis.push_back("le tirage a " + std::to_string(lettres.size()) +
                         " lettres ; la limite est de " + std::to_string(longueurmax));
    } else if (auto ennui = ennuidessolutions(lettres, solutions); !ennui.empty()) {
        ennuis.push_back(std::move(ennui));
    }
    solutionsmax_ = std::max(solutionsmax_, solutions.size());
    dernier_ = lettres.size();
    pluslong_ = std::max(pluslong_, dernier_);
    return ennuis;
}

std::string Rangees::ennuidessolutions(std::string_view lettres,
                                       const std::vector<std::string_view>& solutions) const {
    const auto max = sorte_ == Sorte::multi || sorte_ == Sorte::perso ? common::solutionsmulti : 1;
    const std::size_t min = sorte_ == Sorte::multi ? 2 : 1;
    if (solutions.size() < min || solutions.size() > max)
        return std::to_string(solutions.size()) + " solution(s) ; on en attend " +
               (min == max ? std::to_string(min)
                           : "de " + std::to_string(min) + " à " + std::to_string(max));
    for (std::size_t i = 0; i < solutions.size(); ++i) {
        const auto solution = solutions[i];
        if (solution.empty() || !capitales(solution))
            return "la solution « " + std::string(solution) +
                   " » a autre chose que des lettres de A à Z";
        if (std::find(solutions.begin(), solutions.begin() + static_cast<std::ptrdiff_t>(i),
                      solution) != solutions.begin() + static_cast<std::ptrdiff_t>(i))
            return "la solution « " + std::string(solution) + " » y est deux fois";
        if (sorte_ == Sorte::rallonge) {
            if (std::adjacent_find(solution.begin(), solution.end(), std::greater_equal<>()) !=
                solution.end())
                return "les lettres ne sont pas dans l'ordre alphabétique";
        } else if (sorte_ == Sorte::benjamin) {
            if (solution.size() != lettresdebenjamin)
                return "on attend trois lettres";
        } else if (tri(solution) != tri(lettres)) {
            return "« " + std::string(solution) + " » n'est pas fait des lettres du tirage";
        }
    }
    return {};
}

bool Rangees::dernierpluscourt() const {
    return pluslong_ >= tiragelong && dernier_ < tiragelong;
}

}  // namespace atelier
