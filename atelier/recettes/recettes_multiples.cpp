#include <algorithm>
#include <array>

#include "regles.h"
#include "tables.h"

namespace atelier {
namespace {

/// Whether conjugations stand beside the wanted words of a rack.
enum class Purete { pur, impur, indifferent };

/// The racks on which `nombre` words are not conjugated.
std::vector<const Tirage*> tiragesde(const Vocabulaire& v, std::size_t taille, std::size_t nombre,
                                     Purete purete) {
    std::vector<const Tirage*> choisis;
    for (const auto& tirage : v.tirages(taille, taille)) {
        const bool pur = tirage.mots == tirage.nonconjugues;
        if (tirage.nonconjugues != nombre || (purete == Purete::pur && !pur) ||
            (purete == Purete::impur && pur))
            continue;
        const auto souhaites = choisir(v, tirage, nonconjugue);
        if (pluriels(v, souhaites, taille) || injurieuse(souhaites))
            continue;
        choisis.push_back(&tirage);
    }
    return choisis;
}

Contenu nonconjugues(const Vocabulaire& v, const std::vector<const Tirage*>& tirages) {
    Contenu contenu;
    for (const auto* tirage : tirages)
        ajoutermultiple(contenu, v, *tirage, choisir(v, *tirage, nonconjugue));
    return contenu;
}

bool lemmecommun(const Vocabulaire& v, const Mot& a, const Mot& b) {
    return v.une(a, [&](const Lecture& la) {
        return v.une(b, [&](const Lecture& lb) { return la.lemme == lb.lemme; });
    });
}

/// The same letter behind two words that are anagrams already.
bool memefinale(const Vocabulaire& v, const Mot& a, const Mot& b) {
    const auto debut = [](const Mot& mot) { return mot.texte().substr(0, mot.taille() - 1); };
    return a.texte().back() == b.texte().back() && v.existe(debut(a)) && v.existe(debut(b));
}

/// A pure duo worth an effort.
bool interessant(const Vocabulaire& v, const Tirage& tirage) {
    const auto duo = choisir(v, tirage, nonconjugue);
    const auto &a = *duo[0], &b = *duo[1];
    return (a.entree || b.entree) && !lemmecommun(v, a, b) && !memefinale(v, a, b);
}

/// Pure duos worth an effort, of these weights.
Contenu selectiondeduos(const Vocabulaire& v, std::size_t taille, const std::vector<int>& poids) {
    auto tirages = tiragesde(v, taille, 2, Purete::pur);
    std::erase_if(tirages, [&](const Tirage* tirage) {
        const int p = v.mot(v.places(*tirage).front()).poids;
        const bool bonpoids =
            poids.empty() || std::find(poids.begin(), poids.end(), p) != poids.end();
        return !bonpoids || !interessant(v, *tirage);
    });
    return nonconjugues(v, tirages);
}

/// The better known word of a duo comes first: an article of a dictionary, then the commonest.
bool mieuxconnu(const Mot& a, const Mot& b) {
    const bool article = a.rang == Rang::nonconjugue;
    if (article != (b.rang == Rang::nonconjugue))
        return article;
    if (a.frequence != b.frequence)
        return a.frequence > b.frequence;
    return a.texte() < b.texte();
}

/// One word of a duo is the rack of the other.
Contenu sanstirage(const Vocabulaire& v, std::size_t taille) {
    Contenu contenu;
    for (const auto* tirage : tiragesde(v, taille, 2, Purete::indifferent)) {
        auto duo = choisir(v, *tirage, nonconjugue);
        if (mieuxconnu(*duo[1], *duo[0]))
            std::swap(duo[0], duo[1]);
        const std::string connu(duo[0]->texte());
        contenu.rangees.push_back({connu, connu, std::string(duo[1]->texte())});
        contenu.mots.push_back(place(v, *duo[1]));
    }
    ordonner(contenu);
    return contenu;
}

/// The racks that make `nombre` conjugations and nothing else.
Contenu conjugues(const Vocabulaire& v, std::size_t min, std::size_t max, std::size_t nombre) {
    Contenu contenu;
    for (const auto& tirage : v.tirages(min, max)) {
        if (tirage.nonconjugues == 0 && tirage.mots == nombre)
            ajoutermultiple(contenu, v, tirage, choisir(v, tirage, conjugue));
    }
    return contenu;
}

constexpr std::array groupes =
    std::to_array<std::string_view>({"", "", "deux", "trois", "quatre", "cinq"});

Recette recettedugroupe(std::string_view fichier, std::size_t taille, std::size_t nombre,
                        Purete purete) {
    std::string description = "Les tirages de " + std::to_string(taille) + " lettres qui font " +
                              std::string(groupes.at(nombre)) + " mots non conjugués";
    if (purete == Purete::pur)
        description += " et rien d'autre";
    if (purete == Purete::impur)
        description += ", et des conjugaisons que l'on ne demande pas";
    if (taille == 8)
        description += " ; sans les pluriels de mots de 7 lettres";
    return {std::string(fichier), description + ".", [=](const Matiere& m) {
                return nonconjugues(m.mots, tiragesde(m.mots, taille, nombre, purete));
            }};
}

Recette recetteselection(std::string_view fichier, std::size_t taille, const std::string& poids,
                         const std::vector<int>& valeurs) {
    return {std::string(fichier),
            "Les duos purs de " + std::to_string(taille) + " lettres" + poids +
                ", sans ceux qu'un même lemme ou une même finale explique.",
            [=](const Matiere& m) { return selectiondeduos(m.mots, taille, valeurs); }};
}

Recette recettesanstirage(std::string_view fichier, std::size_t taille) {
    return {std::string(fichier),
            "Les duos de " + std::to_string(taille) +
                " lettres, purs et impurs : le mot le plus connu est le tirage, l'autre la "
                "solution.",
            [taille](const Matiere& m) { return sanstirage(m.mots, taille); }};
}

Recette recetteconjuguee(std::string_view fichier, std::size_t min, std::size_t max,
                         std::size_t nombre) {
    const auto longueurs =
        min == max ? std::to_string(min) : std::to_string(min) + " et " + std::to_string(max);
    return {std::string(fichier),
            "Les tirages de " + longueurs + " lettres qui font " + std::string(groupes.at(nombre)) +
                " formes conjuguées et rien d'autre.",
            [=](const Matiere& m) { return conjugues(m.mots, min, max, nombre); }};
}

}  // namespace

std::vector<Recette> recettesmultiples() {
    return {
        recettedugroupe("7l_duos_purs.txt", 7, 2, Purete::pur),
        recettedugroupe("7l_duos_impurs.txt", 7, 2, Purete::impur),
        recetteselection("7l_duos_purs_sel.txt", 7, "", {}),
        recetteselection("7l_duos_purs567.txt", 7, " de poids 5, 6 et 7", {5, 6, 7}),
        recetteselection("7l_duos_purs014.txt", 7, " de poids 0, 1 et 4", {0, 1, 4}),
        recetteselection("7l_duos_purs23.txt", 7, " de poids 2 et 3", {2, 3}),
        recettesanstirage("7l_duos_sanstirage.txt", 7),
        recettedugroupe("8l_duos_purs.txt", 8, 2, Purete::pur),
        recettedugroupe("8l_duos_impurs.txt", 8, 2, Purete::impur),
        recetteselection("8l_duos_purs_sel.txt", 8, "", {}),
        recetteselection("8l_duos_purs567.txt", 8, " de poids 5, 6 et 7", {5, 6, 7}),
        recetteselection("8l_duos_purs014.txt", 8, " de poids 0, 1 et 4", {0, 1, 4}),
        recetteselection("8l_duos_purs23.txt", 8, " de poids 2 et 3", {2, 3}),
        recettesanstirage("8l_duos_sanstirage.txt", 8),
        recettedugroupe("7l_trios_purs.txt", 7, 3, Purete::pur),
        recettedugroupe("7l_trios_impurs.txt", 7, 3, Purete::impur),
        recettedugroupe("8l_trios_purs.txt", 8, 3, Purete::pur),
        recettedugroupe("8l_trios_impurs.txt", 8, 3, Purete::impur),
        recettedugroupe("7l_quatuors_purs.txt", 7, 4, Purete::pur),
        recettedugroupe("7l_quatuors_impurs.txt", 7, 4, Purete::impur),
        recettedugroupe("8l_quatuors_purs.txt", 8, 4, Purete::pur),
        recettedugroupe("8l_quatuors_impurs.txt", 8, 4, Purete::impur),
        recettedugroupe("7l_quintets_purs.txt", 7, 5, Purete::pur),
        recettedugroupe("7l_quintets_impurs.txt", 7, 5, Purete::impur),
        recettedugroupe("8l_quintets.txt", 8, 5, Purete::indifferent),
        recetteconjuguee("conj7_duos.txt", 7, 7, 2),
        recetteconjuguee("conj8_duos.txt", 8, 8, 2),
        recetteconjuguee("conj7_trios.txt", 7, 7, 3),
        recetteconjuguee("conj8_trios.txt", 8, 8, 3),
        recetteconjuguee("conj7_quatuors.txt", 7, 7, 4),
        recetteconjuguee("conj8_quatuors.txt", 8, 8, 4),
        recetteconjuguee("conj78_quintets.txt", 7, 8, 5),
    };
}

}  // namespace atelier
