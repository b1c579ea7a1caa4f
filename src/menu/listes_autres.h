#pragma once

// The other lists. Included by catalogue.cpp alone.

#include <array>
#include <string_view>

#include "catalogue.h"

namespace menu::listes {

using enum Insigne;
using enum Reponses;

inline constexpr std::string_view rallonges =
    "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
    "solutions\nLettres à saisir dans l'ordre alphabétique.";
inline constexpr std::string_view courants =
    "Mots courants difficiles à former. De AAAINOPR à AEGIOTUZ en passant évidemment par CEIINOPT "
    "! Ne pas conjuguer si possible.";
inline constexpr std::string_view atypiques =
    "Formations rares et atypiques (algorithme Ansel Korvid) (solutions uniques, parfois "
    "conjuguées)";

inline constexpr std::array formdif{
    Rangee{"Courants 6L", "courant_6L.txt", 0, 1, aucun, "", courants},
    Rangee{"Courants 7L", "courant_7L.txt", 0, 1, aucun, "", courants},
    Rangee{"Courants 8L", "courant_8L.txt", 0, 1, aucun, "", courants},
    Rangee{"Courants 9L", "courant_9L.txt", 0, 1, aucun, "", courants},
    Rangee{"Formations atyp. 6L", "durs_kvd_6L.txt", 0, 1, aucun, "", atypiques},
    Rangee{"Formations atyp. 7L", "durs_kvd_7L.txt", 0, 1, aucun, "", atypiques},
    Rangee{"Formations atyp. 8L", "durs_kvd_8L.txt", 0, 1, aucun, "", atypiques},
    Rangee{"Formations atyp. 9L", "durs_kvd_9L.txt", 0, 1, aucun, "", atypiques},
};

inline constexpr std::array rallong{
    Rangee{"Rallonges avant 7-8", "rallonge_av_7a8L.txt", 0, 1, aucun, "", rallonges, devant},
    Rangee{"Rallonges arrière 7-8", "rallonge_ar_7a8L.txt", 0, 1, aucun, "", rallonges, derriere},
    Rangee{"Rallonges avant 8-9", "rallonge_av_8a9L.txt", 0, 1, aucun, "", rallonges, devant},
    Rangee{"Rallonges arrière 8-9", "rallonge_ar_8a9L.txt", 0, 1, aucun, "", rallonges, derriere},
    Rangee{"Rallonges avant 6-7", "rallonge_av_6a7L.txt", 0, 1, aucun, "", rallonges, devant},
    Rangee{"Rallonges arrière 6-7", "rallonge_ar_6a7L.txt", 0, 1, aucun, "", rallonges, derriere},
    Rangee{"Rallonges avant 5-6", "rallonge_av_5a6L.txt", 0, 1, aucun, "", rallonges, devant},
    Rangee{"Rallonges arrière 5-6", "rallonge_ar_5a6L.txt", 0, 1, aucun, "", rallonges, derriere},
};

inline constexpr std::array autres{
    Rangee{"Mots invariables", "invar.txt", 0, 1, aucun, "",
           "Mots invariables de 3 à 9 lettres (hors finale S X Z)"},
    Rangee{"Déséquilibre C-V", "deseq_cons_voy.txt", 0, 1, aucun, "",
           "Solutions présentant un fort déséquilibre consonnes/voyelles"},
    Rangee{"Anaverbes", "anaverbes.txt", 0, 2, verbe, "",
           "Verbes ayant une ou deux anagrammes également verbes (liste Oriel Vantac)"},
    Rangee{"Fausses transitivités", "transifausses.txt", 0, 1, aucun, "",
           "Ce qu'il faut jouer avec une \"fausse transitivité\" (ACEENOT ne donne pas canotée "
           "mais ACETONE par exple) (aides de L. Hestrin et O. Vantac)"},
    Rangee{"S final obligatoire", "s_final.txt", 0, 1, aucun, "",
           "Solutions n'existant qu'avec le S final, hors habitants et terminaisons évidentes "
           "(liste initiale Oriel Vantac)"},
    Rangee{"Benjamins uniques", "benj_uni.txt", 0, 1, aucun, "",
           "Un benjamin unique de 3L à retrouver à partir de mots de 5 à 7 lettres (liste Oriel "
           "Vantac)",
           benjamin},
    Rangee{"Verbe+1=Verbe", "vbavb.txt", 0, 1, verbe, "",
           "Tirages sous la forme VERBE+1 qui donnent aussi un verbe."},
};

}  // namespace menu::listes
