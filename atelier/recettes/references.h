#pragma once

// The reference lists, by which the correction marks words.

#include <string>
#include <vector>

#include "listes.h"
#include "regles.h"

namespace atelier {

/// How a reference list is made.
struct Reference {
    common::ListeReference liste;
    std::string description;  ///< one French sentence
    std::function<std::vector<Capitales>(const Matiere&)> faire;
};

/// The recipes of all reference lists. Each makes at most as many words as its list may hold, the
/// shortest first.
[[nodiscard]] std::vector<Reference> references();

}  // namespace atelier
