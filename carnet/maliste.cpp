#include "maliste.h"

#include <algorithm>
#include <array>

#include "catalogue.h"
#include "listedujour.h"
#include "listes.h"
#include "texte.h"

namespace carnet {
namespace {

constexpr std::string_view extension = ".txt";
constexpr std::string_view interdits = "/\\:*?\"<>|,;";
constexpr std::size_t longueurmax = 60;
/// Names that Windows keeps for its devices, whatever follows their dot.
constexpr std::array appareils = std::to_array<std::string_view>(
    {"con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4", "com5", "com6", "com7",
     "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"});

constexpr std::array ducarnet{nomsdujour.simple, nomsdujour.multiple, nomsdesdurs.simple,
                              nomsdesdurs.multiple};

bool fourni(const std::string& fichier) {
    const auto lequel = [&](std::string_view nom) { return common::minuscules(nom) == fichier; };
    const auto fixes = menu::fichiersfixes();
    return std::any_of(fixes.begin(), fixes.end(), lequel) ||
           std::any_of(common::listesreference.begin(), common::listesreference.end(),
                       [&](const auto& r) { return lequel(r.fichier); }) ||
           lequel("7l_6anagrammes.txt") || lequel("8l_6anagrammes.txt");
}

}  // namespace

std::string fichierdenom(std::string_view nom) {
    std::string fichier(common::sansblancs(nom));
    if (!fichier.empty() && !common::minuscules(fichier).ends_with(extension))
        fichier += extension;
    return fichier;
}

std::string refusdunom(std::string_view fichier) {
    const auto petit = common::minuscules(fichier);
    const auto nom = petit.substr(0, petit.size() - std::min(petit.size(), extension.size()));
    if (nom.empty())
        return "Donnez un nom à la liste.";
    if (common::longueur(fichier) > longueurmax)
        return "Ce nom est trop long ; la limite est de " + std::to_string(longueurmax) +
               " signes.";
    for (const auto& caractere : common::caracteres(fichier)) {
        const auto c = common::premier(caractere);
        if (c < U' ' || !common::code1252(c) || interdits.find(caractere) != std::string_view::npos)
            return "Le signe « " + caractere + " » ne peut être dans un nom de liste.";
    }
    if (nom.front() == '.' || nom.back() == '.' || nom.back() == ' ')
        return "Un nom de liste ne commence ni ne finit par un point ou un blanc.";
    if (std::find(appareils.begin(), appareils.end(), nom.substr(0, nom.find('.'))) !=
        appareils.end())
        return "Ce nom est réservé par certains systèmes.";
    if (fourni(petit))
        return "Ce nom est celui d'une liste du programme.";
    if (std::find(ducarnet.begin(), ducarnet.end(), petit) != ducarnet.end())
        return "Ce nom est celui d'une liste que le carnet refait lui-même.";
    if (common::sanspartie(fichier) != fichier)
        return "Un nom qui finit par « _ » et un signe est celui d'une partie de liste.";
    return {};
}

bool existeliste(common::Disque& disque, std::string_view fichier) {
    return disque.existe(common::cheminliste(fichier));
}

std::error_code enregistrer(common::Disque& disque, std::string_view fichier,
                            const std::vector<std::string>& rangees) {
    std::string octets;
    for (const auto& rangee : rangees)
        octets.append(common::vers1252(rangee)).append(common::findeligne);
    return disque.remplacer(common::cheminliste(fichier), octets);
}

std::string commentjouer(std::string_view fichier) {
    return "Pour la jouer : dans Orvane, AUTRES LISTES, « Listes diverses » ; sur la dernière "
           "ligne tapez " +
           std::string(fichier) + ", puis OK et « Tout ».";
}

}  // namespace carnet
