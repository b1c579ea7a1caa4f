#include "listes.h"

#include "texte.h"

namespace common {
namespace {

constexpr std::string_view prefixerevision = "\\rev-";

}  // namespace

std::string cheminliste(std::string_view fichier) {
    return std::string(dossierlistes).append("\\").append(fichier);
}

std::string sanspartie(std::string_view fichier) {
    const auto n = longueur(fichier);
    constexpr std::size_t suffixe = 6;  // "_a.txt"
    if (n < suffixe || milieu(fichier, n - suffixe + 1, 1) != "_")
        return std::string(fichier);
    return sansfin(fichier, suffixe) + ".txt";
}

std::string cheminrevision(std::string_view util, std::string_view fichier) {
    return std::string(util).append(prefixerevision).append(sanspartie(fichier));
}

std::string nomdeliste(std::string_view chemin) {
    return milieu(chemin, dossierlistes.size() + 2);
}

std::string nomderevision(std::string_view chemin, std::string_view util) {
    return milieu(chemin, longueur(util) + prefixerevision.size() + 1);
}

}  // namespace common
