#pragma once

// The words that the play folder works with.

#include <memory>
#include <string>
#include <variant>

#include "envigueur.h"
#include "fabrique.h"
#include "fichier.h"
#include "glossaire.h"

namespace carnet {

struct Motsenvigueur {
    std::shared_ptr<const recherche::Glossaire> glossaire;
    recherche::Envigueur envigueur;
};

/// Reads them from the folder of the lists, or if they are not there, those of the free lexicon
/// from its sources. If there are none at all, a French sentence that says what to do.
[[nodiscard]] std::variant<Motsenvigueur, std::string> lire(common::Disque& disque,
                                                            const atelier::Chemins& chemins);

/// The words of the free lexicon, from its sources. Throws `common::Faute`.
[[nodiscard]] std::shared_ptr<const recherche::Glossaire> lexiquelibre(
    const atelier::Chemins& chemins);

}  // namespace carnet
