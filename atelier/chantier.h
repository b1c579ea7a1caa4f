#pragma once

// The sources, read, and what the rules of the lists need of them.

#include <optional>
#include <string>

#include "difficulte.h"
#include "fabrication.h"
#include "nouveautes.h"
#include "thesaurus.h"
#include "vocabulaire.h"

namespace atelier {

/// Where the sources are (paths of the system), and how the lexicon is read.
struct Chemins {
    std::string lexique;
    std::string affixes;
    std::string thesaurus;
    bool ajouts = true;  ///< the lexicon gets the words that it lacks
};

/// The places that the build found, or those of Debian.
[[nodiscard]] Chemins cheminsdorigine();

class Chantier {
  public:
    /// Reads everything. `progression` is told of each step before it begins. Throws
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
