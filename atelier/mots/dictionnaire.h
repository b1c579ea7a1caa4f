#pragma once

// A player's own dictionary: a plain text of words.

#include <string_view>

#include "vocabulaire.h"

namespace atelier {

/// Reads a text of words, one a line: UTF-8 or Windows-1252, any line end, any case, accents or
/// none. Words of a length that no board holds are left out. `chemin` names the text in reports.
/// Throws `common::Faute`, with the line, for anything but words.
[[nodiscard]] Dictionnaire liredictionnaire(std::string_view octets, std::string_view chemin);

}  // namespace atelier
