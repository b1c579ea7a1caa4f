#include "motif.h"

#include <algorithm>

#include "glossaire.h"

namespace recherche {
namespace {

constexpr std::uint32_t toutes = (1U << 26U) - 1;
constexpr std::uint32_t placesuite = 0;

bool lettre(char c) {
    return c >= 'A' && c <= 'Z';
}

}  // namespace

Motif::Motif(std::string_view texte, std::string& ennui) {
    ennui.clear();
    while (!texte.empty() && ennui.empty()) {
        const char c = texte.front();
        texte.remove_prefix(1);
        if (lettre(c))
            places_.push_back(bitlettre(c));
        else if (c == '?')
            places_.push_back(toutes);
        else if (c == '[')
            ennui = lireclasse(texte);
        else if (c == '*' && (places_.empty() || places_.back() != placesuite))
            places_.push_back(placesuite);
        else if (c != '*')
            ennui = "« " + std::string(1, c) + " » n'est ni une lettre, ni ?, ni *, ni [..]";
    }
    etoile_ = std::find(places_.begin(), places_.end(), placesuite) != places_.end();
    minimum_ = static_cast<std::size_t>(
        std::count_if(places_.begin(), places_.end(), [](Place p) { return p != placesuite; }));
}

std::string Motif::lireclasse(std::string_view& reste) {
    const auto fin = reste.find(']');
    if (fin == std::string_view::npos)
        return "il manque « ] »";
    auto lettres = reste.substr(0, fin);
    reste.remove_prefix(fin + 1);
    const bool sauf = lettres.starts_with('^');
    if (sauf)
        lettres.remove_prefix(1);
    Place place = 0;
    for (const char c : lettres) {
        if (!lettre(c))
            return "entre crochets on attend des lettres, et non « " + std::string(1, c) + " »";
        place |= bitlettre(c);
    }
    if (place == 0)
        return "il n'y a pas de lettre entre les crochets";
    if (sauf)
        place = toutes & ~place;
    if (place == 0)
        return "nulle lettre n'est permise entre les crochets";
    places_.push_back(place);
    return {};
}

bool Motif::accepte(Place place, char lettre) {
    return (place & bitlettre(lettre)) != 0;
}

/// Goes back to the last run only: an earlier one gains nothing by being longer.
bool Motif::convient(std::string_view mot) const {
    if (mot.size() < minimum_ || (!etoile_ && mot.size() != minimum_))
        return false;
    std::size_t p = 0;
    std::size_t m = 0;
    std::size_t derniere = places_.size();
    std::size_t retour = 0;
    while (m < mot.size()) {
        if (p < places_.size() && places_[p] == placesuite) {
            derniere = p++;
            retour = m;
        } else if (p < places_.size() && accepte(places_[p], mot[m])) {
            ++p;
            ++m;
        } else if (derniere < places_.size()) {
            p = derniere + 1;
            m = ++retour;
        } else {
            return false;
        }
    }
    return p == places_.size() || (p + 1 == places_.size() && places_[p] == placesuite);
}

}  // namespace recherche
