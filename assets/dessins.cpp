#include "dessins.h"

#include <array>
#include <string_view>

#include "alphabet.h"
#include "image.h"

namespace assets {

namespace {

constexpr double lisere = 1.3;  // light rim that sets a mark off from any colour under it
constexpr Couleur blanc = rvb(0xFFFFFF);

struct Ligne {
    std::string_view texte;
    Point milieu;
    double hauteur;
    double plume;
};

struct Teinte {
    Couleur haut;
    Couleur bas;
};

constexpr Teinte bleu{rvb(0x3A6FD0), rvb(0x173A86)};
constexpr Teinte canard{rvb(0x1F9A8F), rvb(0x0B5450)};
constexpr Teinte violet{rvb(0xA050C8), rvb(0x5A1E7E)};
constexpr Teinte brique{rvb(0xD0342C), rvb(0x8C1414)};
constexpr Teinte ambre{rvb(0xAC5A08), rvb(0x7C3C00)};
constexpr Teinte ardoise{rvb(0x59606C), rvb(0x23272E)};
constexpr Teinte vert{rvb(0x2E9A4A), rvb(0x146C2E)};
constexpr Teinte rouge{rvb(0xE04040), rvb(0xA01018)};

// Filled outlines, in nominal pixels; the radius rounds an outline and widens it.
struct Contour {
    std::vector<Point> points;
    double rayon;
};

// A sign of one colour: an outline, a light rim, and letters. Lengths in nominal pixels.
struct Signe {
    std::string_view nom;
    double largeur;
    double hauteur;
    Contour contour;
    Teinte teinte;
    std::vector<Ligne> lignes;
    bool nouveau = false;  // a sparkle in the left half, for a new word
};

Contour carre(double debut, double fin, double rayon) {
    return {{{debut, debut}, {fin, debut}, {fin, fin}, {debut, fin}}, rayon};
}

// A rectangle with its corners cut off.
Contour octogone(double largeur, double hauteur, double marge, double coupe, double rayon) {
    const double droite = largeur - marge;
    const double bas = hauteur - marge;
    return {{{marge + coupe, marge},
             {droite - coupe, marge},
             {droite, marge + coupe},
             {droite, bas - coupe},
             {droite - coupe, bas},
             {marge + coupe, bas},
             {marge, bas - coupe},
             {marge, marge + coupe}},
            rayon};
}

// The dated marks keep their figure in the right half: a half mark stands on the left one.
std::vector<Signe> marques() {
    constexpr double cote = 28;
    const Contour rond{{{14, 14}}, 12.3};
    const Contour ecu{{{4.5, 4.5}, {23.5, 4.5}, {23.5, 14.5}, {14, 23.5}, {4.5, 14.5}}, 2.8};
    const Contour losange{{{14, 3}, {25, 14}, {14, 25}, {3, 14}}, 1.4};
    const Contour fleche{{{4, 6}, {15, 6}, {24.5, 14}, {15, 22}, {4, 22}}, 2};
    return {
        {"ods5_28x28", cote, cote, carre(6, 22, 4.3), bleu, {{"5", {19, 14}, 15, 2.6}}, true},
        {"ods6_28x28", cote, cote, rond, canard, {{"6", {18.8, 14}, 15, 2.6}}, true},
        {"ods7_28x28", cote, cote, ecu, violet, {{"7", {19, 12}, 14, 2.6}}, true},
        {"ppi_28x28", cote, cote, losange, brique, {{"PPI", {14, 14}, 9, 1.8}}},
        {"vbt_28x28", cote, cote, fleche, ambre, {{"VT", {12.5, 14}, 11, 2.2}}},
        {"inv_28x28",
         cote,
         cote,
         octogone(cote, cote, 3, 6.3, 1.4),
         ardoise,
         {{"INV", {14, 14}, 11, 2}}},
    };
}

// The letters stand one under the other.
std::vector<Signe> demimarques() {
    constexpr double largeur = 14;
    constexpr double hauteur = 28;
    const Contour losange{{{7, 2}, {11.7, 6}, {11.7, 22}, {7, 26}, {2.3, 22}, {2.3, 6}}, .8};
    const Contour fleche{{{2.5, 2.5}, {11.5, 2.5}, {11.5, 19}, {7, 26}, {2.5, 19}}, 1};
    return {
        {"ppi_14x28",
         largeur,
         hauteur,
         losange,
         brique,
         {{"P", {7, 7}, 6, 1.6}, {"P", {7, 14}, 6, 1.6}, {"I", {7, 21}, 6, 1.6}}},
        {"vbt_14x28",
         largeur,
         hauteur,
         fleche,
         ambre,
         {{"V", {7, 7.5}, 9, 1.9}, {"T", {7, 17.5}, 9, 1.9}}},
        {"inv_14x28",
         largeur,
         hauteur,
         octogone(largeur, hauteur, 2.3, 2.7, .8),
         ardoise,
         {{"I", {7, 7}, 6, 1.6}, {"N", {7, 14}, 6, 1.6}, {"V", {7, 21}, 6, 1.6}}},
    };
}

std::vector<Signe> badges() {
    constexpr double cote = 30;
    const Contour cadre = carre(4, 26, 2.4);
    return {
        {"vb_30x30", cote, cote, cadre, vert, {{"Vb", {15, 15}, 15, 3}}},
        {"jkq_30x30",
         cote,
         cote,
         cadre,
         rouge,
         {{"JKQ", {15, 9.5}, 8.5, 1.5}, {"WXYZ", {15, 20.5}, 6.6, 1.2}}},
    };
}

Trait etincelle(Point milieu, double rayon) {
    Trait trait{{}, true, .35, blanc, blanc, 0};
    const double creux = rayon * .24;
    for (const auto& [x, y] : std::array<Point, 8>{{{0, -rayon},
                                                    {creux, -creux},
                                                    {rayon, 0},
                                                    {creux, creux},
                                                    {0, rayon},
                                                    {-creux, creux},
                                                    {-rayon, 0},
                                                    {-creux, -creux}}}) {
        trait.points.push_back({milieu.x + x, milieu.y + y});
    }
    return trait;
}

Dessin dessiner(const Signe& signe) {
    Dessin dessin{signe.largeur, signe.hauteur, {}};
    dessin.traits.push_back(
        {signe.contour.points, true, signe.contour.rayon + lisere, blanc, blanc, 0});
    dessin.traits.push_back(
        {signe.contour.points, true, signe.contour.rayon, signe.teinte.haut, signe.teinte.bas, 0});
    for (const Ligne& ligne : signe.lignes) {
        ajouter(dessin, mot(ligne.texte, ligne.hauteur, ligne.plume, blanc), {ligne.milieu, 1, 0});
    }
    if (signe.nouveau) {
        dessin.traits.push_back(etincelle({8.2, 10.6}, 4));
    }
    return dessin;
}

// A picture and its finer variants, each drawn anew; the size is that of the first, in pixels.
void ajouterfinesses(std::vector<Tableau>& liste, const std::string& nom, const char* terminaison,
                     const Dessin& dessin, int largeur, int hauteur) {
    for (const int finesse : {1, 2, 4}) {
        const std::string suffixe = finesse > 1 ? "@" + std::to_string(finesse) + "x" : "";
        liste.push_back(
            {nom + suffixe + terminaison, dessin, largeur * finesse, hauteur * finesse});
    }
}

constexpr std::array cotesicone{16, 24, 32, 48, 64, 128, 256};  // pixels

// A tile on a round-cornered background.
Dessin icone() {
    constexpr double cote = 64;
    Dessin dessin{cote, cote, {}};
    dessin.traits.push_back(
        {{{14, 14}, {50, 14}, {50, 50}, {14, 50}}, true, 13, rvb(0x2F8F9D), rvb(0x123E5C), 0});
    ajouter(dessin, jeton('O', 1), {{cote / 2, cote / 2}, 42, -8});
    return dessin;
}

// Beside the last page of the installer for Windows, as wide and high as it wants it.
Tableau bordure() {
    constexpr double largeur = 164;
    constexpr double hauteur = 314;
    Dessin dessin{largeur, hauteur, {}};
    dessin.traits.push_back({{{0, 0}, {largeur, 0}, {largeur, hauteur}, {0, hauteur}},
                             true,
                             1,
                             rvb(0x2F8F9D),
                             rvb(0x123E5C),
                             0});
    double y = 42;
    double cote = -1;  // of the middle, in turn
    for (const char lettre : std::string_view("ORVANE")) {
        ajouter(dessin, jeton(lettre, lettre == 'V' ? 4 : 1),
                {{largeur / 2 + cote * 14, y}, 42, cote * 8});
        y += 46;
        cote = -cote;
    }
    return {"installeur.dib", dessin, static_cast<int>(largeur), static_cast<int>(hauteur)};
}

}  // namespace

std::vector<Tableau> tableaux() {
    std::vector<Tableau> liste;
    for (const auto& signes : {marques(), demimarques(), badges()}) {
        for (const Signe& signe : signes)
            ajouterfinesses(liste, std::string(signe.nom), ".bmp", dessiner(signe),
                            static_cast<int>(signe.largeur), static_cast<int>(signe.hauteur));
    }
    for (const int cote : cotesicone) {
        liste.push_back({"orvane_" + std::to_string(cote) + ".png", icone(), cote, cote});
    }
    // As large as the login shows it on a screen of 1366 by 768: nothing to scale while it opens.
    ajouterfinesses(liste, "connexion", ".png", naturemorte(), 408, 255);
    return liste;
}

std::vector<Tableau> icones() {
    std::vector<Tableau> liste;
    for (const int cote : cotesicone)
        liste.push_back({std::to_string(cote) + ".png", icone(), cote, cote});
    liste.push_back({"512.png", icone(), 512, 512});
    liste.push_back({"orvane.svg", icone(), 0, 0});
    liste.push_back({"orvane.ico", icone(), 0, 0});
    liste.push_back(bordure());
    return liste;
}

std::string fichier(const Tableau& tableau) {
    if (tableau.nom.ends_with(".svg"))
        return svg(tableau.dessin);
    if (tableau.nom.ends_with(".ico")) {
        std::vector<Image> images;
        for (const int cote : cotesicone)
            images.push_back(peindre(tableau.dessin, cote, cote));
        return ico(images);
    }
    const Image image = peindre(tableau.dessin, tableau.largeur, tableau.hauteur);
    if (tableau.nom.ends_with(".dib"))
        return dib(image);
    return tableau.nom.ends_with(".png") ? png(image) : bmp(image);
}

}  // namespace assets
