#include "calendrier.h"

#include <algorithm>
#include <chrono>

#include "horloge.h"
#include "journal.h"
#include "nombre.h"

namespace carnet {
namespace {

constexpr std::size_t longueurdate = 10;  // yyyy-mm-dd

std::chrono::year_month_day date(Jour jour) {
    return std::chrono::sys_days(std::chrono::days(jour));
}

std::string quatrechiffres(int annee) {
    constexpr std::size_t largeur = 4;
    auto texte = std::to_string(annee);
    return texte.insert(0, largeur - std::min(largeur, texte.size()), '0');
}

std::string jourdumois(Jour jour) {
    return common::deuxchiffres(static_cast<unsigned>(date(jour).day()));
}

}  // namespace

Jour aujourdhui() {
    const auto ici = common::instantlocal();
    return profiles::jourdu(ici.annee, ici.mois, ici.jour).value_or(0);
}

std::optional<Jour> lirejour(std::string_view texte) {
    if (texte.size() != longueurdate || texte[4] != '-' || texte[7] != '-')
        return std::nullopt;
    const auto annee = common::entierdechiffres(texte.substr(0, 4));
    const auto mois = common::entierdechiffres(texte.substr(5, 2));
    const auto jour = common::entierdechiffres(texte.substr(8, 2));
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
    return quatrechiffres(annee(jour)) + "-" + common::deuxchiffres(mois(jour)) + "-" +
           jourdumois(jour);
}

std::string datefrancaise(Jour jour) {
    return jourdumois(jour) + "/" + common::deuxchiffres(mois(jour)) + "/" +
           quatrechiffres(annee(jour));
}

}  // namespace carnet
