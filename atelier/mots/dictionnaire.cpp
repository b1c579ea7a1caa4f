#include "dictionnaire.h"

#include <algorithm>

#include "faute.h"
#include "fichier.h"
#include "lignestexte.h"
#include "texte.h"

namespace atelier {
namespace {

constexpr std::string_view action = "Lecture du dictionnaire";

}  // namespace

Dictionnaire liredictionnaire(std::string_view octets, std::string_view chemin) {
    if (octets.starts_with(common::marqueutf8))
        octets.remove_prefix(common::marqueutf8.size());
    const bool utf8 = points(octets).has_value();
    Dictionnaire mots;
    LignesTexte lignes(octets);
    std::string_view ligne;
    while (lignes.suivante(ligne)) {
        const auto texte = common::sansblancs(ligne);
        if (texte.empty())
            continue;
        const auto mot =
            encapitales(common::minuscules(utf8 ? std::string(texte) : common::depuis1252(texte)));
        if (!mot)
            throw common::Faute(common::rapportligne(action, chemin, lignes.numero(),
                                                     "on attend un mot, fait de lettres seules"));
        if (mot->size() >= longueurmin && mot->size() <= longueurmax)
            mots.emplace_back(*mot);
    }
    if (mots.empty())
        throw common::Faute(common::rapportfichier(action, chemin, "aucun mot jouable"));
    std::sort(mots.begin(), mots.end());
    mots.erase(std::unique(mots.begin(), mots.end()), mots.end());
    return mots;
}

}  // namespace atelier
