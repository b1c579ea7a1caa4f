#pragma once

// The lists of racks with two to five solutions. Included by catalogue.cpp alone.

#include <array>
#include <string_view>

#include "catalogue.h"

namespace menu::listes {

using enum Insigne;

inline constexpr std::string_view exhaustif = "Exhaustif";
inline constexpr std::string_view sansevidences = "Sans solutions évidentes ou redondantes";
inline constexpr std::string_view duospurs = "Duos purs : aucune autre anagramme";
inline constexpr std::string_view duosimpurs =
    "Duos impurs : au moins une autre anagramme conjuguée (non demandée)\n(plus difficiles que les "
    "duos purs)";
inline constexpr std::string_view duosselection = "Duos purs : sélection";
inline constexpr std::string_view duos567 = "Duos purs : sélection poids 5 6 7";
inline constexpr std::string_view duos014 = "Duos purs : sélection poids 0 1 4";
inline constexpr std::string_view duos23 = "Duos purs : sélection poids 2 3";
inline constexpr std::string_view duossanstirage = "Duos : le tirage est l'une des 2 anagrammes";
inline constexpr std::string_view pursetimpurs = "Purs et impurs exhaustifs";
inline constexpr std::string_view sanspluriels = "Exhaustif sans les duos de 7L au pluriel";
inline constexpr std::string_view sanstriospluriels = "Sans les trios de 7L au pluriel";
inline constexpr std::string_view sansquatuorspluriels = "Sans les quatuors de 7L au pluriel";

inline constexpr std::array duos7{
    Rangee{"Duos 7L purs", "7l_duos_purs.txt", 0, 2, aucun, exhaustif, duospurs},
    Rangee{"Duos 7L impurs", "7l_duos_impurs.txt", 4, 2, aucun, exhaustif, duosimpurs},
    Rangee{"Duos 7L purs sél", "7l_duos_purs_sel.txt", 0, 2, aucun, sansevidences, duosselection},
    Rangee{"Duos 7L purs p567", "7l_duos_purs567.txt", 3, 2, aucun, sansevidences, duos567},
    Rangee{"Duos 7L purs p014", "7l_duos_purs014.txt", 4, 2, aucun, sansevidences, duos014},
    Rangee{"Duos 7L purs p23", "7l_duos_purs23.txt", 4, 2, aucun, sansevidences, duos23},
    Rangee{"Duos 7L sans tirage", "7l_duos_sanstirage.txt", 0, 1, aucun, pursetimpurs,
           duossanstirage},
};

inline constexpr std::array duos8{
    Rangee{"Duos 8L purs", "8l_duos_purs.txt", 0, 2, aucun, sanspluriels, duospurs},
    Rangee{"Duos 8L impurs", "8l_duos_impurs.txt", 4, 2, aucun, sanspluriels, duosimpurs},
    Rangee{"Duos 8L purs sél", "8l_duos_purs_sel.txt", 0, 2, aucun, sansevidences, duosselection},
    Rangee{"Duos 8L purs p567", "8l_duos_purs567.txt", 3, 2, aucun, sansevidences, duos567},
    Rangee{"Duos 8L purs p014", "8l_duos_purs014.txt", 4, 2, aucun, sansevidences, duos014},
    Rangee{"Duos 8L purs p23", "8l_duos_purs23.txt", 4, 2, aucun, sansevidences, duos23},
    Rangee{"Duos 8L sans tirage", "8l_duos_sanstirage.txt", 0, 1, aucun, pursetimpurs,
           duossanstirage},
};

inline constexpr std::array trios{
    Rangee{"Trios 7L purs", "7l_trios_purs.txt", 4, 3, aucun, exhaustif,
           "Trios purs 7L : aucune autre anagramme"},
    Rangee{"Trios 7L impurs", "7l_trios_impurs.txt", 3, 3, aucun, exhaustif,
           "Trios impurs 7L : au moins une autre anagramme conjuguée\n(plus difficiles que les "
           "trios purs)"},
    Rangee{"Trios 8L purs", "8l_trios_purs.txt", 4, 3, aucun, sanstriospluriels,
           "Trios purs 8L : aucune autre anagramme"},
    Rangee{"Trios 8L impurs", "8l_trios_impurs.txt", 3, 3, aucun, sanstriospluriels,
           "Trios impurs 8L : au moins une autre anagramme conjuguée\n(plus difficiles que les "
           "trios purs)"},
};

inline constexpr std::array quatquin{
    Rangee{"Quatuors 7L purs", "7l_quatuors_purs.txt", 2, 4, aucun, exhaustif,
           "Quatuors purs 7L : aucune autre anagramme"},
    Rangee{"Quatuors 7L impurs", "7l_quatuors_impurs.txt", 0, 4, aucun, exhaustif,
           "Quatuors impurs 7L : au moins une autre anagramme conjuguée"},
    Rangee{"Quatuors 8L purs", "8l_quatuors_purs.txt", 0, 4, aucun, sansquatuorspluriels,
           "Quatuors purs 8L : aucune autre anagramme"},
    Rangee{"Quatuors 8L impurs", "8l_quatuors_impurs.txt", 0, 4, aucun, sansquatuorspluriels,
           "Quatuors impurs 8L : au moins une autre anagramme conjuguée"},
    Rangee{"Quintets 7L purs", "7l_quintets_purs.txt", 0, 5, aucun, exhaustif,
           "Quintets purs 7L : aucune autre anagramme"},
    Rangee{"Quintets 7L impurs", "7l_quintets_impurs.txt", 0, 5, aucun, exhaustif,
           "Quintets impurs 7L : au moins une autre anagramme conjuguée"},
    Rangee{"Quintets 8L", "8l_quintets.txt", 0, 5, aucun, "Sans les quintets de 7L au pluriel",
           "Quintets 8L purs et impurs"},
};

inline constexpr std::array conjm{
    Rangee{"Duos conjugués 7L", "conj7_duos.txt", 0, 2, aucun, exhaustif,
           "Duos de 2 formes conjuguées 7L"},
    Rangee{"Duos conjugués 8L", "conj8_duos.txt", 0, 2, aucun, exhaustif,
           "Duos de 2 formes conjuguées 8L"},
    Rangee{"Trios conjugués 7L", "conj7_trios.txt", 0, 3, aucun, exhaustif,
           "Trios de 3 formes conjuguées 7L"},
    Rangee{"Trios conjugués 8L", "conj8_trios.txt", 0, 3, aucun, exhaustif,
           "Trios de 3 formes conjuguées 8L"},
    Rangee{"Quatuors conj. 7L", "conj7_quatuors.txt", 0, 4, aucun, exhaustif,
           "Quatuors de 4 formes conjuguées 7L"},
    Rangee{"Quatuors conj. 8L", "conj8_quatuors.txt", 0, 4, aucun, exhaustif,
           "Quatuors de 4 formes conjuguées 8L"},
    Rangee{"Quintets conj. 7-8l", "conj78_quintets.txt", 0, 5, aucun, exhaustif,
           "Quintets de 5 formes conjuguées 7 et 8L"},
};

}  // namespace menu::listes
