// Multi: its layout, in twips. A rack and its answers make one line; the clocks, the counters and
// the buttons stand in a column behind the last answers of the list.

#include <algorithm>
#include <array>

#include "multi.h"
#include "parcours.h"

namespace multi {
namespace {

constexpr ui::Cadrage boite0{3360, 840, 2700, 555};  ///< first answer of the first rack
constexpr int gauchetirage = 240;
constexpr int pascolonne = 3240;
constexpr int pasrangee = 720;
constexpr ui::Cadrage tuile0{5085, 8280, 840, 840};
constexpr ui::Cadrage notes{3720, 8040, 10455, 2895};
constexpr ui::Cadrage notesafin{3720, 9240, 10455, 1700};  ///< below the tiles
constexpr int hauteurfenetre = 11040;
constexpr int marge = 240;
constexpr int largeurcolonne = 3600;

/// A control that stands alone.
struct Place {
    std::string_view nom;
    int index;
    ui::Cadrage cadre;
};

/// Above the racks and at the foot.
constexpr std::array fixes{
    Place{"Label5", -1, {60, 130, 1740, 560}},      Place{"seuiltxt", -1, {1800, 190, 330, 440}},
    Place{"Label6", -1, {2160, 210, 900, 400}},     Place{"voyant", -1, {4140, 210, 560, 400}},
    Place{"Command4", -1, {4740, 160, 2280, 500}},  Place{"Label7", -1, {7260, 170, 6800, 480}},
    Place{"recherche", -1, {240, 8280, 2700, 600}}, Place{"valider", -1, {240, 9000, 2700, 540}},
    Place{"Command3", -1, {240, 10320, 2200, 540}}, Place{"police", -1, {2520, 10400, 420, 400}},
    Place{"Command2", -1, {5200, 8400, 15, 15}},    Place{"cache", -1, {5240, 8400, 15, 15}},
};

/// In the column, from its left edge.
constexpr std::array decolonne{
    Place{"Frame1", 0, {0, 840, largeurcolonne, 2520}},
    Place{"Label3", -1, {130, 900, 3340, 360}},
    Place{"Label1", -1, {130, 1400, 900, 420}},
    Place{"temps", -1, {1100, 1310, 2370, 580}},
    Place{"Label2", -1, {130, 2060, 900, 420}},
    Place{"tempstot", -1, {1100, 1970, 2370, 580}},
    Place{"Check1", -1, {130, 2720, 1500, 460}},
    Place{"Command5", -1, {1750, 2690, 1720, 520}},
    Place{"Frame1", 1, {0, 3480, largeurcolonne, 2340}},
    Place{"Label4", -1, {130, 3610, 1950, 400}},
    Place{"motsleft", -1, {2130, 3570, 1340, 460}},
    Place{"Label8", -1, {130, 4140, 1800, 400}},
    Place{"nbftotal", -1, {1950, 4140, 1520, 400}},
    Place{"nbseries", -1, {130, 4600, 3340, 380}},
    Place{"score", -1, {130, 5080, 1620, 600}},
    Place{"tps", -1, {1850, 5080, 1620, 600}},
    Place{"corriger", -1, {0, 5940, largeurcolonne, 600}},
    Place{"restart", -1, {0, 6640, largeurcolonne, 600}},
    Place{"quitter", -1, {0, 7340, largeurcolonne, 535}},
};

/// The left edge of the column: right of the answers, and of the notes.
int gauchedecolonne(int colonnes) {
    return std::max(boite0.gauche + colonnes * pascolonne,
                    notes.gauche + notes.largeur - largeurcolonne);
}

}  // namespace

void Multi::disposer() {
    hauteur = hauteurfenetre;
    for (const auto& place : fixes)
        controle(place.nom, place.index).placer(place.cadre);
    for (std::size_t i = 0; i < solution.size(); ++i) {
        const auto place = static_cast<int>(i) % nbtirages;
        auto cadre = boite0;
        cadre.gauche += static_cast<int>(i) / nbtirages * pascolonne;
        cadre.haut += place * pasrangee;
        solution[i]->placer(cadre);
        cadre.gauche = gauchetirage;
        tirage[static_cast<std::size_t>(place)]->placer(cadre);
    }
    int rang = 0;
    for (auto* tuile : tuiles.controles()) {
        auto cadre = tuile0;
        cadre.gauche += rang++ * cadre.largeur;
        tuile->placer(cadre);
    }
    disposercolonne();
    rangernotes(false);
}

/// Moves the column, and the right edge of the window, to the right of the answers.
void Multi::disposercolonne() {
    const int colonne = gauchedecolonne(static_cast<int>(serie_.nbsolutions()));
    largeur = colonne + largeurcolonne + marge;
    for (const auto& place : decolonne) {
        auto cadre = place.cadre;
        cadre.gauche += colonne;
        controle(place.nom, place.index).placer(cadre);
    }
}

void Multi::rangernotes(bool listefinie) {
    InfoSourisText.placer(listefinie ? notesafin : notes);
}

}  // namespace multi
