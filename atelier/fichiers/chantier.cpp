#include "chantier.h"

#include <string_view>
#include <utility>

#include "disquereel.h"
#include "fichier.h"

namespace atelier {
namespace {

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

Chantier::Chantier(const Chemins& chemins, const std::optional<Dictionnaire>& dictionnaire,
                   Nouveautes nouveautes, const Progression& progression)
    : thesaurus_(lire(chemins.thesaurus, "Lecture du thésaurus", progression), chemins.thesaurus),
      vocabulaire_(lexique(chemins, thesaurus_, progression), dictionnaire),
      difficulte_(vocabulaire_),
      nouveautes_(std::move(nouveautes)) {}

}  // namespace atelier
