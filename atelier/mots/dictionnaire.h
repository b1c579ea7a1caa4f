#pragma once

// A player's own dictionary: a text file of words.

#include <string_view>

#include "vocabulaire.h"

namespace atelier {

/// Reads words, one a line: UTF-8 or Windows-1252, any line end, any case, with or without accents.
/// Words too short or too long for the game are skipped. Reports call the file `chemin`. Throws
/// `common::Faute`, with the line, for anything that is not a word.
[[nodiscard]] Dictionnaire liredictionnaire(std::string_view octets, std::string_view chemin);

}  // namespace atelier
