#pragma once

// Invariable words.

#include "vocabulaire.h"

namespace atelier {

/// The word has one form only, and makes no other word with S or X behind it. Never true for a word
/// that ends in S, X or Z: its plural would look the same.
[[nodiscard]] bool invariable(const Vocabulaire& v, const Mot& mot);

}  // namespace atelier
