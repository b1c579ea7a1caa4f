#include <algorithm>
#include <iterator>

#include "regles.h"

namespace atelier {
namespace {

/// The new words of all editions that are on racks of these lengths.
Dictionnaire entres(const Nouveautes& nouveautes, std::size_t min, std::size_t max) {
    Dictionnaire tous;
    for (const auto& edition : nouveautes) {
        std::copy_if(
            edition.begin(), edition.end(), std::back_inserter(tous),
            [&](const Capitales& mot) { return mot.taille() >= min && mot.taille() <= max; });
    }
    std::sort(tous.begin(), tous.end());
    tous.erase(std::unique(tous.begin(), tous.end()), tous.end());
    return tous;
}

bool tirageconnu(const Vocabulaire& v, const Capitales& lettres) {
    const auto tirages = v.tirages();
    const auto trouve =
        std::lower_bound(tirages.begin(), tirages.end(), lettres,
                         [](const Tirage& t, const Capitales& l) { return t.lettres < l; });
    return trouve != tirages.end() && trouve->lettres == lettres;
}

bool cher(const Capitales& mot) {
    const auto t = mot.texte();
    return std::any_of(t.begin(), t.end(),
                       [](char lettre) { return points(lettre) >= pointschere; });
}

}  // namespace

Contenu nouveauteschere(const Vocabulaire& v, const Nouveautes& nouveautes) {
    const auto tous = entres(nouveautes, 7, 8);
    // A new word that the lexicon does not know takes part in what is unique.
    std::vector<Capitales> inconnus;
    for (const auto& mot : tous) {
        if (!v.existe(mot.texte()))
            inconnus.push_back(mot.triees());
    }
    std::sort(inconnus.begin(), inconnus.end());
    Contenu contenu;
    for (const auto& entre : tous) {
        if (!cher(entre))
            continue;
        const auto lettres = entre.triees();
        const auto autres = std::count(inconnus.begin(), inconnus.end(), lettres);
        const auto* mot = v.chercher(entre.texte());
        const bool seul = mot == nullptr ? autres == 1 && !tirageconnu(v, lettres)
                                         : autres == 0 && mot->unique && !mot->conjugue;
        if (!seul)
            continue;
        const std::string tirage(lettres.texte());
        contenu.rangees.push_back({tirage, tirage, std::string(entre.texte())});
        if (mot != nullptr)
            contenu.mots.push_back(place(v, *mot));
    }
    ordonner(contenu);
    return contenu;
}

}  // namespace atelier
