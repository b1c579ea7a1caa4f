#pragma once

// Notes on words. They appear when the mouse is over a word after the correction.

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "listes.h"
#include "thesaurus.h"
#include "vocabulaire.h"

namespace atelier {

/// Most notes in the file, two lines each, that both forms can read.
constexpr std::size_t notesmax = common::lignesinfosourismulti / 2;

struct Note {
    std::string mot;    ///< capitals
    std::string texte;  ///< never empty; never one word in capitals, which would be read as `mot`
};

/// The most useful notes on the words that lists ask for, in alphabetical order. `demandes` (those
/// words) and `atypiques` (conjugations that do not show their verb, which the note names) are
/// indices in the vocabulary.
[[nodiscard]] std::vector<Note> notes(const Vocabulaire& v, const Thesaurus& thesaurus,
                                      const std::set<std::uint32_t>& demandes,
                                      const std::set<std::uint32_t>& atypiques);

}  // namespace atelier
