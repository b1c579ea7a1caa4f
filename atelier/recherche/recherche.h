#pragma once

// What a search finds: words, or the rows of a list that the trainer plays.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "criteres.h"
#include "fichier.h"
#include "glossaire.h"

namespace recherche {

/// The places of the words that were found, in the order asked for. `graine` seeds an order by
/// chance that names no seed.
[[nodiscard]] std::vector<std::uint32_t> chercher(const Glossaire& glossaire,
                                                  const Demande& demande, std::uint64_t graine);

/// A list for the trainer (format: docs/formats.md).
struct Liste {
    std::vector<std::string> rangees;  ///< in the order of a file
    std::size_t solutions = 0;         ///< of the row that has most
    std::vector<std::string> laisses;  ///< what was left out and why: French sentences
};

/// The rows of words that a search found. Racks with more words than a row holds are left out; so
/// are the rows past the bounds of the form, the last in the order of the words. Refuses a mix of
/// racks with one word and with several.
[[nodiscard]] std::variant<Liste, Refus> enliste(const Glossaire& glossaire,
                                                 const std::vector<std::uint32_t>& places);

/// The same for paper, where racks with one word and with several stand together.
[[nodiscard]] Liste surpapier(const Glossaire& glossaire, const std::vector<std::uint32_t>& places);

/// The words of a list of the folder `listes`: all solutions of a list of racks, the whole extended
/// words of a list of extensions, the words of a reference list; or, in French, why not.
[[nodiscard]] Motsdeliste motsdeliste(common::Disque& disque, std::string_view fichier);

}  // namespace recherche
