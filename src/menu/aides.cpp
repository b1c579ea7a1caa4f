#include "aides.h"

#include <algorithm>
#include <array>
#include <span>

namespace menu {
namespace {

/// A text for rows of some panels, whose keys have a blank between them.
struct Aide {
    std::string_view panneaux;
    std::size_t premiere;
    std::size_t derniere;
    std::string_view texte;
};

struct Aidefixe {
    std::string_view cle;  ///< of a panel, or design name of a control
    std::string_view texte;
};

constexpr std::string_view rallonges =
    "Rallonges particulières à privilégier (CELEBRET plutôt que CELEBRER).\n? = plusieurs "
    "solutions\nLettres à saisir dans l'ordre alphabétique.";
constexpr std::string_view parties =
    "Boutons a/b/c/d :\nSubdivisions de la base pour pouvoir la travailler plus facilement.\nLeur "
    "contenu est fixe.";

constexpr std::array aidestout{
    Aide{"bt", 0, 0, "Exhaustif"},
    Aide{"bt", 1, 1, "Sans lettre chère.\nSans anagrammes trop multiples."},
    Aide{"bt", 2, 2, "Sélection (total=308)\nLes plus courants et les défectifs ont été enlevés."},
    Aide{"bt", 3, 3,
         "Sélection (total=779)\nLa base a été divisée en 3 pour être travaillée plus facilement."},
    Aide{"bt", 4, 4, "Presque exhaustif"},
    Aide{"bt", 5, 5,
         "Presque exhaustif\nLa base a été divisée en 2 pour être travaillée plus facilement."},
    Aide{"ta", 0, 0, "Sélection (total=1902). Divisée en 2."},
    Aide{"ta", 1, 1, "Sélection (total=1215)\nSeulement 1er et 2ème groupe. Divisée en 4."},
    Aide{"ta", 2, 2, "Sélection (total=1467)\nSeulement 1er et 2ème groupe. Divisée en 4."},
    Aide{"ta", 3, 3, "Sélection (total=1300).\nSeulement 1er et 2ème groupe. Divisée en 4."},
    Aide{"ta", 4, 4,
         "Sélection (total=1568). Sans lettre chère ni anagrammes trop multiples. Préférez un nom "
         "à une conjugaison. Divisée en 2."},
    Aide{"ta", 5, 5,
         "Sélection (total=3676). Sans lettre chère ni anagrammes trop multiples. Préférez un nom "
         "de 5L (pas conj ni pluriel). Divisée en 4."},
    Aide{"conja", 0, 1, "Sélection. Solution unique."},
    Aide{"conja", 2, 2, "Sélection. Solution unique. Divisée en 2."},
    Aide{"conja", 3, 4, "Exhaustif. Solution unique."},
    Aide{"conja", 5, 6, "Exhaustif. Solution non conjuguée unique."},
    Aide{"conja", 7, 7, "Sélection. Solution non conjuguée unique."},
    Aide{"6 7 8", 0, 7, "Sélection. Solutions uniques."},
    Aide{"78lca", 0, 7, "Exhaustif, c'est pour ça qu'il y en a autant !"},
    Aide{"78lcb", 0, 4, "Exhaustif sans conjugaison, c'est pour ça qu'il y en a autant !"},
    Aide{"duos7", 0, 1, "Exhaustif"},
    Aide{"duos7 duos8", 2, 5, "Sans solutions évidentes ou redondantes"},
    Aide{"duos7 duos8", 6, 6, "Purs et impurs exhaustifs"},
    Aide{"duos8", 0, 1, "Exhaustif sans les duos de 7L au pluriel"},
    Aide{"trios", 0, 1, "Exhaustif"},
    Aide{"trios", 2, 3, "Sans les trios de 7L au pluriel"},
    Aide{"quatquin", 0, 1, "Exhaustif"},
    Aide{"quatquin", 4, 5, "Exhaustif"},
    Aide{"quatquin", 2, 3, "Sans les quatuors de 7L au pluriel"},
    Aide{"quatquin", 6, 6, "Sans les quintets de 7L au pluriel"},
    Aide{"conjm", 0, 7, "Exhaustif"},
};

constexpr std::array aideslibelle{
    Aide{"bt", 0, 0, "Sans doute les mots les plus utiles du scrabbleur qui débute !"},
    Aide{"bt", 1, 1, "Juste après les mots de 2 lettres, l'outil indispensable du scrabbleur !"},
    Aide{"bt", 2, 2, "Conjuguer, le sésame du scrabbleur. Pas de survie sans verbe !!"},
    Aide{"bt", 3, 3, "Première liste un peu difficile à maîtriser, mais tellement pratique..."},
    Aide{"bt", 4, 4, "Les lettres chères ça finit toujours par payer ! 4L : très utiles."},
    Aide{"bt", 5, 5, "5L avec une lettre chère : le petit plus sympa."},
    Aide{"ta", 0, 0,
         "6L avec une lettre chère : complément technique de qualité et parfois des scrabbles !"},
    Aide{"ta", 1, 1, "Difficile de s'en passer, ils tombent tellement souvent !"},
    Aide{"ta", 2, 2,
         "Le début de l'expertise avec cette base massive et peu évidente. Courage requis mais "
         "vous en récolterez les fruits."},
    Aide{"ta", 3, 3,
         "La dernière base de verbes utile pour scrabbler en 8L. Seulement 2 formes (-E et -A) "
         "mais c'est déjà ça. Le début du perfectionnisme."},
    Aide{"ta", 4, 4,
         "Pas toujours utiles et à mon avis pas indispensable avant la 2ème série. Peut néanmoins "
         "rendre de fiers services évidemment."},
    Aide{"ta", 5, 5,
         "Une base très difficile et il faut bien le dire peu utile (même pour les N1). Pour ceux "
         "qui visent la super série !"},
    Aide{"conja", 0, 0, "Les formes sans anagrammes des verbes défectifs"},
    Aide{"conja", 1, 1,
         "Formes conjuguées atypiques uniques 7L. La plupart vous sembleront faciles mais certains "
         "feront la différence."},
    Aide{"conja", 2, 2,
         "Formes conjuguées atypiques uniques 8L. La plupart vous sembleront faciles mais certains "
         "feront la différence."},
    Aide{"conja", 3, 3, "Formes conjuguées uniques 7L. Un bon test de connaissance des verbes."},
    Aide{"conja", 4, 4, "Formes conjuguées uniques 8L. Un bon test de connaissance des verbes."},
    Aide{"conja", 5, 6,
         "Retrouvez l'unique solution non conjuguée ayant au moins 2 anagrammes conjuguées "
         "!\nNiveau : difficile"},
    Aide{"conja", 7, 7,
         "Retrouvez l'unique solution non conjuguée ayant au moins 2 anagrammes conjuguées "
         "(sélection).\nNiveau : difficile"},
    Aide{"6 7 8", 0, 0,
         "Les tirages les plus lourds sans lettre chère. Plusieurs lettres semi-chères donc. Ca ne "
         "sort pas souvent mais ça fait mal."},
    Aide{"6 7 8", 1, 1, "Tirages lourds, très divers, comme 2 lettres à 4 pts ou 3 à 3 pts."},
    Aide{"6 7 8", 2, 2, "Que des lettres à 1 pt, une hantise du scrabbleur ! Très utiles !"},
    Aide{"6 7 8", 3, 3, "Tirages relativement lourds mais qu'on voit de temps en temps."},
    Aide{"6 7 8", 4, 4,
         "Une seule lettre à 2 pts : D G ou M, avec des lettres à 1 pt. Pas facile !"},
    Aide{"6 7 8", 5, 5, "Pas évident car pas mal de mots et répartition très variée."},
    Aide{"6 7 8", 6, 6, "Le poids le plus dur : B C P DG DM GM DD GG MM avec lettres à 1 pt."},
    Aide{"6 7 8", 7, 7, "Difficile également : 1+1+1 ou 2+1 ou 3."},
    Aide{"78lcb", 5, 5,
         "Exhaustif sur les entrées. Donc sauf quelques exceptions, pas de conjugaisons, pas de "
         "pluriels évidents."},
    Aide{"78lcb", 6, 6, "Sélection (subjective) des 7-8L les plus difficiles"},
    Aide{"78lcb", 7, 7, "Nouveautés des ODS 5, 6 et 7\n(2008, 2012, 2016)"},
    Aide{"duos7 duos8", 0, 0, "Duos purs : aucune autre anagramme"},
    Aide{"duos7 duos8", 1, 1,
         "Duos impurs : au moins une autre anagramme conjuguée (non demandée)\n(plus difficiles "
         "que les duos purs)"},
    Aide{"duos7 duos8", 2, 2, "Duos purs : sélection"},
    Aide{"duos7 duos8", 3, 3, "Duos purs : sélection poids 5 6 7"},
    Aide{"duos7 duos8", 4, 4, "Duos purs : sélection poids 0 1 4"},
    Aide{"duos7 duos8", 5, 5, "Duos purs : sélection poids 2 3"},
    Aide{"duos7 duos8", 6, 6, "Duos : le tirage est l'une des 2 anagrammes"},
    Aide{"trios", 0, 0, "Trios purs 7L : aucune autre anagramme"},
    Aide{"trios", 1, 1,
         "Trios impurs 7L : au moins une autre anagramme conjuguée\n(plus difficiles que les trios "
         "purs)"},
    Aide{"trios", 2, 2, "Trios purs 8L : aucune autre anagramme"},
    Aide{"trios", 3, 3,
         "Trios impurs 8L : au moins une autre anagramme conjuguée\n(plus difficiles que les trios "
         "purs)"},
    Aide{"quatquin", 0, 0, "Quatuors purs 7L : aucune autre anagramme"},
    Aide{"quatquin", 1, 1, "Quatuors impurs 7L : au moins une autre anagramme conjuguée"},
    Aide{"quatquin", 2, 2, "Quatuors purs 8L : aucune autre anagramme"},
    Aide{"quatquin", 3, 3, "Quatuors impurs 8L : au moins une autre anagramme conjuguée"},
    Aide{"quatquin", 4, 4, "Quintets purs 7L : aucune autre anagramme"},
    Aide{"quatquin", 5, 5, "Quintets impurs 7L : au moins une autre anagramme conjuguée"},
    Aide{"quatquin", 6, 6, "Quintets 8L purs et impurs"},
    Aide{"conjm", 0, 0, "Duos de 2 formes conjuguées 7L"},
    Aide{"conjm", 1, 1, "Duos de 2 formes conjuguées 8L"},
    Aide{"conjm", 2, 2, "Trios de 3 formes conjuguées 7L"},
    Aide{"conjm", 3, 3, "Trios de 3 formes conjuguées 8L"},
    Aide{"conjm", 4, 4, "Quatuors de 4 formes conjuguées 7L"},
    Aide{"conjm", 5, 5, "Quatuors de 4 formes conjuguées 8L"},
    Aide{"conjm", 6, 6, "Quintets de 5 formes conjuguées 7 et 8L"},
    Aide{"formdif", 0, 3,
         "Mots courants difficiles à former. De AAAINOPR à AEGIOTUZ en passant évidemment par "
         "CEIINOPT ! Ne pas conjuguer si possible."},
    Aide{"formdif", 4, 7,
         "Formations rares et atypiques (algorithme Ansel Korvid) (solutions uniques, parfois "
         "conjuguées)"},
    Aide{"rallong", 0, 7, rallonges},
    Aide{"autres", 0, 0, "Mots invariables de 3 à 9 lettres (hors finale S X Z)"},
    Aide{"autres", 1, 1, "Solutions présentant un fort déséquilibre consonnes/voyelles"},
    Aide{"autres", 2, 2,
         "Verbes ayant une ou deux anagrammes également verbes (liste Oriel Vantac)"},
    Aide{"autres", 3, 3,
         "Ce qu'il faut jouer avec une \"fausse transitivité\" (ACEENOT ne donne pas canotée mais "
         "ACETONE par exple) (aides de L. Hestrin et O. Vantac)"},
    Aide{"autres", 4, 4,
         "Solutions n'existant qu'avec le S final, hors habitants et terminaisons évidentes (liste "
         "initiale Oriel Vantac)"},
    Aide{"autres", 5, 5,
         "Un benjamin unique de 3L à retrouver à partir de mots de 5 à 7 lettres (liste Oriel "
         "Vantac)"},
    Aide{"autres", 6, 6, "Tirages sous la forme VERBE+1 qui donnent aussi un verbe."},
};

constexpr std::array aidesfixes{
    Aidefixe{"coma", parties},
    Aidefixe{"comb", parties},
    Aidefixe{"comc", parties},
    Aidefixe{"comd", parties},
    Aidefixe{"Command6", "Echantillon aléatoire (150 mots par défaut, voir les options)"},
    Aidefixe{"Command22",
             "Toutes les erreurs que vous faites sont ajoutées dans un fichier de révisions "
             "retravaillable ici."},
    Aidefixe{"Label6",
             "Dernier score réalisé. Clic = historique.\nT=tout ; E=échantillon ; Ts=tout en "
             "plusieurs fois ; R=révisions"},
    Aidefixe{"app",
             "Mode apprentissage : les erreurs ne sont pas stockées dans le fichier de révisions"},
    Aidefixe{"Command10", "Reprendre une activité normale !"},
    Aidefixe{"Command11",
             "Les fichiers texte se trouvent également dans le dossier Orvane_2018/listes"},
    Aidefixe{
        "Command12",
        "Régler les options : chronomètre, taille des échantillons, couleurs des pourcentages."},
    Aidefixe{"Command13", "A propos du logiciel"},
    Aidefixe{"Command17", "Vérifie si votre version d'Orvane est la plus récente."},
};

constexpr std::array aidespanneaux{
    Aidefixe{"6",
             "Les mots de 6 lettres uniques, pouvant scrabbler.\nDonc par exemple pas "
             "ACINUS.\nPeuvent comporter quelques exceptions."},
    Aidefixe{"7",
             "Les mots de 7 lettres permettent des scrabbles secs, il \"suffit\" de leur trouver "
             "une place sur la grille."},
    Aidefixe{"8",
             "Les mots de 8 lettres utilisent une lettre de la grille, ce sont des scrabbles \"en "
             "appui\".\nCe sont les plus nombreux et en moyenne les plus difficiles."},
    Aidefixe{"rallong", rallonges},
};

/// The key is one of those in a text, which have a blank between them.
bool parmi(std::string_view cles, std::string_view cle) {
    while (!cles.empty()) {
        const auto blanc = cles.find(' ');
        if (cles.substr(0, blanc) == cle)
            return true;
        cles.remove_prefix(blanc == std::string_view::npos ? cles.size() : blanc + 1);
    }
    return false;
}

std::string_view chercher(std::span<const Aide> aides, std::string_view cle, std::size_t rangee) {
    const auto trouvee = std::find_if(aides.begin(), aides.end(), [&](const Aide& a) {
        return rangee >= a.premiere && rangee <= a.derniere && parmi(a.panneaux, cle);
    });
    return trouvee == aides.end() ? std::string_view() : trouvee->texte;
}

std::string_view chercher(std::span<const Aidefixe> aides, std::string_view cle) {
    const auto trouvee =
        std::find_if(aides.begin(), aides.end(), [&](const Aidefixe& a) { return a.cle == cle; });
    return trouvee == aides.end() ? std::string_view() : trouvee->texte;
}

}  // namespace

std::string_view aidetout(std::string_view cle, std::size_t rangee) {
    return chercher(aidestout, cle, rangee);
}

std::string_view aidelibelle(std::string_view cle, std::size_t rangee) {
    return chercher(aideslibelle, cle, rangee);
}

std::string_view aidefixe(std::string_view controle) {
    return chercher(aidesfixes, controle);
}

std::string_view aidepanneau(std::string_view cle) {
    return chercher(aidespanneaux, cle);
}

std::string bienvenue(std::string_view util) {
    return "Bienvenue " + std::string(util) +
           ".\nPassez votre souris sur les boutons et les infos utiles s'afficheront ici."
           "\nBon entraînement !";
}

}  // namespace menu
