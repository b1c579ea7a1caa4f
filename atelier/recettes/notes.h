#pragma once

// Notes on words, shown when the mouse passes over a word after the correction.

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "thesaurus.h"
#include "vocabulaire.h"

namespace atelier {

/// Most notes that the file holds: a correction reads it whole.
constexpr std::size_t notesmax = 10000;

struct Note {
    std::string mot;    ///< capitals
    std::string texte;  ///< never empty, never a word in capitals
};

/// The notes worth most among the words that lists ask, by alphabet. `demandes` and `atypiques` are
/// places in the vocabulary; the latter are conjugations whose verb has to be said.
[[nodiscard]] std::vector<Note> notes(const Vocabulaire& v, const Thesaurus& thesaurus,
                                      const std::set<std::uint32_t>& demandes,
                                      const std::set<std::uint32_t>& atypiques);

}  // namespace atelier
