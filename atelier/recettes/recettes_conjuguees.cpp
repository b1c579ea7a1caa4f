#include "regles.h"
#include "terminaisons.h"

namespace atelier {
namespace {

Contenu conjuguesuniques(const Matiere& m, std::size_t taille) {
    return simples(m.mots, choisir(m.mots, taille, taille,
                                   [](const Mot& mot) { return mot.conjugue && mot.unique; }));
}

/// Nothing but forms of defective verbs of the third group, infinitives apart.
Contenu defectifs(const Matiere& m) {
    return simples(m.mots, choisir(m.mots, 7, 8, [&](const Mot& mot) {
                       return mot.unique && m.mots.toutes(mot, [&](const Lecture& l) {
                           return l.nature == Nature::verbe && !l.al(infinitif) &&
                                  l.code.groupe == '3' && m.mots.lemme(l).defectif();
                       });
                   }));
}

Contenu atypiques(const Matiere& m, std::size_t taille) {
    return simples(m.mots, choisir(m.mots, taille, taille, [&](const Mot& mot) {
                       return mot.conjugue && mot.unique && !m.mots.une(mot, [&](const Lecture& l) {
                           return ordinaire(mot.texte(), m.mots.lemme(l).capitales, l.code.groupe);
                       });
                   }));
}

/// The only word that is not conjugated on a rack that holds two conjugations or more.
Selection seulsparmiconjugues(const Matiere& m, std::size_t min, std::size_t max) {
    return choisir(m.mots, min, max, [&](const Mot& mot) {
        const auto& tirage = m.mots.tirage(mot);
        return !mot.conjugue && tirage.nonconjugues == 1 && tirage.mots >= 3;
    });
}

Recette recetteatypique(std::string_view fichier, std::size_t taille) {
    return {.fichier = std::string(fichier),
            .description = "Les formes conjuguées de " + std::to_string(taille) +
                           " lettres, sans anagramme, qu'aucune terminaison ordinaire n'explique.",
            .faire = [taille](const Matiere& m) { return atypiques(m, taille); },
            .verbeadire = true};
}

Recette recetteunique(std::string_view fichier, std::size_t taille) {
    return {
        std::string(fichier),
        "Toutes les formes conjuguées de " + std::to_string(taille) + " lettres sans anagramme.",
        [taille](const Matiere& m) { return conjuguesuniques(m, taille); }};
}

Recette recetteduseul(std::string_view fichier, std::size_t taille) {
    return {
        std::string(fichier),
        "Les mots de " + std::to_string(taille) +
            " lettres non conjugués dont toutes les anagrammes, au moins deux, sont conjuguées.",
        [taille](const Matiere& m) {
            return simples(m.mots, seulsparmiconjugues(m, taille, taille));
        }};
}

}  // namespace

std::vector<Recette> recettesconjuguees() {
    return {
        {"78d.txt",
         "Les formes sans anagramme, de 7 et 8 lettres, des verbes défectifs du 3e groupe.",
         defectifs},
        recetteatypique("7at.txt", 7),
        recetteatypique("8at.txt", 8),
        recetteunique("conj7u.txt", 7),
        recetteunique("conj8u.txt", 8),
        recetteduseul("z7.txt", 7),
        recetteduseul("z8.txt", 8),
        {"z78_sel.txt",
         "Parmi les mots de 7 et 8 lettres dont les anagrammes sont conjuguées, ceux qui ont leur "
         "article au dictionnaire.",
         [](const Matiere& m) {
             auto mots = seulsparmiconjugues(m, 7, 8);
             std::erase_if(mots, [](const Mot* mot) { return !mot->entree; });
             return simples(m.mots, mots);
         }},
    };
}

}  // namespace atelier
