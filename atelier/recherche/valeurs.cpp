#include "valeurs.h"

#include <algorithm>
#include <bit>
#include <charconv>

#include "texte.h"

namespace recherche {

std::string entreguillemets(std::string_view texte) {
    return "« " + std::string(texte) + " »";
}

std::uint64_t nombre(std::string_view texte, std::uint64_t max) {
    std::uint64_t valeur = 0;
    const auto [fin, erreur] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
    if (texte.empty() || fin != texte.data() + texte.size() ||
        (erreur != std::errc() && erreur != std::errc::result_out_of_range))
        throw Ennui("on attend un nombre, et non " + entreguillemets(texte));
    if (erreur == std::errc::result_out_of_range || valeur > max)
        throw Ennui(std::string(texte) + " est trop grand ; la limite est de " +
                    std::to_string(max));
    return valeur;
}

Plage plage(std::string_view texte, const Plage& bornes) {
    constexpr std::uint64_t grand = 1'000'000'000;
    const auto tiret = texte.find('-');
    const auto debut = texte.substr(0, tiret);
    const auto fin = tiret == std::string_view::npos ? debut : texte.substr(tiret + 1);
    const auto chiffres = [](std::string_view t) {
        return !t.empty() && t.find_first_not_of("0123456789") == std::string_view::npos;
    };
    if (!chiffres(debut) || !chiffres(fin))
        throw Ennui("on attend un nombre, comme 7, ou deux, comme 2-8, et non " +
                    entreguillemets(texte));
    const Plage lue{static_cast<std::uint32_t>(nombre(debut, grand)),
                    static_cast<std::uint32_t>(nombre(fin, grand))};
    if (lue.min > lue.max)
        throw Ennui("dans " + entreguillemets(texte) + " le premier nombre dépasse le second");
    if (lue.max < bornes.min || lue.min > bornes.max)
        throw Ennui(entreguillemets(texte) + " n'est jamais vrai : de " +
                    std::to_string(bornes.min) + " à " + std::to_string(bornes.max));
    return lue;
}

std::string capitales(std::string_view texte, std::string_view signes) {
    std::string resultat;
    for (const auto& caractere : common::caracteres(common::minuscules(texte))) {
        if (caractere.size() == 1 && signes.find(caractere.front()) != std::string_view::npos) {
            resultat += caractere;
            continue;
        }
        const auto lettre = atelier::capitalesde(common::premier(caractere));
        if (lettre.empty())
            throw Ennui(entreguillemets(caractere) + " n'est pas une lettre");
        resultat += lettre;
    }
    return resultat;
}

std::string capitales(std::string_view texte) {
    return capitales(texte, {});
}

std::vector<std::string_view> liste(std::string_view texte) {
    std::vector<std::string_view> elements;
    while (true) {
        const auto virgule = texte.find(',');
        elements.push_back(texte.substr(0, virgule));
        if (elements.back().empty())
            throw Ennui("il y a une virgule de trop");
        if (virgule == std::string_view::npos)
            return elements;
        texte.remove_prefix(virgule + 1);
    }
}

Reserve::Reserve(std::string_view lettresetjokers) : taille_(lettresetjokers.size()) {
    // More of a letter than a word can hold changes nothing.
    constexpr auto assez = static_cast<std::int8_t>(atelier::longueurmax);
    for (const char c : lettresetjokers) {
        if (c == '?') {
            ++jokers_;
            continue;
        }
        auto& compte = comptes_.at(static_cast<std::size_t>(c - 'A'));
        compte = std::min<std::int8_t>(assez, static_cast<std::int8_t>(compte + 1));
        lettres_ |= bitlettre(c);
    }
}

bool Reserve::fait(const Fiche& fiche) const {
    if (std::popcount(fiche.lettres & ~lettres_) > jokers_)
        return false;
    auto reste = comptes_;
    int manque = 0;
    for (const char lettre : fiche.texte()) {
        if (--reste[static_cast<std::size_t>(lettre - 'A')] < 0 && ++manque > jokers_)
            return false;
    }
    return true;
}

}  // namespace recherche
