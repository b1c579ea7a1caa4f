#include <set>
#include <string>

#include "regles.h"

namespace atelier {
namespace {

enum class Cote { avant, arriere };

/// A word and its extension have a lemma in common, accents left out: the extension is obvious.
bool memelemme(const Vocabulaire& v, const Mot& mot, const Mot& rallonge) {
    return v.une(mot, [&](const Lecture& a) {
        return v.une(rallonge, [&](const Lecture& b) {
            return v.lemme(a).capitales == v.lemme(b).capitales;
        });
    });
}

/// What no player looks for: behind a word, another form of it.
bool evidente(const Vocabulaire& v, const Mot& mot, const Mot& rallonge, Cote cote) {
    return cote == Cote::arriere && memelemme(v, mot, rallonge);
}

/// The words that a letter makes of a word, by that letter.
Selection allonges(const Vocabulaire& v, const Mot& mot, Cote cote) {
    Selection mots;
    std::string texte(mot.texte());
    const auto place = cote == Cote::avant ? texte.begin() : texte.end();
    auto& lettre = *texte.insert(place, 'A');
    for (; lettre <= 'Z'; ++lettre) {
        const auto* rallonge = v.chercher(texte);
        if (rallonge != nullptr && !evidente(v, mot, *rallonge, cote))
            mots.push_back(rallonge);
    }
    return mots;
}

/// The words that a letter makes an entry of, with all letters that make them a word: to a player
/// these are as right.
Contenu rallonges(const Vocabulaire& v, std::size_t taille, Cote cote) {
    std::set<const Mot*> mots;  // words lie in alphabetical order
    for (const auto& rallonge : v.mots(taille + 1, taille + 1)) {
        if (!rallonge.entree || rallonge.injurieux)
            continue;
        const auto texte = rallonge.texte();
        const auto* mot =
            v.chercher(cote == Cote::avant ? texte.substr(1) : texte.substr(0, taille));
        if (mot != nullptr && !mot->injurieux && !evidente(v, *mot, rallonge, cote))
            mots.insert(mot);
    }
    Contenu contenu;
    for (const auto* mot : mots) {
        const std::string nu(mot->texte());
        std::string lettres;
        for (const auto* longue : allonges(v, *mot, cote)) {
            lettres += cote == Cote::avant ? longue->texte().front() : longue->texte().back();
            contenu.mots.push_back(place(v, *longue));
        }
        std::string tirage = nu;
        if (lettres.size() > 1)
            tirage.insert(cote == Cote::avant ? 0 : tirage.size(), "?");
        contenu.rangees.push_back({nu, std::move(tirage), std::move(lettres)});
    }
    return contenu;
}

Recette recetterallonge(std::string_view fichier, std::size_t taille, Cote cote) {
    const std::string ou =
        cote == Cote::avant ? "devant" : "derrière, autrement que par une forme du même mot";
    return {std::string(fichier),
            "Les mots de " + std::to_string(taille) + " lettres qu'une lettre allonge par " + ou +
                " ; la solution est la lettre ou les lettres, dans l'ordre alphabétique.",
            [taille, cote](const Matiere& m) { return rallonges(m.mots, taille, cote); }};
}

}  // namespace

std::vector<Recette> recettesrallonges() {
    return {
        recetterallonge("rallonge_av_7a8L.txt", 7, Cote::avant),
        recetterallonge("rallonge_ar_7a8L.txt", 7, Cote::arriere),
        recetterallonge("rallonge_av_8a9L.txt", 8, Cote::avant),
        recetterallonge("rallonge_ar_8a9L.txt", 8, Cote::arriere),
        recetterallonge("rallonge_av_6a7L.txt", 6, Cote::avant),
        recetterallonge("rallonge_ar_6a7L.txt", 6, Cote::arriere),
        recetterallonge("rallonge_av_5a6L.txt", 5, Cote::avant),
        recetterallonge("rallonge_ar_5a6L.txt", 5, Cote::arriere),
    };
}

}  // namespace atelier
