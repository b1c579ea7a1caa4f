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

/// The lists of a length of word: what stands behind the length in the file, and the weights.
struct Parpoids {
    std::string_view suite;
    Poids poids;
};
constexpr std::array listesparpoids{
    Parpoids{"up.txt", {7, sanslimite}}, Parpoids{"v6.txt", {6, 6}}, Parpoids{"v0.txt", {0, 0}},
    Parpoids{"v5.txt", {5, 5}},          Parpoids{"v1.txt", {1, 1}}, Parpoids{"v4.txt", {4, 4}},
    Parpoids{"v2.txt", {2, 2}},          Parpoids{"v3.txt", {3, 3}},
};

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

Recette recettedepoids(std::size_t taille, const Parpoids& liste) {
    const auto poids = liste.poids;
    return {std::to_string(taille) + std::string(liste.suite),
            "Les mots de " + std::to_string(taille) + " lettres sans lettre chère ni anagramme, " +
                enclair(poids) +
                (taille > 6 ? ", sans conjugaisons ni pluriels évidents."
                            : ", qu'une lettre devant ou derrière prolonge, sans conjugaisons ni "
                              "pluriels évidents."),
            [taille, poids](const Matiere& m) { return uniquessanschere(m, taille, poids); }};
}

// The lists of high-value letters.

/// Common entries are left out of the choice of hard words from this frequency up.
constexpr std::uint32_t entreecourante = 20;
constexpr std::size_t dursparlongueur = 250;

bool cheresunique(const Mot& mot) {
    return mot.chere && mot.unique;
}

/// A list of words that have a high-value letter: lengths, weights, and whether it takes
/// conjugations.
struct Chere {
    std::string_view fichier;
    std::size_t min = 0;
    std::size_t max = 0;
    Poids poids;
    bool conjugues = false;
};

constexpr std::array cheres{
    Chere{"78v7.txt", 7, 8, {7, 7}, true},      Chere{"78v8.txt", 7, 8, {8, 8}, true},
    Chere{"7v9.txt", 7, 7, {9, 9}, true},       Chere{"8v9.txt", 8, 8, {9, 9}, true},
    Chere{"7vd.txt", 7, 7, {10, 10}, true},     Chere{"8vd.txt", 8, 8, {10, 10}, true},
    Chere{"7vo.txt", 7, 7, {11, 11}, true},     Chere{"8vo.txt", 8, 8, {11, 11}, true},
    Chere{"7vu.txt", 7, 7, {12, 12}},           Chere{"8vu.txt", 8, 8, {12, 12}},
    Chere{"78v13.txt", 7, 8, {13, 13}},         Chere{"78v145.txt", 7, 8, {14, 15}},
    Chere{"78vup.txt", 7, 8, {16, sanslimite}},
};

Recette recettechere(const Chere& liste) {
    const auto longueurs = liste.min == liste.max
                               ? std::to_string(liste.min)
                               : std::to_string(liste.min) + " et " + std::to_string(liste.max);
    return {std::string(liste.fichier),
            "Tous les mots de " + longueurs +
                " lettres qui ont une lettre chère et pas d'anagramme, " + enclair(liste.poids) +
                (liste.conjugues ? ", conjugaisons comprises." : ", sans les conjugaisons."),
            [liste](const Matiere& m) {
                return simples(m.mots, choisir(m.mots, liste.min, liste.max, [&](const Mot& mot) {
                                   return cheresunique(mot) && liste.poids.contient(mot) &&
                                          (liste.conjugues || !mot.conjugue);
                               }));
            }};
}

Contenu cherestoutes(const Matiere& m) {
    return simples(m.mots, choisir(m.mots, 7, 8,
                                   [](const Mot& mot) { return cheresunique(mot) && mot.entree; }));
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

std::vector<Recette> recettesparpoids() {
    std::vector<Recette> recettes;
    for (const std::size_t taille : {6U, 7U, 8U}) {
        for (const auto& liste : listesparpoids)
            recettes.push_back(recettedepoids(taille, liste));
    }
    return recettes;
}

std::vector<Recette> recetteslettreschere() {
    std::vector<Recette> recettes;
    for (const auto& liste : cheres)
        recettes.push_back(recettechere(liste));
    recettes.push_back({"78tout.txt",
                        "Les mots de 7 et 8 lettres qui ont une lettre chère, pas d'anagramme, et "
                        "leur article au dictionnaire.",
                        cherestoutes});
    const auto nombre = std::to_string(dursparlongueur);
    recettes.push_back({"ch78rev.txt",
                        "Les " + nombre + " mots de 7 lettres et les " + nombre +
                            " de 8 lettres, avec une lettre chère et peu courants, que leurs "
                            "lettres suggèrent le moins.",
                        cheresdures});
    recettes.push_back({"78ods5-6-7.txt",
                        "Les mots de 7 et 8 lettres, avec une lettre chère et sans anagramme, "
                        "entrés en 2008, 2012 et 2016 ; vide tant que l'on n'a pas comparé les "
                        "éditions que l'on possède.",
                        [](const Matiere& m) { return nouveauteschere(m.mots, m.nouveautes); }});
    return recettes;
}

}  // namespace atelier
