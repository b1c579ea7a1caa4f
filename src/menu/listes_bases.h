#pragma once

// The lists of the two panels of techniques. Included by catalogue.cpp alone.

#include <array>

#include "catalogue.h"

namespace menu::listes {

using enum Insigne;

inline constexpr std::array bt{
    Rangee{"Lettre Chère 3L", "3lc.txt", 0, 1, chere, "Exhaustif",
           "Sans doute les mots les plus utiles du scrabbleur qui débute !"},
    Rangee{"Mots 3L", "3lt.txt", 0, 1, aucun, "Sans lettre chère.\nSans anagrammes trop multiples.",
           "Juste après les mots de 2 lettres, l'outil indispensable du scrabbleur !"},
    Rangee{"Verbes 4-5L", "vb45.txt", 0, 1, verbe,
           "Sélection (total=308)\nLes plus courants et les défectifs ont été enlevés.",
           "Conjuguer, le sésame du scrabbleur. Pas de survie sans verbe !!"},
    Rangee{
        "Verbes 6L", "vb6.txt", 3, 1, verbe,
        "Sélection (total=779)\nLa base a été divisée en 3 pour être travaillée plus facilement.",
        "Première liste un peu difficile à maîtriser, mais tellement pratique..."},
    Rangee{"Lettre Chère 4L", "4lc.txt", 0, 1, chere, "Presque exhaustif",
           "Les lettres chères ça finit toujours par payer ! 4L : très utiles."},
    Rangee{"Lettre Chère 5L", "5lc.txt", 3, 1, chere,
           "Presque exhaustif\nLa base a été divisée en 2 pour être travaillée plus facilement.",
           "5L avec une lettre chère : le petit plus sympa."},
};

inline constexpr std::array ta{
    Rangee{"Lettre chère 6L", "6lc.txt", 4, 1, chere, "Sélection (total=1902). Divisée en 2.",
           "6L avec une lettre chère : complément technique de qualité et parfois des scrabbles !"},
    Rangee{"Verbes 7L", "vb7.txt", 4, 1, verbe,
           "Sélection (total=1215)\nSeulement 1er et 2ème groupe. Divisée en 4.",
           "Difficile de s'en passer, ils tombent tellement souvent !"},
    Rangee{"Verbes 8L", "vb8.txt", 4, 1, verbe,
           "Sélection (total=1467)\nSeulement 1er et 2ème groupe. Divisée en 4.",
           "Le début de l'expertise avec cette base massive et peu évidente. Courage requis mais "
           "vous en récolterez les fruits."},
    Rangee{"Verbes 9L", "vb9.txt", 4, 1, verbe,
           "Sélection (total=1300).\nSeulement 1er et 2ème groupe. Divisée en 4.",
           "La dernière base de verbes utile pour scrabbler en 8L. Seulement 2 formes (-E et -A) "
           "mais c'est déjà ça. Le début du perfectionnisme."},
    Rangee{"Mots 4L", "4lt.txt", 2, 1, aucun,
           "Sélection (total=1568). Sans lettre chère ni anagrammes trop multiples. Préférez un "
           "nom à une conjugaison. Divisée en 2.",
           "Pas toujours utiles et à mon avis pas indispensable avant la 2ème série. Peut "
           "néanmoins rendre de fiers services évidemment."},
    Rangee{"Mots 5L", "5lt.txt", 4, 1, aucun,
           "Sélection (total=3676). Sans lettre chère ni anagrammes trop multiples. Préférez un "
           "nom de 5L (pas conj ni pluriel). Divisée en 4.",
           "Une base très difficile et il faut bien le dire peu utile (même pour les N1). Pour "
           "ceux qui visent la super série !"},
};

}  // namespace menu::listes
