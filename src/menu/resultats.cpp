#include "resultats.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "hist.h"
#include "nombre.h"
#include "partage.h"
#include "texte.h"

namespace menu {
namespace {

constexpr ui::Couleur vert{0x00C000};
constexpr ui::Couleur orange{0xFF8000};
constexpr ui::Couleur rouge{0xFF0000};

constexpr std::size_t reperedunom = 5;  // from the end of a name
constexpr std::string_view suite = "% - ";
constexpr std::string_view moyenne = "Ts";

/// The last eight bytes of a text as one number, the last byte being the highest; a shorter text is
/// filled up with zeros.
std::uint64_t bout(std::string_view texte) {
    std::array<char, sizeof(std::uint64_t)> octets{};
    if (texte.size() >= octets.size())
        std::memcpy(octets.data(), texte.data() + texte.size() - octets.size(), octets.size());
    else
        std::copy_backward(texte.begin(), texte.end(), octets.end());
    return std::bit_cast<std::uint64_t>(octets);
}

std::size_t repere(std::string_view texte) {
    return texte.size() < reperedunom
               ? 0
               : static_cast<unsigned char>(texte[texte.size() - reperedunom]);
}

std::string date(std::string_view record) {
    return common::depuis1252(record.substr(0, profiles::largeurdate));
}

double pourcentage(std::string_view record) {
    return common::valeur(profiles::balayer(record).value_or(profiles::Balayage{}).pourcentage);
}

/// The date as yyyy/mm/dd, from a text that begins with dd/mm/yyyy.
std::string jour(std::string_view date) {
    return common::milieu(date, 7, 4) + "/" + common::milieu(date, 4, 2) + "/" +
           common::milieu(date, 1, 2);
}

Resultat resultatdeliste(std::string_view record) {
    const auto lu = profiles::balayer(record).value_or(profiles::Balayage{});
    return {date(record),
            common::depuis1252(lu.pourcentage) + std::string(suite) + common::depuis1252(lu.mode)};
}

Resultat afficherpartie(std::string_view record, char lettre) {
    return {date(record), common::textenombre(pourcentage(record)) + std::string(suite) + lettre};
}

/// The mean of all parts of a row, dated by the last of them; nothing if one has no record.
std::optional<Resultat> moyennedesparties(const Derniers& derniers, std::size_t rangee,
                                          std::size_t parties) {
    double somme = 0;
    for (std::size_t i = 0; i < parties; ++i) {
        const auto& record = derniers.partie(rangee, i);
        if (record.empty())
            return std::nullopt;
        somme += pourcentage(record);
    }
    const auto arrondie = common::decimales(somme / static_cast<double>(parties), 1);
    return Resultat{
        date(derniers.partie(rangee, parties - 1)),
        common::textenombre(common::valeur(arrondie)) + std::string(suite) + std::string(moyenne)};
}

void actualiserparties(Resultat& resultat, const Derniers& derniers, std::size_t rangee,
                       std::size_t parties) {
    if (const auto calculee = moyennedesparties(derniers, rangee, parties)) {
        if (resultat.date.empty() || jour(calculee->date) > jour(resultat.date))
            resultat = *calculee;
    }
    for (auto i = parties; resultat.date.empty() && i > 0; --i) {
        const auto& record = derniers.partie(rangee, i - 1);
        if (!record.empty())
            resultat = afficherpartie(record, lettredepartie(i - 1));
    }
}

}  // namespace

Derniers::Derniers(std::span<const Liste> listes) {
    for (const auto& liste : listes) {
        rangees_.push_back(cases_.size());
        ajouter(liste.fichier);
        for (std::size_t i = 0; i < liste.parties; ++i)
            ajouter(fichierdepartie(liste.fichier, i));
    }
}

void Derniers::ajouter(std::string_view nom) {
    const auto octets = common::vers1252(nom);
    const Signe signe{bout(octets), bout(std::string(octets.size(), '\xFF')), cases_.size()};
    cases_.push_back({octets, {}});
    if (octets.empty())
        return;
    if (octets.size() >= reperedunom) {
        parcaractere_.at(repere(octets)).push_back(signe);
        return;
    }
    for (auto& signes : parcaractere_)
        signes.push_back(signe);
}

void Derniers::voir(std::string_view record) {
    const auto fin = bout(record);
    for (const auto& signe : parcaractere_.at(repere(record))) {
        if ((fin & signe.masque) != signe.bout)
            continue;
        auto& trouvee = cases_[signe.place];
        if (!record.ends_with(trouvee.nom))
            continue;
        const auto lu = profiles::balayer(record);
        if (!lu || lu->mode == common::modes::revision)
            return;
        trouvee.record = record;
    }
}

const std::string& Derniers::liste(std::size_t rangee) const {
    return cases_.at(rangees_.at(rangee)).record;
}

const std::string& Derniers::partie(std::size_t rangee, std::size_t partie) const {
    return cases_.at(rangees_.at(rangee) + 1 + partie).record;
}

void actualiser(Resultats& resultats, std::span<const Liste> listes, const Derniers& derniers) {
    for (std::size_t r = 0; r < listes.size(); ++r) {
        const auto& record = derniers.liste(r);
        if (!record.empty())
            resultats.at(r) = resultatdeliste(record);
        if (listes[r].parties > 0)
            actualiserparties(resultats.at(r), derniers, r, listes[r].parties);
    }
}

std::optional<ui::Couleur> teinte(std::string_view texte, int seuilch, int seuilcb) {
    constexpr std::size_t apresnombre = 5;  // "% - " and a letter; a letter more for a mean
    if (texte.empty())
        return std::nullopt;
    const auto v = common::valeur(
        common::sansfin(texte, apresnombre + (texte.ends_with(moyenne.back()) ? 1 : 0)));
    std::optional<ui::Couleur> couleur;
    if (v > seuilch - 1)
        couleur = vert;
    if (v > seuilcb - 1 && v < seuilch)
        couleur = orange;
    if (v < seuilcb)
        couleur = rouge;
    return couleur;
}

std::string_view nomdelateinte(ui::Couleur couleur) {
    if (couleur == vert)
        return "Vert";
    if (couleur == orange)
        return "Orange";
    return couleur == rouge ? "Rouge" : "";
}

}  // namespace menu
