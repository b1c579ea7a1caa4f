#include <string>

#include "alphabet.h"
#include "dessins.h"

namespace assets {

namespace {

constexpr double largeurscene = 960;
constexpr double hauteurscene = 600;
constexpr double table = 372;  // where the wall meets the table

Trait rectangle(double gauche, double haut, double droite, double bas, double rayon, Couleur clair,
                Couleur fonce, double flou = 0) {
    return {{{gauche + rayon, haut + rayon},
             {droite - rayon, haut + rayon},
             {droite - rayon, bas - rayon},
             {gauche + rayon, bas - rayon}},
            true,
            rayon,
            clair,
            fonce,
            flou};
}

void fond(Dessin& scene) {
    scene.traits.push_back(
        rectangle(-20, -20, largeurscene + 20, table, 0, rvb(0x1E4E66), rvb(0x4E93A3)));
    scene.traits.push_back({{{740, 132}}, false, 120, rvb(0xFFE9B8, .42), rvb(0xFFE9B8, .42), 620});
    scene.traits.push_back(rectangle(-20, table, largeurscene + 20, hauteurscene + 20, 0,
                                     rvb(0xC98F57), rvb(0x8A5A30)));
    for (int i = 0; i < 9; ++i) {  // grain of the wood
        const double y = table + 14 + i * i * 2.2;
        scene.traits.push_back({{{-20, y}, {300.0 + 40 * i, y + 3}, {largeurscene + 20, y - 2}},
                                false,
                                .8,
                                rvb(0x5A3614, .22),
                                rvb(0x5A3614, .22),
                                0});
    }
    scene.traits.push_back(rectangle(-20, table - 3, largeurscene + 20, table + 3, 0,
                                     rvb(0x4A2C12, .55), rvb(0x4A2C12, .55), 8));
}

void horloge(Dessin& scene) {
    constexpr Couleur ombre = rvb(0x0A1E28, .5);
    constexpr Couleur encre = rvb(0x2B2A30);
    Dessin cadran{2, 2, {}};
    const auto aiguille = [&cadran](double angle, double debut, double fin, double rayon,
                                    Couleur couleur) {
        const Dessin trait{
            2, 2, {{{{1, 1 - debut}, {1, 1 - fin}}, false, rayon, couleur, couleur, 0}}};
        ajouter(cadran, trait, {{1, 1}, 1, angle});
    };
    cadran.traits.push_back({{{1.05, 1.1}}, false, 1, ombre, ombre, .16});
    cadran.traits.push_back({{{1, 1}}, false, 1, rvb(0xB5763C), rvb(0x6B3A18), 0});
    cadran.traits.push_back({{{1, 1}}, false, .86, rvb(0xE9D9B4), rvb(0xFFFBF0), 0});
    for (int heure = 0; heure < 12; ++heure) {
        aiguille(30.0 * heure, heure % 3 == 0 ? .66 : .7, .76, heure % 3 == 0 ? .03 : .018, encre);
    }
    aiguille(304, -.08, .42, .038, encre);
    aiguille(48, -.08, .62, .026, encre);
    aiguille(170, -.14, .66, .01, rvb(0xC0392B));
    cadran.traits.push_back({{{1, 1}}, false, .05, rvb(0xC0392B), rvb(0x8E1F14), 0});
    ajouter(scene, cadran, {{740, 132}, 88, 0});
}

void chevalet(Dessin& scene) {
    scene.traits.push_back(
        rectangle(118, 414, 846, 462, 20, rvb(0x2A1606, .55), rvb(0x2A1606, .55), 46));
    scene.traits.push_back(rectangle(120, 292, 840, 432, 12, rvb(0x5E3418), rvb(0x3C1E0B)));
    constexpr double cote = 104;
    constexpr double pas = 111;
    const std::string nom = "ORVANE";
    for (std::size_t i = 0; i < nom.size(); ++i) {
        const double x = largeurscene / 2 + (static_cast<double>(i) - 2.5) * pas;
        const double penche = i == 2 ? -2.2 : i == 4 ? 1.6 : 0;
        ajouter(scene, jeton(nom[i], nom[i] == 'V' ? 4 : 1), {{x, 314}, cote, penche});
    }
    scene.traits.push_back(rectangle(108, 358, 852, 440, 14, rvb(0xA4632F), rvb(0x6B3A18)));
    scene.traits.push_back(rectangle(116, 362, 844, 368, 3, rvb(0xE2A66A, .75), rvb(0xE2A66A, .1)));
}

void crayon(Dessin& scene) {
    Dessin trace{260, 20, {}};
    trace.traits.push_back(rectangle(6, 12, 256, 26, 6, rvb(0x2A1606, .5), rvb(0x2A1606, .5), 14));
    trace.traits.push_back(rectangle(0, 2, 26, 18, 4, rvb(0xE79AA0), rvb(0xB8646C)));
    trace.traits.push_back(rectangle(20, 2, 38, 18, 0, rvb(0xE4E4E0), rvb(0x8E9090)));
    trace.traits.push_back(rectangle(38, 2, 216, 18, 0, rvb(0xF6C445), rvb(0xC98A12)));
    trace.traits.push_back(rectangle(38, 7, 216, 12, 0, rvb(0xFFE08A, .8), rvb(0xFFE08A, .2)));
    trace.traits.push_back(
        {{{216, 2}, {252, 9}, {252, 11}, {216, 18}}, true, 0, rvb(0xF3D9B0), rvb(0xC9A574), 0});
    trace.traits.push_back(
        {{{242, 7.2}, {258, 10}, {242, 12.8}}, true, .4, rvb(0x3A3A42), rvb(0x202026), 0});
    ajouter(scene, trace, {{690, 524}, 1.05, -7});
}

}  // namespace

Dessin jeton(char lettre, int valeur) {
    constexpr Couleur encre = rvb(0x2B2118);
    Dessin tuile{1, 1, {}};
    tuile.traits.push_back(
        rectangle(.02, .06, 1.02, 1.06, .12, rvb(0x1A0E04, .5), rvb(0x1A0E04, .5), .1));
    tuile.traits.push_back(rectangle(0, 0, 1, 1, .12, rvb(0xE9D3A2), rvb(0xB08B4E)));
    tuile.traits.push_back(rectangle(.03, .025, .97, .93, .1, rvb(0xFFF9E8), rvb(0xF3E2BB)));
    ajouter(tuile, mot({&lettre, 1}, .56, .09, encre), {{.48, .45}, 1, 0});
    ajouter(tuile, mot(std::to_string(valeur), .15, .03, encre), {{.83, .80}, 1, 0});
    return tuile;
}

Dessin naturemorte() {
    Dessin scene{largeurscene, hauteurscene, {}};
    fond(scene);
    horloge(scene);
    chevalet(scene);
    ajouter(scene, jeton('K', 10), {{190, 516}, 88, -17});
    ajouter(scene, jeton('Z', 10), {{322, 528}, 88, 12});
    crayon(scene);
    return scene;
}

}  // namespace assets
