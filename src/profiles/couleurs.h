#pragma once

// The six background colours that a player can choose from, by name.

#include <span>
#include <string_view>

#include "partage.h"
#include "valeurs.h"

namespace profiles {

struct Couleurdufond {
    std::string_view nom;
    ui::Couleur couleur;
};

using common::couleurpardefaut;

/// The colours, in the order in which they are offered.
[[nodiscard]] std::span<const Couleurdufond> couleursdufond();

/// The colour of a name; any other text, the empty one included, gives that of "Par défaut".
[[nodiscard]] ui::Couleur couleurdufond(std::string_view nom);

}  // namespace profiles
