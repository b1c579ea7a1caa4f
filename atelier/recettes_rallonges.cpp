#include <algorithm>
#include <map>

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

/// Words that become an entry by one letter, with all such letters.
Contenu rallonges(const Vocabulaire& v, std::size_t taille, Cote cote) {
    struct Lettres {
        std::string lettres;
        std::vector<std::uint32_t> mots;
    };
    std::map<const Mot*, Lettres> parmot;  // words lie in alphabetical order
    for (const auto& rallonge : v.mots(taille + 1, taille + 1)) {
        if (!rallonge.entree)
            continue;
        const auto texte = rallonge.texte();
        const auto* mot =
            v.chercher(cote == Cote::avant ? texte.substr(1) : texte.substr(0, taille));
        if (mot == nullptr || mot->injurieux || rallonge.injurieux ||
            (cote == Cote::arriere && memelemme(v, *mot, rallonge)))
            continue;
        auto& lettres = parmot[mot];
        lettres.lettres += cote == Cote::avant ? texte.front() : texte.back();
        lettres.mots.push_back(place(v, rallonge));
    }
    Contenu contenu;
    for (auto& [mot, lettres] : parmot) {
        std::string tirage(mot->texte());
        const std::string nu = tirage;
        if (lettres.lettres.size() > 1)
            tirage.insert(cote == Cote::avant ? 0 : tirage.size(), "?");
        std::sort(lettres.lettres.begin(), lettres.lettres.end());
        contenu.rangees.push_back({nu, tirage, lettres.lettres});
        contenu.mots.insert(contenu.mots.end(), lettres.mots.begin(), lettres.mots.end());
    }
    return contenu;
}

}  // namespace

void recettesrallonges(std::vector<Recettes>& toutes) {
    Recettes recettes{"rallong", {}};
    for (const std::size_t taille : {7U, 8U, 6U, 5U}) {
        for (const auto cote : {Cote::avant, Cote::arriere}) {
            const std::string place = cote == Cote::avant
                                          ? "devant"
                                          : "derrière, autrement que par une forme du même mot";
            recettes.recettes.push_back(
                {"Les mots de " + std::to_string(taille) + " lettres qu'une lettre allonge par " +
                     place +
                     " ; la solution est la lettre ou les lettres, dans l'ordre alphabétique.",
                 [taille, cote](const Matiere& m) { return rallonges(m.mots, taille, cote); }});
        }
    }
    toutes.push_back(std::move(recettes));
}

}  // namespace atelier
