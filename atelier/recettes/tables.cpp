#include "tables.h"

#include <algorithm>

namespace atelier {

std::string fichierimage(const Table& table, int finesse) {
    return std::string(table.image) + (finesse > 1 ? "@" + std::to_string(finesse) + "x" : "") +
           ".png";
}

std::string titre(const Table& table) {
    return "TIRAGES DE " + std::to_string(table.taille) + " LETTRES A " +
           std::to_string(anagrammesmin) + " ANAGRAMMES ET PLUS";
}

bool pluriels(const Vocabulaire& v, const Selection& souhaites, std::size_t taille) {
    return taille == 8 && std::all_of(souhaites.begin(), souhaites.end(), [&](const Mot* mot) {
               if (!mot->finiten("S"))
                   return false;
               const auto* singulier = v.chercher(mot->texte().substr(0, mot->taille() - 1));
               return singulier != nullptr && !singulier->conjugue;
           });
}

Contenu tirages6(const Vocabulaire& v, std::size_t taille) {
    Contenu contenu;
    for (const auto& tirage : v.tirages(taille, taille)) {
        if (tirage.nonconjugues < anagrammesmin)
            continue;
        const auto mots = choisir(v, tirage, nonconjugue);
        if (!pluriels(v, mots, taille))
            ajoutermultiple(contenu, v, tirage, mots);
    }
    return contenu;
}

}  // namespace atelier
