#include "attendu.h"

#include <array>

namespace essai {
namespace {

constexpr std::array rangees{
    Rangee{"bt", 0, "Lettre Chère 3L", "3lc.txt", "", "JKQ", "Form1", "Exhaustif",
           "Sans doute les mots les plus utiles du scrabbleur qui débute !"},
    Rangee{"bt", 1, "Mots 3L", "3lt.txt", "", "", "Form1",
           "Sans lettre chère.\nSans anagrammes trop multiples.",
           "Juste après les mots de 2 lettres, l'outil indispensable du scrabbleur !"},
    Rangee{"bt", 2, "Verbes 4-5L", "vb45.txt", "", "Vb", "Form1",
           "Sélection (total=308)\nLes plus courants et les défectifs ont été enlevés.",
           "Conjuguer, le sésame du scrabbleur. Pas de survie sans verbe !!"},
    Rangee{
        "bt", 3, "Verbes 6L", "vb6.txt", "abc", "Vb", "Form1",
        "Sélection (total=779)\nLa base a été divisée en 3 pour être travaillée plus facilement.",
        "Première liste un peu difficile à maîtriser, mais tellement pratique..."},
    Rangee{"bt", 4, "Lettre Chère 4L", "4lc.txt", "", "JKQ", "Form1", "Presque exhaustif",
           "Les lettres chères ça finit toujours par payer ! 4L : très utiles."},
    Rangee{"bt", 5, "Lettre Chère 5L", "5lc.txt", "abc", "JKQ", "Form1",
           "Presque exhaustif\nLa base a été divisée en 2 pour être travaillée plus facilement.",
           "5L avec une lettre chère : le petit plus sympa."},
    Rangee{"ta", 0, "Lettre chère 6L", "6lc.txt", "abcd", "JKQ", "Form1",
           "Sélection (total=1902). Divisée en 2.",
           "6L avec une lettre chère : complément technique de qualité et parfois des scrabbles !"},
    Rangee{"ta", 1, "Verbes 7L", "vb7.txt", "abcd", "Vb", "Form1",
           "Sélection (total=1215)\nSeulement 1er et 2ème groupe. Divisée en 4.",
           "Difficile de s'en passer, ils tombent tellement souvent !"},
    Rangee{"ta", 2, "Verbes 8L", "vb8.txt", "abcd", "Vb", "Form1",
           "Sélection (total=1467)\nSeulement 1er et 2ème groupe. Divisée en 4.",
           "Le début de l'expertise avec cette base massive et peu évidente. Courage requis mais "
           "vous en récolterez les fruits."},
    Rangee{"ta", 3, "Verbes 9L", "vb9.txt", "abcd", "Vb", "Form1",
           "Sélection (total=1300).\nSeulement 1er et 2ème groupe. Divisée en 4.",
           "La dernière base de verbes utile pour scrabbler en 8L. Seulement 2 formes (-E et -A) "
           "mais c'est déjà ça. Le début du perfectionnisme."},
    Rangee{"ta", 4, "Mots 4L", "4lt.txt", "ab", "", "Form1",
           "Sélection (total=1568). Sans lettre chère ni anagrammes trop multiples. Préférez un "
           "nom à une conjugaison. Divisée en 2.",
           "Pas toujours utiles et à mon avis pas indispensable avant la 2ème série. Peut "
           "néanmoins rendre de fiers services évidemment."},
    Rangee{"ta", 5, "Mots 5L", "5lt.txt", "abcd", "", "Form1",
           "Sélection (total=3676). Sans lettre chère ni anagrammes trop multiples. Préférez un "
           "nom de 5L (pas conj ni pluriel). Divisée en 4.",
           "Une base très difficile et il faut bien le dire peu utile (même pour les N1). Pour "
           "ceux qui visent la super série !"},
    Rangee{"conja", 0, "Défectifs 7-8L", "78d.txt", "", "Vb", "Form1",
           "Sélection. Solution unique.", "Les formes sans anagrammes des verbes défectifs"},
    Rangee{"conja", 1, "Atypiques 7L", "7at.txt", "", "Vb", "Form1", "Sélection. Solution unique.",
           "Formes conjuguées atypiques uniques 7L. La plupart vous sembleront faciles mais "
           "certains feront la différence."},
    Rangee{"conja", 2, "Atypiques 8L", "8at.txt", "ab", "Vb", "Form1",
           "Sélection. Solution unique. Divisée en 2.",
           "Formes conjuguées atypiques uniques 8L. La plupart vous sembleront faciles mais "
           "certains feront la différence."},
    Rangee{"conja", 3, "Uniques 7L", "conj7u.txt", "", "Vb", "Form1", "Exhaustif. Solution unique.",
           "Formes conjuguées uniques 7L. Un bon test de connaissance des verbes."},
    Rangee{"conja", 4, "Uniques 8L", "conj8u.txt", "", "Vb", "Form1", "Exhaustif. Solution unique.",
           "Formes conjuguées uniques 8L. Un bon test de connaissance des verbes."},
    Rangee{"conja", 5, "1 nonconj 7L", "z7.txt", "", "", "Form1",
           "Exhaustif. Solution non conjuguée unique.",
           "Retrouvez l'unique solution non conjuguée ayant au moins 2 anagrammes conjuguées "
           "!\nNiveau : difficile"},
    Rangee{"conja", 6, "1 nonconj 8L", "z8.txt", "", "", "Form1",
           "Exhaustif. Solution non conjuguée unique.",
           "Retrouvez l'unique solution non conjuguée ayant au moins 2 anagrammes conjuguées "
           "!\nNiveau : difficile"},
    Rangee{"conja", 7, "1 nonconj sél.", "z78_sel.txt", "", "", "Form1",
           "Sélection. Solution non conjuguée unique.",
           "Retrouvez l'unique solution non conjuguée ayant au moins 2 anagrammes conjuguées "
           "(sélection).\nNiveau : difficile"},
    Rangee{"6", 0, "6L poids >6", "6up.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Les tirages les plus lourds sans lettre chère. Plusieurs lettres semi-chères donc. Ca "
           "ne sort pas souvent mais ça fait mal."},
    Rangee{"6", 1, "6L poids 6", "6v6.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Tirages lourds, très divers, comme 2 lettres à 4 pts ou 3 à 3 pts."},
    Rangee{"6", 2, "6L poids 0", "6v0.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Que des lettres à 1 pt, une hantise du scrabbleur ! Très utiles !"},
    Rangee{"6", 3, "6L poids 5", "6v5.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Tirages relativement lourds mais qu'on voit de temps en temps."},
    Rangee{"6", 4, "6L poids 1", "6v1.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Une seule lettre à 2 pts : D G ou M, avec des lettres à 1 pt. Pas facile !"},
    Rangee{"6", 5, "6L poids 4", "6v4.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Pas évident car pas mal de mots et répartition très variée."},
    Rangee{"6", 6, "6L poids 2", "6v2.txt", "ab", "", "Form1", "Sélection. Solutions uniques.",
           "Le poids le plus dur : B C P DG DM GM DD GG MM avec lettres à 1 pt."},
    Rangee{"6", 7, "6L poids 3", "6v3.txt", "ab", "", "Form1", "Sélection. Solutions uniques.",
           "Difficile également : 1+1+1 ou 2+1 ou 3."},
    Rangee{"7", 0, "7L poids >6", "7up.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Les tirages les plus lourds sans lettre chère. Plusieurs lettres semi-chères donc. Ca "
           "ne sort pas souvent mais ça fait mal."},
    Rangee{"7", 1, "7L poids 6", "7v6.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Tirages lourds, très divers, comme 2 lettres à 4 pts ou 3 à 3 pts."},
    Rangee{"7", 2, "7L poids 0", "7v0.txt", "", "", "Form1", "Sélection. Solutions uniques.",
           "Que des lettres à 1 pt, une hantise du scrabbleur ! Très utiles !"},
    Rangee{"7", 3, "7L poids 5", "7v5.txt", "ab", "", "Form1", "Sélection. Solutions uniques.",
           "Tirages relativement lourds mais qu'on voit de temps en temps."},
    Rangee{"7", 4, "7L poids 1", "7v1.txt", "ab", "", "Form1", "Sélection. Solutions uniques.",
           "Une seule lettre à 2 pts : D G ou M, avec des lettres à 1 pt. Pas facile !"},
    Rangee{"7", 5, "7L poids 4", "7v4.txt", "abc", "", "Form1", "Sélection. Solutions uniques.",
           "Pas évident car pas mal de mots et répartition très variée."},
    Rangee{"7", 6, "7L poids 2", "7v2.txt", "abcd", "", "Form1", "Sélection. Solutions uniques.",
           "Le poids le plus dur : B C P DG DM GM DD GG MM avec lettres à 1 pt."},
    Rangee{"7", 7, "7L poids 3", "7v3.txt", "abcd", "", "Form1", "Sélection. Solutions uniques.",
           "Difficile également : 1+1+1 ou 2+1 ou 3."},
    Rangee{"8", 0, "8L poids >6", "8up.txt", "ab", "", "Form1", "Sélection. Solutions uniques.",
           "Les tirages les plus lourds sans lettre chère. Plusieurs lettres semi-chères donc. Ca "
           "ne sort pas souvent mais ça fait mal."},
    Rangee{"8", 1, "8L poids 6", "8v6.txt", "ab", "", "Form1", "Sélection. Solutions uniques.",
           "Tirages lourds, très divers, comme 2 lettres à 4 pts ou 3 à 3 pts."},
    Rangee{"8", 2, "8L poids 0", "8v0.txt", "ab", "", "Form1", "Sélection. Solutions uniques.",
           "Que des lettres à 1 pt, une hantise du scrabbleur ! Très utiles !"},
    Rangee{"8", 3, "8L poids 5", "8v5.txt", "abc", "", "Form1", "Sélection. Solutions uniques.",
           "Tirages relativement lourds mais qu'on voit de temps en temps."},
    Rangee{"8", 4, "8L poids 1", "8v1.txt", "abc", "", "Form1", "Sélection. Solutions uniques.",
           "Une seule lettre à 2 pts : D G ou M, avec des lettres à 1 pt. Pas facile !"},
    Rangee{"8", 5, "8L poids 4", "8v4.txt", "abcd", "", "Form1", "Sélection. Solutions uniques.",
           "Pas évident car pas mal de mots et répartition très variée."},
    Rangee{"8", 6, "8L poids 2", "8v2.txt", "abcd", "", "Form1", "Sélection. Solutions uniques.",
           "Le poids le plus dur : B C P DG DM GM DD GG MM avec lettres à 1 pt."},
    Rangee{"8", 7, "8L poids 3", "8v3.txt", "abcd", "", "Form1", "Sélection. Solutions uniques.",
           "Difficile également : 1+1+1 ou 2+1 ou 3."},
    Rangee{"78lca", 0, "7et8L poids 7", "78v7.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lca", 1, "7et8L poids 8", "78v8.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lca", 2, "7L poids 9", "7v9.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lca", 3, "8L poids 9", "8v9.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lca", 4, "7L poids 10", "7vd.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lca", 5, "8L poids 10", "8vd.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lca", 6, "7L poids 11", "7vo.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lca", 7, "8L poids 11", "8vo.txt", "", "JKQ", "Form1",
           "Exhaustif, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lcb", 0, "7L poids 12", "7vu.txt", "", "JKQ", "Form1",
           "Exhaustif sans conjugaison, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lcb", 1, "8L poids 12", "8vu.txt", "", "JKQ", "Form1",
           "Exhaustif sans conjugaison, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lcb", 2, "7et8L poids 13", "78v13.txt", "", "JKQ", "Form1",
           "Exhaustif sans conjugaison, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lcb", 3, "7et8L poids 14-15", "78v145.txt", "", "JKQ", "Form1",
           "Exhaustif sans conjugaison, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lcb", 4, "7et8L poids >15", "78vup.txt", "", "JKQ", "Form1",
           "Exhaustif sans conjugaison, c'est pour ça qu'il y en a autant !", ""},
    Rangee{"78lcb", 5, "7et8L tout", "78tout.txt", "", "JKQ", "Form1", "",
           "Exhaustif sur les entrées. Donc sauf quelques exceptions, pas de conjugaisons, pas de "
           "pluriels évidents."},
    Rangee{"78lcb", 6, "7et8L sél-durs", "ch78rev.txt", "", "JKQ", "Form1", "",
           "Sélection (subjective) des 7-8L les plus difficiles"},
    Rangee{"78lcb", 7, "7et8L ODS 5-6-7", "78ods5-6-7.txt", "", "JKQ", "Form1", "",
           "Nouveautés des ODS 5, 6 et 7\n(2008, 2012, 2016)"},
    Rangee{"duos7", 0, "Duos 7L purs", "7l_duos_purs.txt", "", "", "Multi", "Exhaustif",
           "Duos purs : aucune autre anagramme"},
    Rangee{"duos7", 1, "Duos 7L impurs", "7l_duos_impurs.txt", "abcd", "", "Multi", "Exhaustif",
           "Duos impurs : au moins une autre anagramme conjuguée (non demandée)\n(plus difficiles "
           "que les duos purs)"},
    Rangee{"duos7", 2, "Duos 7L purs sél", "7l_duos_purs_sel.txt", "", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection"},
    Rangee{"duos7", 3, "Duos 7L purs p567", "7l_duos_purs567.txt", "abc", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection poids 5 6 7"},
    Rangee{"duos7", 4, "Duos 7L purs p014", "7l_duos_purs014.txt", "abcd", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection poids 0 1 4"},
    Rangee{"duos7", 5, "Duos 7L purs p23", "7l_duos_purs23.txt", "abcd", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection poids 2 3"},
    Rangee{"duos7", 6, "Duos 7L sans tirage", "7l_duos_sanstirage.txt", "", "", "Form1",
           "Purs et impurs exhaustifs", "Duos : le tirage est l'une des 2 anagrammes"},
    Rangee{"duos8", 0, "Duos 8L purs", "8l_duos_purs.txt", "", "", "Multi",
           "Exhaustif sans les duos de 7L au pluriel", "Duos purs : aucune autre anagramme"},
    Rangee{"duos8", 1, "Duos 8L impurs", "8l_duos_impurs.txt", "abcd", "", "Multi",
           "Exhaustif sans les duos de 7L au pluriel",
           "Duos impurs : au moins une autre anagramme conjuguée (non demandée)\n(plus difficiles "
           "que les duos purs)"},
    Rangee{"duos8", 2, "Duos 8L purs sél", "8l_duos_purs_sel.txt", "", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection"},
    Rangee{"duos8", 3, "Duos 8L purs p567", "8l_duos_purs567.txt", "abc", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection poids 5 6 7"},
    Rangee{"duos8", 4, "Duos 8L purs p014", "8l_duos_purs014.txt", "abcd", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection poids 0 1 4"},
    Rangee{"duos8", 5, "Duos 8L purs p23", "8l_duos_purs23.txt", "abcd", "", "Multi",
           "Sans solutions évidentes ou redondantes", "Duos purs : sélection poids 2 3"},
    Rangee{"duos8", 6, "Duos 8L sans tirage", "8l_duos_sanstirage.txt", "", "", "Form1",
           "Purs et impurs exhaustifs", "Duos : le tirage est l'une des 2 anagrammes"},
    Rangee{"trios", 0, "Trios 7L purs", "7l_trios_purs.txt", "abcd", "", "Multi", "Exhaustif",
           "Trios purs 7L : aucune autre anagramme"},
    Rangee{"trios", 1, "Trios 7L impurs", "7l_trios_impurs.txt", "abc", "", "Multi", "Exhaustif",
           "Trios impurs 7L : au moins une autre anagramme conjuguée\n(plus difficiles que les "
           "trios purs)"},
    Rangee{"trios", 2, "Trios 8L purs", "8l_trios_purs.txt", "abcd", "", "Multi",
           "Sans les trios de 7L au pluriel", "Trios purs 8L : aucune autre anagramme"},
    Rangee{"trios", 3, "Trios 8L impurs", "8l_trios_impurs.txt", "abc", "", "Multi",
           "Sans les trios de 7L au pluriel",
           "Trios impurs 8L : au moins une autre anagramme conjuguée\n(plus difficiles que les "
           "trios purs)"},
    Rangee{"quatquin", 0, "Quatuors 7L purs", "7l_quatuors_purs.txt", "ab", "", "Multi",
           "Exhaustif", "Quatuors purs 7L : aucune autre anagramme"},
    Rangee{"quatquin", 1, "Quatuors 7L impurs", "7l_quatuors_impurs.txt", "", "", "Multi",
           "Exhaustif", "Quatuors impurs 7L : au moins une autre anagramme conjuguée"},
    Rangee{"quatquin", 2, "Quatuors 8L purs", "8l_quatuors_purs.txt", "", "", "Multi",
           "Sans les quatuors de 7L au pluriel", "Quatuors purs 8L : aucune autre anagramme"},
    Rangee{"quatquin", 3, "Quatuors 8L impurs", "8l_quatuors_impurs.txt", "", "", "Multi",
           "Sans les quatuors de 7L au pluriel",
           "Quatuors impurs 8L : au moins une autre anagramme conjuguée"},
    Rangee{"quatquin", 4, "Quintets 7L purs", "7l_quintets_purs.txt", "", "", "Multi", "Exhaustif",
           "Quintets purs 7L : aucune autre anagramme"},
    Rangee{"quatquin", 5, "Quintets 7L impurs", "7l_quintets_impurs.txt", "", "", "Multi",
           "Exhaustif", "Quintets impurs 7L : au moins une autre anagramme conjuguée"},
    Rangee{"quatquin", 6, "Quintets 8L", "8l_quintets.txt", "", "", "Multi",
           "Sans les quintets de 7L au pluriel", "Quintets 8L purs et impurs"},
    Rangee{"conjm", 0, "Duos conjugués 7L", "conj7_duos.txt", "", "", "Multi", "Exhaustif",
           "Duos de 2 formes conjuguées 7L"},
    Rangee{"conjm", 1, "Duos conjugués 8L", "conj8_duos.txt", "", "", "Multi", "Exhaustif",
           "Duos de 2 formes conjuguées 8L"},
    Rangee{"conjm", 2, "Trios conjugués 7L", "conj7_trios.txt", "", "", "Multi", "Exhaustif",
           "Trios de 3 formes conjuguées 7L"},
    Rangee{"conjm", 3, "Trios conjugués 8L", "conj8_trios.txt", "", "", "Multi", "Exhaustif",
           "Trios de 3 formes conjuguées 8L"},
    Rangee{"conjm", 4, "Quatuors conj. 7L", "conj7_quatuors.txt", "", "", "Multi", "Exhaustif",
           "Quatuors de 4 formes conjuguées 7L"},
    Rangee{"conjm", 5, "Quatuors conj. 8L", "conj8_quatuors.txt", "", "", "Multi", "Exhaustif",
           "Quatuors de 4 formes conjuguées 8L"},
    Rangee{"conjm", 6, "Quintets conj. 7-8l", "conj78_quintets.txt", "", "", "Multi", "Exhaustif",
           "Quintets de 5 formes conjuguées 7 et 8L"},
    Rangee{"formdif", 0, "Courants 6L", "courant_6L.txt", "", "", "Form1", "",
           "Mots courants difficiles à former. De AAAINOPR à AEGIOTUZ en passant évidemment par "
           "CEIINOPT ! Ne pas conjuguer si possible."},
    Rangee{"formdif", 1, "Courants 7L", "courant_7L.txt", "", "", "Form1", "",
           "Mots courants difficiles à former. De AAAINOPR à AEGIOTUZ en passant évidemment par "
           "CEIINOPT ! Ne pas conjuguer si possible."},
    Rangee{"formdif", 2, "Courants 8L", "courant_8L.txt", "", "", "Form1", "",
           "Mots courants difficiles à former. De AAAINOPR à AEGIOTUZ en passant évidemment par "
           "CEIINOPT ! Ne pas conjuguer si possible."},
    Rangee{"formdif", 3, "Courants 9L", "courant_9L.txt", "", "", "Form1", "",
           "Mots courants difficiles à former. De AAAINOPR à AEGIOTUZ en passant évidemment par "
           "CEIINOPT ! Ne pas conjuguer si possible."},
    Rangee{"formdif", 4, "Formations atyp. 6L", "durs_kvd_6L.txt", "", "", "Form1", "",
           "Formations rares et atypiques (algorithme Ansel Korvid) (solutions uniques, parfois "
           "conjuguées)"},
    Rangee{"formdif", 5, "Formations atyp. 7L", "durs_kvd_7L.txt", "", "", "Form1", "",
           "Formations rares et atypiques (algorithme Ansel Korvid) (solutions uniques, parfois "
           "conjuguées)"},
    Rangee{"formdif", 6, "Formations atyp. 8L", "durs_kvd_8L.txt", "", "", "Form1", "",
           "Formations rares et atypiques (algorithme Ansel Korvid) (solutions uniques, parfois "
           "conjuguées)"},
    Rangee{"formdif", 7, "Formations atyp. 9L", "durs_kvd_9L.txt", "", "", "Form1", "",
           "Formations rares et atypiques (algorithme Ansel Korvid) (solutions uniques, parfois "
           "conjuguées)"},
    Rangee{"rallong", 0, "Rallonges avant 7-8", "rallonge_av_7a8L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"rallong", 1, "Rallonges arrière 7-8", "rallonge_ar_7a8L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"rallong", 2, "Rallonges avant 8-9", "rallonge_av_8a9L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"rallong", 3, "Rallonges arrière 8-9", "rallonge_ar_8a9L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"rallong", 4, "Rallonges avant 6-7", "rallonge_av_6a7L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"rallong", 5, "Rallonges arrière 6-7", "rallonge_ar_6a7L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"rallong", 6, "Rallonges avant 5-6", "rallonge_av_5a6L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"rallong", 7, "Rallonges arrière 5-6", "rallonge_ar_5a6L.txt", "", "", "Form1", "",
           "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
           "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Rangee{"autres", 0, "Mots invariables", "invar.txt", "", "", "Form1", "",
           "Mots invariables de 3 à 9 lettres (hors finale S X Z)"},
    Rangee{"autres", 1, "Déséquilibre C-V", "deseq_cons_voy.txt", "", "", "Form1", "",
           "Solutions présentant un fort déséquilibre consonnes/voyelles"},
    Rangee{"autres", 2, "Anaverbes", "anaverbes.txt", "", "Vb", "Multi", "",
           "Verbes ayant une ou deux anagrammes également verbes (liste Oriel Vantac)"},
    Rangee{"autres", 3, "Fausses transitivités", "transifausses.txt", "", "", "Form1", "",
           "Ce qu'il faut jouer avec une \"fausse transitivité\" (ACEENOT ne donne pas canotée "
           "mais ACETONE par exple) (aides de L. Hestrin et O. Vantac)"},
    Rangee{"autres", 4, "S final obligatoire", "s_final.txt", "", "", "Form1", "",
           "Solutions n'existant qu'avec le S final, hors habitants et terminaisons évidentes "
           "(liste initiale Oriel Vantac)"},
    Rangee{"autres", 5, "Benjamins uniques", "benj_uni.txt", "", "", "Form1", "",
           "Un benjamin unique de 3L à retrouver à partir de mots de 5 à 7 lettres (liste Oriel "
           "Vantac)"},
    Rangee{"autres", 6, "Verbe+1=Verbe", "vbavb.txt", "", "Vb", "Form1", "",
           "Tirages sous la forme VERBE+1 qui donnent aussi un verbe."},
};

constexpr std::array panneaux{
    Panneau{"bt", "Command1", "", false, ""},
    Panneau{"ta", "Command2", "", false, ""},
    Panneau{"conja", "Command3 Command7(0)",
            "Command7(0) Command7(1) Command7(2) Command7(3) Command7(4)", false, ""},
    Panneau{"6", "Command3 Command7(1)",
            "Command7(0) Command7(1) Command7(2) Command7(3) Command7(4)", true,
            "Les mots de 6 lettres uniques, pouvant scrabbler.\nDonc par exemple pas "
            "ACINUS.\nPeuvent comporter quelques exceptions."},
    Panneau{"7", "Command3 Command7(2)",
            "Command7(0) Command7(1) Command7(2) Command7(3) Command7(4)", true,
            "Les mots de 7 lettres permettent des scrabbles secs, il \"suffit\" de leur trouver "
            "une place sur la grille."},
    Panneau{"8", "Command3 Command7(3)",
            "Command7(0) Command7(1) Command7(2) Command7(3) Command7(4)", true,
            "Les mots de 8 lettres utilisent une lettre de la grille, ce sont des scrabbles \"en "
            "appui\".\nCe sont les plus nombreux et en moyenne les plus difficiles."},
    Panneau{"78lca", "Command3 Command7(4) Command8", "Command7(4) Command8 Command9", true, ""},
    Panneau{"78lcb", "Command3 Command7(4) Command9", "Command7(4) Command8 Command9", true, ""},
    Panneau{"duos7", "Command4 Command7(5)",
            "Command7(5) Command7(6) Command7(7) Command7(8) Command7(9)", true, ""},
    Panneau{"duos8", "Command4 Command7(6)",
            "Command7(5) Command7(6) Command7(7) Command7(8) Command7(9)", true, ""},
    Panneau{"trios", "Command4 Command7(7)",
            "Command7(5) Command7(6) Command7(7) Command7(8) Command7(9)", true, ""},
    Panneau{"quatquin", "Command4 Command7(8)",
            "Command7(5) Command7(6) Command7(7) Command7(8) Command7(9)", true, ""},
    Panneau{"conjm", "Command4 Command7(9)",
            "Command7(5) Command7(6) Command7(7) Command7(8) Command7(9)", true, ""},
    Panneau{"formdif", "Command5 Command15(0)", "Command15(0) Command15(1) Command15(2)", false,
            ""},
    Panneau{"rallong", "Command5 Command15(1)", "Command15(0) Command15(1) Command15(2)", false,
            "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
            "solutions\nLettres à saisir dans l'ordre alphabétique."},
    Panneau{"autres", "Command5 Command15(2)", "Command15(0) Command15(1) Command15(2)", false, ""},
};

}  // namespace

std::span<const Rangee> lesrangees() {
    return rangees;
}

std::span<const Panneau> lespanneaux() {
    return panneaux;
}

std::vector<Rangee> rangeesde(std::string_view panneau) {
    std::vector<Rangee> choisies;
    for (const auto& rangee : rangees) {
        if (rangee.panneau == panneau)
            choisies.push_back(rangee);
    }
    return choisies;
}

void PrintTo(const Rangee& rangee, std::ostream* sortie) {
    *sortie << rangee.panneau << " " << rangee.rang;
}

void PrintTo(const Panneau& panneau, std::ostream* sortie) {
    *sortie << panneau.cle;
}

std::string nomderangee(const testing::TestParamInfo<Rangee>& cas) {
    return std::string(cas.param.panneau) + "_" + std::to_string(cas.param.rang);
}

std::string nomdepanneau(const testing::TestParamInfo<Panneau>& cas) {
    return std::string(cas.param.cle);
}

}  // namespace essai
