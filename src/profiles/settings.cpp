#include "settings.h"

#include <array>

#include "faute.h"
#include "nombre.h"
#include "texte.h"

namespace profiles {
namespace {

constexpr std::string_view lecturereglages = "Lecture des réglages";
constexpr std::size_t nombresdetete = 5;

std::int16_t nombre(std::string_view item, std::string_view chemin, std::size_t ligne) {
    const auto quoi = std::string(lecturereglages) + " : fichier « " + std::string(chemin) +
                      " », ligne " + std::to_string(ligne);
    return common::entier16(common::valeur(item), quoi);
}

}  // namespace

std::string cheminsettings(std::string_view util) {
    return std::string(util) + "\\settings.dat";
}

Reglages reglages(std::string_view octets, std::string_view chemin) {
    Reglages lus;
    const std::array<std::int16_t*, nombresdetete> tete{
        &lus.seuilch, &lus.seuilcb, &lus.tempsparmot, &lus.nbechantillon, &lus.son};
    common::Items items(octets, chemin, lecturereglages);
    std::string_view item;
    std::size_t rang = 0;
    for (auto* nombrelu : tete) {
        if (!items.lireitem(item)) {
            throw common::Faute(common::rapportfichier(lecturereglages, chemin,
                                                       "il s'arrête après " + std::to_string(rang) +
                                                           " réglage(s), il en faut au moins " +
                                                           std::to_string(nombresdetete)));
        }
        *nombrelu = nombre(item, chemin, items.numero());
        ++rang;
    }
    lus.couleur.reset();
    if (items.lireitem(item))
        lus.couleur = common::depuis1252(item);
    if (items.lireitem(item))
        lus.saisieassistee = nombre(item, chemin, items.numero());
    return lus;
}

std::optional<std::string> couleurreglee(std::string_view octets) {
    if (octets.size() >= common::limiteligne)
        return std::nullopt;
    common::Items items(octets);
    std::string_view item;
    for (std::size_t rang = 0; rang <= nombresdetete; ++rang) {
        if (!items.lireitem(item))
            return std::nullopt;
    }
    return common::depuis1252(item);
}

std::vector<std::string> lignessettings(const Reglages& reglages) {
    return {std::to_string(reglages.seuilch),       std::to_string(reglages.seuilcb),
            std::to_string(reglages.tempsparmot),   std::to_string(reglages.nbechantillon),
            std::to_string(reglages.son),           reglages.couleur.value_or(std::string()),
            std::to_string(reglages.saisieassistee)};
}

Reglages liresettings(common::Disque& disque, std::string_view util) {
    const auto chemin = cheminsettings(util);
    return reglages(common::liretexte(disque, chemin, lecturereglages), chemin);
}

void appliquer(const Reglages& reglages, common::VariablesDialog2& dialog2,
               const std::function<void(const std::string&)>& couleur) {
    dialog2.seuilch = reglages.seuilch;
    dialog2.seuilcb = reglages.seuilcb;
    dialog2.tempsparmot = reglages.tempsparmot;
    dialog2.nbechantillon = reglages.nbechantillon;
    dialog2.son = reglages.son;
    if (reglages.couleur)
        couleur(*reglages.couleur);
    dialog2.saisieassistee = reglages.saisieassistee;
}

void ecriresettings(common::Disque& disque, std::string_view util,
                    const common::VariablesDialog2& dialog2, std::string_view couleur) {
    const Reglages reglages{dialog2.seuilch,       dialog2.seuilcb, dialog2.tempsparmot,
                            dialog2.nbechantillon, dialog2.son,     std::string(couleur),
                            dialog2.saisieassistee};
    common::remplacerlignes(disque, cheminsettings(util), lignessettings(reglages),
                            "Écriture des réglages");
}

}  // namespace profiles
