#pragma once

// Words that never change.

#include "vocabulaire.h"

namespace atelier {

/// A word that is the same everywhere and that no S nor X makes longer; not one that ends in S, X
/// or Z, which tell nothing.
[[nodiscard]] bool invariable(const Vocabulaire& v, const Mot& mot);

}  // namespace atelier
