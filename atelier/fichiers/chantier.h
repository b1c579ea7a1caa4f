#pragma once

// The sources as they were read, and what the recipes need to know of them.

#include <optional>
#include <string>

#include "difficulte.h"
#include "fabrication.h"
#include "nouveautes.h"
#include "thesaurus.h"
#include "vocabulaire.h"

namespace atelier {

/// Where the sources are, paths of the system, and whether the lexicon is taken as it stands.
struct Chemins {
    std::string lexique;
    std::string affixes;
    std::string thesaurus;
    bool ajouts = true;  ///< add the words that the lexicon lacks
};

/// Where the sources are unless others are named: those that the build found; on Windows those in
/// `lexique` beside the program, if it is there. One source a system.
[[nodiscard]] Chemins cheminsdorigine();

class Chantier {
  public:
    /// Reads everything. Calls `progression` before each step. Throws
    /// `common::Faute` for a source that cannot be read.
    Chantier(const Chemins& chemins, const std::optional<Dictionnaire>& dictionnaire,
             Nouveautes nouveautes, const Progression& progression);

    [[nodiscard]] const Thesaurus& thesaurus() const { return thesaurus_; }
    [[nodiscard]] const Vocabulaire& vocabulaire() const { return vocabulaire_; }
    [[nodiscard]] const Difficulte& difficulte() const { return difficulte_; }
    [[nodiscard]] const Nouveautes& nouveautes() const { return nouveautes_; }
    [[nodiscard]] Matiere matiere() const { return {vocabulaire_, difficulte_, nouveautes_}; }

  private:
    Thesaurus thesaurus_;
    Vocabulaire vocabulaire_;
    Difficulte difficulte_;
    Nouveautes nouveautes_;
};

}  // namespace atelier
