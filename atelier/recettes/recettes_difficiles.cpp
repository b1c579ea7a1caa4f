#include <algorithm>
#include <array>
#include <unordered_set>

#include "regles.h"

namespace atelier {
namespace {

constexpr std::uint32_t frequencecourante = 4;
constexpr std::size_t courants = 400;
constexpr std::size_t dursentrees = 300;
constexpr std::size_t dursconjugues = 100;
/// Words that the menu names as examples: their lists have them whatever their difficulty.
constexpr std::array exemples =
    std::to_array<std::string_view>({"PARANOIA", "ZIGOTEAU", "OPTICIEN"});

Selection plusdifficiles(const Matiere& m, const Selection& mots, std::size_t nombre) {
    return plushauts(mots, nombre, [&](const Mot& mot) { return m.difficulte.de(mot); });
}

bool seulnonconjugue(const Matiere& m, const Mot& mot) {
    return !mot.conjugue && m.mots.tirage(mot).nonconjugues == 1;
}

/// Common words, alone on their rack but for conjugations, hardest first.
Contenu motscourants(const Matiere& m, std::size_t taille) {
    auto mots = plusdifficiles(m,
                               choisir(m.mots, taille, taille,
                                       [&](const Mot& mot) {
                                           return mot.rang == Rang::nonconjugue &&
                                                  seulnonconjugue(m, mot) &&
                                                  mot.frequence >= frequencecourante;
                                       }),
                               courants);
    for (const auto exemple : exemples) {
        const auto* mot = m.mots.chercher(exemple);
        if (mot != nullptr && mot->taille() == taille &&
            std::find(mots.begin(), mots.end(), mot) == mots.end())
            mots.push_back(mot);
    }
    return simples(m.mots, mots);
}

/// Keeps the hardest word of each verb.
Selection unparlemme(const Matiere& m, Selection mots, std::size_t nombre) {
    std::vector<std::pair<int, const Mot*>> mesures;
    for (const auto* mot : mots)
        mesures.emplace_back(-m.difficulte.de(*mot), mot);
    std::sort(mesures.begin(), mesures.end());
    std::unordered_set<std::uint32_t> lemmes;
    mots.clear();
    for (const auto& [mesure, mot] : mesures) {
        if (mots.size() == nombre)
            break;
        if (m.mots.une(*mot, [&](const Lecture& l) { return lemmes.contains(l.lemme); }))
            continue;
        for (const auto& lecture : m.mots.lectures(*mot))
            lemmes.insert(lecture.lemme);
        mots.push_back(mot);
    }
    return mots;
}

/// Unique words, entries and conjugations, that their letters suggest least.
Contenu formationsatypiques(const Matiere& m, std::size_t taille) {
    const auto candidat = [](const Mot& mot) { return mot.unique && !mot.chere; };
    auto mots = plusdifficiles(m,
                               choisir(m.mots, taille, taille,
                                       [&](const Mot& mot) { return candidat(mot) && mot.entree; }),
                               dursentrees);
    const auto formes = unparlemme(m,
                                   choisir(m.mots, taille, taille,
                                           [&](const Mot& mot) {
                                               return candidat(mot) && mot.conjugue &&
                                                      !mot.finiten("AI") && !mot.finiten("EZ");
                                           }),
                                   dursconjugues);
    mots.insert(mots.end(), formes.begin(), formes.end());
    return simples(m.mots, mots);
}

Recette recettecourante(std::string_view fichier, std::size_t taille) {
    return {std::string(fichier),
            "Les " + std::to_string(courants) + " mots courants de " + std::to_string(taille) +
                " lettres, seuls non conjugués de leur tirage, que leurs lettres suggèrent le "
                "moins.",
            [taille](const Matiere& m) { return motscourants(m, taille); }};
}

Recette recettekvd(std::string_view fichier, std::size_t taille) {
    return {std::string(fichier),
            "Les " + std::to_string(dursentrees) + " entrées et les " +
                std::to_string(dursconjugues) + " formes conjuguées de " + std::to_string(taille) +
                " lettres, sans lettre chère ni anagramme, que leurs lettres suggèrent le moins.",
            [taille](const Matiere& m) { return formationsatypiques(m, taille); }};
}

}  // namespace

std::vector<Recette> recettesdifficiles() {
    return {
        recettecourante("courant_6L.txt", 6), recettecourante("courant_7L.txt", 7),
        recettecourante("courant_8L.txt", 8), recettecourante("courant_9L.txt", 9),
        recettekvd("durs_kvd_6L.txt", 6),     recettekvd("durs_kvd_7L.txt", 7),
        recettekvd("durs_kvd_8L.txt", 8),     recettekvd("durs_kvd_9L.txt", 9),
    };
}

}  // namespace atelier
