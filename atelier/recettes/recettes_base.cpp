#include <algorithm>

#include "regles.h"

namespace atelier {
namespace {

/// A rack with more wanted words than this asks too much of a player who learns short words.
constexpr std::size_t souhaitesmax = 3;
constexpr std::size_t souhaitesmax5 = 2;
constexpr std::size_t anagrammesmax5 = 3;
constexpr std::uint32_t verbecourant = 100;

bool conjugueenez(const Mot& mot) {
    return mot.conjugue && mot.finiten("EZ");
}

/// Adds the words that a list may ask.
void demander(Selection& mots, const Selection& souhaites) {
    std::copy_if(souhaites.begin(), souhaites.end(), std::back_inserter(mots),
                 [](const Mot* mot) { return !mot->injurieux; });
}

/// All words of three letters with a high-value letter.
Contenu chere3(const Matiere& m) {
    const auto mots = choisir(m.mots, 3, 3, [](const Mot& mot) { return mot.chere; });
    return indiques(m.mots, mots, mots);
}

/// Words with a high-value letter, but for the conjugations in -EZ.
Selection cheressansez(const Matiere& m, std::size_t taille) {
    return choisir(m.mots, taille, taille,
                   [](const Mot& mot) { return mot.chere && !conjugueenez(mot); });
}

Contenu chere45(const Matiere& m, std::size_t taille) {
    const auto mots = cheressansez(m, taille);
    return indiques(m.mots, mots, mots);
}

Contenu chere6(const Matiere& m, std::size_t total) {
    const auto mots = cheressansez(m, 6);
    const auto otable = [](const Mot& mot) { return mot.conjugue || mot.plurielevident; };
    return indiques(m.mots, couper(m.mots, mots, total, frequence, otable), mots);
}

/// Racks without a high-value letter; wanted are the words that are not conjugated, or all if all
/// are.
Selection courts34(const Matiere& m, std::size_t taille) {
    Selection mots;
    for (const auto& tirage : m.mots.tirages(taille, taille)) {
        auto souhaites = choisir(m.mots, tirage, nonconjugue);
        if (souhaites.empty())
            souhaites = choisir(m.mots, tirage, tous);
        if (souhaites.front()->chere || souhaites.size() > souhaitesmax)
            continue;
        demander(mots, souhaites);
    }
    std::sort(mots.begin(), mots.end());
    return mots;
}

Contenu courts3(const Matiere& m) {
    const auto mots = courts34(m, 3);
    return indiques(m.mots, mots, mots);
}

Contenu courts4(const Matiere& m, std::size_t total) {
    const auto mots = courts34(m, 4);
    return indiques(m.mots, couper(m.mots, mots, total, frequence), mots);
}

/// Racks of at most three words without a high-value letter; wanted are the words of the best rank.
Contenu courts5(const Matiere& m, std::size_t total) {
    Selection mots;
    for (const auto& tirage : m.mots.tirages(5, 5)) {
        const auto tousmots = choisir(m.mots, tirage, tous);
        if (tousmots.front()->chere || tousmots.size() > anagrammesmax5)
            continue;
        const auto meilleur =
            (*std::min_element(tousmots.begin(), tousmots.end(), [](const Mot* a, const Mot* b) {
                return a->rang < b->rang;
            }))->rang;
        const auto souhaites =
            choisir(m.mots, tirage, [&](const Mot& mot) { return mot.rang == meilleur; });
        if (souhaites.size() > souhaitesmax5)
            continue;
        demander(mots, souhaites);
    }
    std::sort(mots.begin(), mots.end());
    return indiques(m.mots, couper(m.mots, mots, total, frequence), mots);
}

Contenu verbes(const Matiere& m, const Selection& mots) {
    return indiques(m.mots, mots, choisir(m.mots, 4, 9, infinitive));
}

/// Infinitives of four and five letters that are neither defective nor common.
Contenu verbes45(const Matiere& m) {
    return verbes(m, choisir(m.mots, 4, 5, [&](const Mot& mot) {
                      return mot.infinitif && !defectif(m.mots, mot) &&
                             frequencedeverbe(m.mots, mot) < verbecourant;
                  }));
}

Contenu verbes6(const Matiere& m, std::size_t total) {
    return verbes(m, couper(m.mots, choisir(m.mots, 6, 6, infinitive), total, frequencedeverbe));
}

/// Infinitives of the first and second groups.
Contenu verbesreguliers(const Matiere& m, std::size_t taille, std::size_t total) {
    const auto mots = choisir(m.mots, taille, taille, [&](const Mot& mot) {
        return m.mots.une(mot, [](const Lecture& l) {
            return l.al(infinitif) && (l.code.groupe == '1' || l.code.groupe == '2');
        });
    });
    return verbes(m, couper(m.mots, mots, total, frequencedeverbe));
}

/// A list that is cut to a size, which its description says last.
Recette recettecoupee(std::string_view fichier, const std::string& description, std::size_t total,
                      const std::function<Contenu(const Matiere&, std::size_t)>& faire) {
    return {std::string(fichier), description + " : " + std::to_string(total) + " au plus.",
            [=](const Matiere& m) { return faire(m, total); }};
}

std::string descriptioncourte(std::size_t taille) {
    return "Les mots de " + std::to_string(taille) +
           " lettres sans lettre chère ; un nom plutôt qu'une conjugaison, et pas de tirage à plus "
           "de " +
           std::to_string(souhaitesmax) + " mots voulus";
}

Recette recettechere(std::string_view fichier, std::size_t taille) {
    return {std::string(fichier),
            "Les mots de " + std::to_string(taille) +
                " lettres qui ont une lettre chère, sans les conjugaisons en -EZ.",
            [taille](const Matiere& m) { return chere45(m, taille); }};
}

Recette recettereguliere(std::string_view fichier, std::size_t taille, std::size_t total) {
    return recettecoupee(fichier,
                         "Les infinitifs de " + std::to_string(taille) +
                             " lettres des 1er et 2e groupes, sans les plus courants",
                         total, [taille](const Matiere& m, std::size_t nombre) {
                             return verbesreguliers(m, taille, nombre);
                         });
}

}  // namespace

std::vector<Recette> recettesdebase() {
    return {
        {"3lc.txt", "Tous les mots de 3 lettres qui ont une lettre chère (J K Q W X Y Z).", chere3},
        {"3lt.txt", descriptioncourte(3) + ".", courts3},
        {"vb45.txt", "Les infinitifs de 4 et 5 lettres, sans les défectifs ni les plus courants.",
         verbes45},
        recettecoupee("vb6.txt", "Les infinitifs de 6 lettres, sans les plus courants", 779,
                      verbes6),
        recettechere("4lc.txt", 4),
        recettechere("5lc.txt", 5),
        recettecoupee("6lc.txt",
                      "Les mots de 6 lettres qui ont une lettre chère, sans les conjugaisons en "
                      "-EZ ni les conjugaisons et pluriels les plus courants",
                      1902, chere6),
        recettereguliere("vb7.txt", 7, 1215),
        recettereguliere("vb8.txt", 8, 1467),
        recettereguliere("vb9.txt", 9, 1300),
        recettecoupee("4lt.txt", descriptioncourte(4) + " ; sans les plus courants", 1568, courts4),
        recettecoupee("5lt.txt",
                      "Les mots de 5 lettres sans lettre chère, tirages à " +
                          std::to_string(anagrammesmax5) +
                          " mots au plus ; un nom plutôt qu'un pluriel ou une conjugaison",
                      3676, courts5),
    };
}

}  // namespace atelier
