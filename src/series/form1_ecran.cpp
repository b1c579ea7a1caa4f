// Form1: its two layouts, in twips.

#include <array>

#include "form1.h"
#include "listes.h"

namespace series {
namespace {

/// Three columns of ten boxes, each a rack with its answer to the right of it.
struct Grille {
    int gauche = 0;
    int haut = 0;
    int pascolonne = 0;
    int pasrangee = 0;
    int largeurboite = 0;
    int hauteurboite = 0;
    int ecart = 0;  ///< between a rack and its answer
};

struct Ecran {
    int largeur = 0;
    int hauteur = 0;
    Grille grille;
    ui::Cadrage tuile;      ///< tile 0; the others follow, touching
    ui::Cadrage notes;      ///< `InfoSourisText` while a list runs
    ui::Cadrage notesafin;  ///< and once it is done
};

constexpr int rangeesdecolonne = 10;

constexpr Ecran normal{20400,
                       10900,
                       {240, 860, 5520, 800, 2450, 620, 60},
                       {240, 8900, 840, 840},
                       {8060, 8860, 8660, 1900},
                       {8060, 9800, 8660, 960}};
constexpr Ecran compact{18000,
                        9280,
                        {120, 560, 4780, 620, 2100, 560, 40},
                        {normal.tuile.gauche, 6800, 840, 840},
                        {120, 7700, 14220, 1000},
                        {120, 7700, 14220, 560}};

/// A control that stands alone, in the two layouts.
struct Place {
    std::string_view nom;
    int index = -1;
    ui::Cadrage normal;
    ui::Cadrage compact;
};

constexpr std::array places{
    Place{"Label7", -1, {240, 160, 6500, 480}, {120, 60, 9000, 420}},
    Place{"Label5", -1, {7000, 220, 3500, 420}, {120, 8780, 3500, 400}},
    Place{"seuiltxt", -1, {10560, 170, 700, 460}, {3680, 8740, 700, 440}},
    Place{"Label6", -1, {11360, 220, 1200, 420}, {4480, 8780, 1200, 400}},
    Place{"voyant", -1, {12660, 220, 800, 420}, {5780, 8780, 800, 400}},
    Place{"Command4", -1, {13560, 150, 2300, 500}, {6700, 8730, 2300, 460}},
    Place{"Frame1", 0, {17000, 150, 3200, 2650}, {14600, 60, 3280, 2350}},
    Place{"Label3", -1, {17130, 220, 2940, 360}, {14730, 110, 3020, 340}},
    Place{"Label1", -1, {17130, 760, 900, 420}, {14730, 560, 900, 420}},
    Place{"temps", -1, {18050, 660, 2020, 600}, {15700, 490, 2050, 540}},
    Place{"Label2", -1, {17130, 1460, 900, 420}, {14730, 1160, 900, 420}},
    Place{"tempstot", -1, {18050, 1360, 2020, 600}, {15700, 1090, 2050, 540}},
    Place{"Check1", -1, {17130, 2160, 1300, 460}, {14730, 1760, 1300, 440}},
    Place{"Command5", -1, {18550, 2130, 1520, 520}, {16200, 1740, 1550, 500}},
    Place{"Frame1", 1, {17000, 2960, 3200, 2300}, {14600, 2520, 3280, 2250}},
    Place{"Label4", -1, {17130, 3100, 1700, 400}, {14730, 2640, 1700, 400}},
    Place{"motsleft", -1, {18870, 3060, 1200, 460}, {16500, 2600, 1250, 440}},
    Place{"Label8", -1, {17130, 3620, 1700, 400}, {14730, 3130, 1700, 380}},
    Place{"nbftot", -1, {18870, 3620, 1200, 400}, {16500, 3130, 1250, 380}},
    Place{"nbseries", -1, {17130, 4080, 2940, 380}, {14730, 3560, 3020, 360}},
    Place{"score", -1, {17130, 4530, 1420, 600}, {14730, 4040, 1450, 560}},
    Place{"tps", -1, {18600, 4530, 1470, 600}, {16250, 4040, 1500, 560}},
    Place{"corriger", -1, {17000, 5460, 3200, 640}, {14600, 4920, 3280, 580}},
    Place{"restart", -1, {17000, 6220, 3200, 640}, {14600, 5590, 3280, 580}},
    Place{"Frame1", 2, {17000, 7100, 3200, 1420}, {14600, 6300, 3280, 760}},
    Place{"Command3", -1, {17130, 7220, 2300, 540}, {14730, 6420, 2300, 520}},
    Place{"police", -1, {19520, 7300, 550, 400}, {17120, 6490, 630, 400}},
    Place{"Command6", -1, {17130, 7880, 2940, 540}, {14730, 6420, 2300, 520}},
    Place{"quitter", -1, {17000, 10020, 3200, 700}, {14600, 8560, 3280, 600}},
    Place{"recherche", -1, {240, 9960, 4900, 620}, {7840, 6910, 4200, 600}},
    Place{"valider", -1, {5260, 9960, 2540, 620}, {12160, 6910, 2180, 600}},
    Place{"Command2", -1, {300, 9000, 15, 15}, {200, 6900, 15, 15}},
    Place{"cache", -1, {320, 9000, 15, 15}, {220, 6900, 15, 15}},
    Place{"Line1", -1, {5660, 860, 15, 7820}, {4840, 560, 15, 6140}},
    Place{"Line2", -1, {11180, 860, 15, 7820}, {9620, 560, 15, 6140}},
    Place{"Line3", -1, {240, 740, 16480, 15}, {120, 490, 14220, 15}},
    Place{"Line4", -1, {240, 8780, 16480, 15}, {120, 6750, 14220, 15}},
    Place{"Line5", -1, {16860, 150, 15, 10600}, {14480, 60, 15, 9100}},
};

constexpr int largeurlabel5succes = 2350;
constexpr int largeurlabel5secondes = 3500;

}  // namespace

void Form1::disposer() {
    const auto& ecran = modecompact_ ? compact : normal;
    largeur = ecran.largeur;
    hauteur = ecran.hauteur;
    for (const auto& place : places)
        controle(place.nom, place.index).placer(modecompact_ ? place.compact : place.normal);
    disposerboites();
    int rang = 0;
    for (auto* tuile : tuiles.controles()) {
        auto cadre = ecran.tuile;
        cadre.gauche += rang++ * cadre.largeur;
        tuile->placer(cadre);
    }
    placercritere();
    rangernotes(false);
}

void Form1::disposerboites() {
    const auto& grille = (modecompact_ ? compact : normal).grille;
    for (int i = 0; i < common::tiragesform1; ++i) {
        const auto place = static_cast<std::size_t>(i);
        const int gauche = grille.gauche + i / rangeesdecolonne * grille.pascolonne;
        const int haut = grille.haut + i % rangeesdecolonne * grille.pasrangee;
        tirage[place]->placer({gauche, haut, grille.largeurboite, grille.hauteurboite});
        solution[place]->placer({gauche + grille.largeurboite + grille.ecart, haut,
                                 grille.largeurboite, grille.hauteurboite});
        marques.placer(place, *solution[place]);
    }
}

/// The compact layout stays until the program ends.
void Form1::passercompact() {
    modecompact_ = true;
    Command6.visible = false;
    disposer();
    tuiles.relever();
    if (serie_.rangees.nbmots() == 0)
        rangernotes(true);
}

void Form1::rangernotes(bool listefinie) {
    const auto& ecran = modecompact_ ? compact : normal;
    InfoSourisText.placer(listefinie ? ecran.notesafin : ecran.notes);
}

/// From left to right: `Label5`, `seuiltxt`, `Label6`.
void Form1::placercritere() {
    constexpr int ecart = 60;
    Label5.largeur = serie_.critere.secondes ? largeurlabel5secondes : largeurlabel5succes;
    seuiltxt.gauche = Label5.gauche() + Label5.largeur() + ecart;
    Label6.gauche = seuiltxt.gauche() + seuiltxt.largeur() + ecart;
}

}  // namespace series
