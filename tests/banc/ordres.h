#pragma once

// The orders of the bench, in one table for each subject.

#include <span>

#include "seance.h"

namespace banc {

[[nodiscard]] std::span<const Commande> ordresdelusager();    ///< mouse and keyboard
[[nodiscard]] std::span<const Commande> ordresduprogramme();  ///< start, login, menu, series
[[nodiscard]] std::span<const Commande> ordresdelamachine();  ///< clock, chance, network, answers
[[nodiscard]] std::span<const Commande> ordresdattente();     ///< values read and expected
[[nodiscard]] std::span<const Commande> ordresdesfichiers();

}  // namespace banc
