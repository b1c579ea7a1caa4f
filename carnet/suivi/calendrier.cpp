#include "calendrier.h"

#include <algorithm>
#include <chrono>
#include <ctime>

#include "journal.h"

namespace carnet {
namespace {

constexpr std::size_t longueurdate = 10;  // yyyy-mm-dd

std::optional<int> nombre(std::string_view chiffres) {
    constexpr int base = 10;
    int valeur = 0;
    for (const char c : chiffres) {
        if (c < '0' || c > '9')
            return std::nullopt;
        valeur = valeur * base + (c - '0');
    }
    return valeur;
}

std::chrono::year_month_day date(Jour jour) {
    return std::chrono::sys_days(std::chrono::days(jour));
}

std::string chiffres(int valeur, std::size_t largeur) {
    auto texte = std::to_string(valeur);
    return texte.insert(0, largeur - std::min(largeur, texte.size()), '0');
}

std::string jourdumois(Jour jour) {
    return chiffres(static_cast<int>(static_cast<unsigned>(date(jour).day())), 2);
}

}  // namespace

Jour aujourdhui() {
    constexpr int an1900 = 1900;
    const auto maintenant = std::time(nullptr);
    std::tm t{};
    ::localtime_r(&maintenant, &t);
    return profiles::jourdu(t.tm_year + an1900, t.tm_mon + 1, t.tm_mday).value_or(0);
}

std::optional<Jour> lirejour(std::string_view texte) {
    if (texte.size() != longueurdate || texte[4] != '-' || texte[7] != '-')
        return std::nullopt;
    const auto annee = nombre(texte.substr(0, 4));
    const auto mois = nombre(texte.substr(5, 2));
    const auto jour = nombre(texte.substr(8, 2));
    return annee && mois && jour ? profiles::jourdu(*annee, *mois, *jour) : std::nullopt;
}

int annee(Jour jour) {
    return static_cast<int>(date(jour).year());
}

int mois(Jour jour) {
    return static_cast<int>(static_cast<unsigned>(date(jour).month()));
}

int jourdesemaine(Jour jour) {
    const std::chrono::weekday semaine{std::chrono::sys_days(std::chrono::days(jour))};
    return static_cast<int>(semaine.iso_encoding()) - 1;
}

std::string textejour(Jour jour) {
    return chiffres(annee(jour), 4) + "-" + chiffres(mois(jour), 2) + "-" + jourdumois(jour);
}

std::string datefrancaise(Jour jour) {
    return jourdumois(jour) + "/" + chiffres(mois(jour), 2) + "/" + chiffres(annee(jour), 4);
}

}  // namespace carnet
