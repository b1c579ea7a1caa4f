#include "chantier.h"

#include <string_view>
#include <utility>

#include "disquereel.h"

namespace atelier {
namespace {

#ifndef ORVANE_LEXIQUE
#define ORVANE_LEXIQUE "/usr/share/hunspell/fr.dic"
#define ORVANE_AFFIXES "/usr/share/hunspell/fr.aff"
#define ORVANE_THESAURUS "/usr/share/mythes/thes_fr.dat"
#endif

std::string lire(const std::string& chemin, std::string_view action,
                 const Progression& progression) {
    progression(action);
    common::DisqueReel disque;
    return common::lirefichier(disque, chemin, action);
}

Lexique lexique(const Chemins& chemins, const Thesaurus& thesaurus,
                const Progression& progression) {
    const Affixes affixes(lire(chemins.affixes, "Lecture des affixes", progression),
                          chemins.affixes);
    return lirelexique(lire(chemins.lexique, "Lecture du lexique", progression), chemins.lexique,
                       affixes, thesaurus, chemins.ajouts ? retouches() : retouchessansajouts());
}

}  // namespace

Chemins cheminsdorigine() {
    return {ORVANE_LEXIQUE, ORVANE_AFFIXES, ORVANE_THESAURUS};
}

Chantier::Chantier(const Chemins& chemins, const std::optional<Dictionnaire>& dictionnaire,
                   Nouveautes nouveautes, const Progression& progression)
    : thesaurus_(lire(chemins.thesaurus, "Lecture du thésaurus", progression), chemins.thesaurus),
      vocabulaire_(lexique(chemins, thesaurus_, progression), dictionnaire),
      difficulte_(vocabulaire_),
      nouveautes_(std::move(nouveautes)) {}

}  // namespace atelier
