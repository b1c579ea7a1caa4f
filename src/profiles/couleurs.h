#pragma once

// The six background colours that a player can choose, by name.

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

/// The colours, in the order of the options form.
[[nodiscard]] std::span<const Couleurdufond> couleursdufond();

/// The colour with a name; for any other text, even an empty one, that of "Par défaut".
[[nodiscard]] ui::Couleur couleurdufond(std::string_view nom);

}  // namespace profiles
