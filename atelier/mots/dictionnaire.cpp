#include "dictionnaire.h"

#include <algorithm>

#include "faute.h"
#include "fichier.h"
#include "lignestexte.h"
#include "texte.h"

namespace atelier {
namespace {

constexpr std::string_view action = "Lecture du dictionnaire";
constexpr std::string_view marqueutf8 = "\xEF\xBB\xBF";

std::string_view sansblancs(std::string_view ligne) {
    const auto debut = ligne.find_first_not_of(" \t");
    if (debut == std::string_view::npos)
        return {};
    return ligne.substr(debut, ligne.find_last_not_of(" \t") - debut + 1);
}

}  // namespace

Dictionnaire liredictionnaire(std::string_view octets, std::string_view chemin) {
    if (octets.starts_with(marqueutf8))
        octets.remove_prefix(marqueutf8.size());
    const bool utf8 = points(octets).has_value();
    Dictionnaire mots;
    LignesTexte lignes(octets);
    std::string_view ligne;
    while (lignes.suivante(ligne)) {
        const auto texte = sansblancs(ligne);
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
