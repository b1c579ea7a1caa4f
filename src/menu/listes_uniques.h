#pragma once

// The lists of racks with one solution. Included by catalogue.cpp alone.

#include <array>
#include <string_view>

#include "catalogue.h"

namespace menu::listes {

using enum Insigne;

inline constexpr std::string_view selectionunique = "Sélection. Solutions uniques.";
inline constexpr std::string_view exhaustifnombreux =
    "Exhaustif, c'est pour ça qu'il y en a autant !";
inline constexpr std::string_view exhaustifsansconjugaison =
    "Exhaustif sans conjugaison, c'est pour ça qu'il y en a autant !";
/// The rows by weight, which three panels share.
inline constexpr std::array<std::string_view, 8> poids{
    "Les tirages les plus lourds sans lettre chère. Plusieurs lettres semi-chères donc. Ca ne sort "
    "pas souvent mais ça fait mal.",
    "Tirages lourds, très divers, comme 2 lettres à 4 pts ou 3 à 3 pts.",
    "Que des lettres à 1 pt, une hantise du scrabbleur ! Très utiles !",
    "Tirages relativement lourds mais qu'on voit de temps en temps.",
    "Une seule lettre à 2 pts : D G ou M, avec des lettres à 1 pt. Pas facile !",
    "Pas évident car pas mal de mots et répartition très variée.",
    "Le poids le plus dur : B C P DG DM GM DD GG MM avec lettres à 1 pt.",
    "Difficile également : 1+1+1 ou 2+1 ou 3."};
inline constexpr std::string_view solutionunique = "Sélection. Solution unique.";
inline constexpr std::string_view exhaustifunique = "Exhaustif. Solution unique.";
inline constexpr std::string_view nonconjugueexhaustif =
    "Exhaustif. Solution non conjuguée unique.";
inline constexpr std::string_view nonconjugue =
    "Retrouvez l'unique solution non conjuguée ayant au moins 2 anagrammes conjuguées !\nNiveau : "
    "difficile";

inline constexpr std::array conja{
    Rangee{"Défectifs 7-8L", "78d.txt", 0, 1, verbe, solutionunique,
           "Les formes sans anagrammes des verbes défectifs"},
    Rangee{"Atypiques 7L", "7at.txt", 0, 1, verbe, solutionunique,
           "Formes conjuguées atypiques uniques 7L. La plupart vous sembleront faciles mais "
           "certains feront la différence."},
    Rangee{"Atypiques 8L", "8at.txt", 2, 1, verbe, "Sélection. Solution unique. Divisée en 2.",
           "Formes conjuguées atypiques uniques 8L. La plupart vous sembleront faciles mais "
           "certains feront la différence."},
    Rangee{"Uniques 7L", "conj7u.txt", 0, 1, verbe, exhaustifunique,
           "Formes conjuguées uniques 7L. Un bon test de connaissance des verbes."},
    Rangee{"Uniques 8L", "conj8u.txt", 0, 1, verbe, exhaustifunique,
           "Formes conjuguées uniques 8L. Un bon test de connaissance des verbes."},
    Rangee{"1 nonconj 7L", "z7.txt", 0, 1, aucun, nonconjugueexhaustif, nonconjugue},
    Rangee{"1 nonconj 8L", "z8.txt", 0, 1, aucun, nonconjugueexhaustif, nonconjugue},
    Rangee{"1 nonconj sél.", "z78_sel.txt", 0, 1, aucun,
           "Sélection. Solution non conjuguée unique.",
           "Retrouvez l'unique solution non conjuguée ayant au moins 2 anagrammes conjuguées "
           "(sélection).\nNiveau : difficile"},
};

inline constexpr std::array six{
    Rangee{"6L poids >6", "6up.txt", 0, 1, aucun, selectionunique, poids[0]},
    Rangee{"6L poids 6", "6v6.txt", 0, 1, aucun, selectionunique, poids[1]},
    Rangee{"6L poids 0", "6v0.txt", 0, 1, aucun, selectionunique, poids[2]},
    Rangee{"6L poids 5", "6v5.txt", 0, 1, aucun, selectionunique, poids[3]},
    Rangee{"6L poids 1", "6v1.txt", 0, 1, aucun, selectionunique, poids[4]},
    Rangee{"6L poids 4", "6v4.txt", 0, 1, aucun, selectionunique, poids[5]},
    Rangee{"6L poids 2", "6v2.txt", 2, 1, aucun, selectionunique, poids[6]},
    Rangee{"6L poids 3", "6v3.txt", 2, 1, aucun, selectionunique, poids[7]},
};

inline constexpr std::array sept{
    Rangee{"7L poids >6", "7up.txt", 0, 1, aucun, selectionunique, poids[0]},
    Rangee{"7L poids 6", "7v6.txt", 0, 1, aucun, selectionunique, poids[1]},
    Rangee{"7L poids 0", "7v0.txt", 0, 1, aucun, selectionunique, poids[2]},
    Rangee{"7L poids 5", "7v5.txt", 2, 1, aucun, selectionunique, poids[3]},
    Rangee{"7L poids 1", "7v1.txt", 2, 1, aucun, selectionunique, poids[4]},
    Rangee{"7L poids 4", "7v4.txt", 3, 1, aucun, selectionunique, poids[5]},
    Rangee{"7L poids 2", "7v2.txt", 4, 1, aucun, selectionunique, poids[6]},
    Rangee{"7L poids 3", "7v3.txt", 4, 1, aucun, selectionunique, poids[7]},
};

inline constexpr std::array huit{
    Rangee{"8L poids >6", "8up.txt", 2, 1, aucun, selectionunique, poids[0]},
    Rangee{"8L poids 6", "8v6.txt", 2, 1, aucun, selectionunique, poids[1]},
    Rangee{"8L poids 0", "8v0.txt", 2, 1, aucun, selectionunique, poids[2]},
    Rangee{"8L poids 5", "8v5.txt", 3, 1, aucun, selectionunique, poids[3]},
    Rangee{"8L poids 1", "8v1.txt", 3, 1, aucun, selectionunique, poids[4]},
    Rangee{"8L poids 4", "8v4.txt", 4, 1, aucun, selectionunique, poids[5]},
    Rangee{"8L poids 2", "8v2.txt", 4, 1, aucun, selectionunique, poids[6]},
    Rangee{"8L poids 3", "8v3.txt", 4, 1, aucun, selectionunique, poids[7]},
};

inline constexpr std::array lc78a{
    Rangee{"7et8L poids 7", "78v7.txt", 0, 1, chere, exhaustifnombreux, ""},
    Rangee{"7et8L poids 8", "78v8.txt", 0, 1, chere, exhaustifnombreux, ""},
    Rangee{"7L poids 9", "7v9.txt", 0, 1, chere, exhaustifnombreux, ""},
    Rangee{"8L poids 9", "8v9.txt", 0, 1, chere, exhaustifnombreux, ""},
    Rangee{"7L poids 10", "7vd.txt", 0, 1, chere, exhaustifnombreux, ""},
    Rangee{"8L poids 10", "8vd.txt", 0, 1, chere, exhaustifnombreux, ""},
    Rangee{"7L poids 11", "7vo.txt", 0, 1, chere, exhaustifnombreux, ""},
    Rangee{"8L poids 11", "8vo.txt", 0, 1, chere, exhaustifnombreux, ""},
};

inline constexpr std::array lc78b{
    Rangee{"7L poids 12", "7vu.txt", 0, 1, chere, exhaustifsansconjugaison, ""},
    Rangee{"8L poids 12", "8vu.txt", 0, 1, chere, exhaustifsansconjugaison, ""},
    Rangee{"7et8L poids 13", "78v13.txt", 0, 1, chere, exhaustifsansconjugaison, ""},
    Rangee{"7et8L poids 14-15", "78v145.txt", 0, 1, chere, exhaustifsansconjugaison, ""},
    Rangee{"7et8L poids >15", "78vup.txt", 0, 1, chere, exhaustifsansconjugaison, ""},
    Rangee{"7et8L tout", "78tout.txt", 0, 1, chere, "",
           "Exhaustif sur les entrées. Donc sauf quelques exceptions, pas de conjugaisons, pas de "
           "pluriels évidents."},
    Rangee{"7et8L sél-durs", "ch78rev.txt", 0, 1, chere, "",
           "Sélection (subjective) des 7-8L les plus difficiles"},
    Rangee{"7et8L ODS 5-6-7", "78ods5-6-7.txt", 0, 1, chere, "",
           "Nouveautés des ODS 5, 6 et 7\n(2008, 2012, 2016)"},
};

}  // namespace menu::listes
