#include "hist.h"

#include "faute.h"
#include "listes.h"
#include "nombre.h"
#include "partage.h"
#include "texte.h"

namespace profiles {
namespace {

constexpr std::string_view lectureresultats = "Lecture des résultats";
constexpr std::string_view tiret = " - ";
constexpr std::size_t longueurheure = 5;   // HH:MM
constexpr std::size_t placepourcent = 21;  // of the percent text, from 0
constexpr std::size_t versmode = 4;        // from the "%" to the mode

}  // namespace

std::string cheminhist(std::string_view util) {
    return std::string(util) + "\\hist.dat";
}

double pourcentage(std::int64_t nbmotsinitial, std::int64_t nbfautes) {
    const auto ratio =
        static_cast<double>(nbmotsinitial - nbfautes) / static_cast<double>(nbmotsinitial);
    return common::valeur(common::decimales(ratio, 3)) * 100;
}

std::string nomcourt(std::string_view fich, std::string_view toue, std::string_view util) {
    return toue == common::modes::revision ? common::nomderevision(fich, util)
                                           : common::nomdeliste(fich);
}

std::string enregistrement(const common::Instant& quand, double pourc, std::string_view toue,
                           std::string_view nom) {
    std::string record = quand.date();
    record.append(tiret).append(common::debut(quand.heuredujour(), longueurheure));
    record.append(tiret).append(common::textenombre(pourc)).append("%").append(tiret);
    if (!toue.empty())
        record.append(toue).append(tiret);
    return record.append(nom);
}

void ajouterhist(common::Disque& disque, std::string_view util, const std::string& record) {
    // The record in the report lets the player keep the percent.
    common::ajouterlignes(disque, cheminhist(util), {&record, 1},
                          "Enregistrement du résultat « " + record + " »");
}

std::optional<Balayage> balayer(std::string_view record) {
    // A "%" right before the percent text counts: the text is then empty.
    auto pourcent = placepourcent - 1;
    while (pourcent < record.size() && record[pourcent] != '%')
        ++pourcent;
    if (pourcent >= record.size())
        return std::nullopt;
    Balayage lu;
    if (pourcent > placepourcent)
        lu.pourcentage = record.substr(placepourcent, pourcent - placepourcent);
    if (pourcent + versmode < record.size())
        lu.mode = record.substr(pourcent + versmode, 1);
    return lu;
}

void parcourirhist(common::Disque& disque, std::string_view util,
                   const std::function<bool(std::string_view)>& voir) {
    const auto chemin = cheminhist(util);
    common::Items items(disque, chemin, lectureresultats);
    std::string_view item;
    std::size_t gardes = 0;
    while (items.lireitem(item)) {
        if (voir(item) && ++gardes > maximumhist) {
            throw common::Faute(common::rapportligne(
                lectureresultats, chemin, items.numero(),
                "le journal dépasse la limite de " + std::to_string(maximumhist) +
                    " résultats. Ôtez-en les lignes les plus anciennes, en tête du fichier"));
        }
    }
}

}  // namespace profiles
