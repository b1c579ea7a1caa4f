#include <limits>

#include "regles.h"

namespace atelier {
namespace {

constexpr int sanslimite = std::numeric_limits<int>::max();

/// From a weight to another, both included.
struct Poids {
    int min = 0;
    int max = 0;
    [[nodiscard]] bool contient(const Mot& mot) const {
        return mot.poids >= min && mot.poids <= max;
    }
};

/// The weights of the rows of the panels 6, 7 and 8.
constexpr std::array poidsdesrangees{Poids{7, sanslimite}, Poids{6, 6}, Poids{0, 0}, Poids{5, 5},
                                     Poids{1, 1},          Poids{4, 4}, Poids{2, 2}, Poids{3, 3}};

std::string enclair(const Poids& poids) {
    if (poids.max == sanslimite)
        return "de poids " + std::to_string(poids.min) + " et plus";
    if (poids.min == poids.max)
        return "de poids " + std::to_string(poids.min);
    return "de poids " + std::to_string(poids.min) + " à " + std::to_string(poids.max);
}

/// A letter in front or behind makes a longer word: the word can be put down beside another.
bool prolongeable(const Vocabulaire& v, const Mot& mot) {
    std::string devant = ' ' + std::string(mot.texte());
    std::string derriere = std::string(mot.texte()) + ' ';
    for (char lettre = 'A'; lettre <= 'Z'; ++lettre) {
        devant.front() = lettre;
        derriere.back() = lettre;
        if (v.existe(devant) || v.existe(derriere))
            return true;
    }
    return false;
}

Contenu uniquessanschere(const Matiere& m, std::size_t taille, const Poids& poids) {
    return simples(m.mots, choisir(m.mots, taille, taille, [&](const Mot& mot) {
                       return mot.entree && mot.unique && !mot.chere && poids.contient(mot) &&
                              (taille > 6 || prolongeable(m.mots, mot));
                   }));
}

Recettes panneaudepoids(std::string_view panneau, std::size_t taille) {
    Recettes recettes{panneau, {}};
    for (const auto& poids : poidsdesrangees) {
        recettes.recettes.push_back(
            {"Les mots de " + std::to_string(taille) + " lettres sans lettre chère ni anagramme, " +
                 enclair(poids) +
                 (taille > 6 ? ", sans conjugaisons ni pluriels évidents."
                             : ", qu'une lettre devant ou derrière prolonge, sans conjugaisons ni "
                               "pluriels évidents."),
             [taille, poids](const Matiere& m) { return uniquessanschere(m, taille, poids); }});
    }
    return recettes;
}

// The panels of dear letters.

/// Common entries are left out of the choice of hard words from this frequency up.
constexpr std::uint32_t entreecourante = 20;
constexpr std::size_t dursparlongueur = 250;

bool cheresunique(const Mot& mot) {
    return mot.chere && mot.unique;
}

struct Tranche {
    std::size_t min = 0;
    std::size_t max = 0;
    Poids poids;
};

constexpr std::array tranchesa{
    Tranche{7, 8, {7, 7}},   Tranche{7, 8, {8, 8}},   Tranche{7, 7, {9, 9}},
    Tranche{8, 8, {9, 9}},   Tranche{7, 7, {10, 10}}, Tranche{8, 8, {10, 10}},
    Tranche{7, 7, {11, 11}}, Tranche{8, 8, {11, 11}},
};

constexpr std::array tranchesb{
    Tranche{7, 7, {12, 12}}, Tranche{8, 8, {12, 12}},         Tranche{7, 8, {13, 13}},
    Tranche{7, 8, {14, 15}}, Tranche{7, 8, {16, sanslimite}},
};

Recette recettechere(const Tranche& tranche, bool avecconjugues) {
    const auto longueurs = tranche.min == tranche.max
                               ? std::to_string(tranche.min)
                               : std::to_string(tranche.min) + " et " + std::to_string(tranche.max);
    return {"Tous les mots de " + longueurs +
                " lettres qui ont une lettre chère et pas d'anagramme, " + enclair(tranche.poids) +
                (avecconjugues ? ", conjugaisons comprises." : ", sans les conjugaisons."),
            [tranche, avecconjugues](const Matiere& m) {
                return simples(m.mots,
                               choisir(m.mots, tranche.min, tranche.max, [&](const Mot& mot) {
                                   return cheresunique(mot) && tranche.poids.contient(mot) &&
                                          (avecconjugues || !mot.conjugue);
                               }));
            }};
}

Contenu cheresdures(const Matiere& m) {
    Selection mots;
    for (const std::size_t taille : {7U, 8U}) {
        const auto dures = plushauts(
            choisir(m.mots, taille, taille,
                    [](const Mot& mot) {
                        return cheresunique(mot) && mot.entree && mot.frequence < entreecourante;
                    }),
            dursparlongueur, [&](const Mot& mot) { return m.difficulte.de(mot); });
        mots.insert(mots.end(), dures.begin(), dures.end());
    }
    return simples(m.mots, mots);
}

}  // namespace

void recettesparpoids(std::vector<Recettes>& toutes) {
    toutes.push_back(panneaudepoids("6", 6));
    toutes.push_back(panneaudepoids("7", 7));
    toutes.push_back(panneaudepoids("8", 8));
}

void recetteslettreschere(std::vector<Recettes>& toutes) {
    Recettes a{"78lca", {}};
    for (const auto& tranche : tranchesa)
        a.recettes.push_back(recettechere(tranche, true));
    toutes.push_back(std::move(a));
    Recettes b{"78lcb", {}};
    for (const auto& tranche : tranchesb)
        b.recettes.push_back(recettechere(tranche, false));
    b.recettes.push_back(
        {"Les mots de 7 et 8 lettres qui ont une lettre chère, pas d'anagramme, et "
         "leur article au dictionnaire.",
         [](const Matiere& m) {
             return simples(m.mots, choisir(m.mots, 7, 8, [](const Mot& mot) {
                                return cheresunique(mot) && mot.entree;
                            }));
         }});
    b.recettes.push_back(
        {"Les 250 mots de 7 lettres et les 250 de 8 lettres, avec une lettre chère "
         "et peu courants, que leurs lettres suggèrent le moins.",
         cheresdures});
    b.recettes.push_back(
        {"Les mots de 7 et 8 lettres, avec une lettre chère et sans anagramme, "
         "entrés en 2008, 2012 et 2016 ; vide tant que l'on n'a pas comparé les "
         "éditions que l'on possède.",
         [](const Matiere& m) { return nouveauteschere(m.mots, m.nouveautes); }});
    toutes.push_back(std::move(b));
}

}  // namespace atelier
