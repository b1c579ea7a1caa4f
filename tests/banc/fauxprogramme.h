#pragma once

// A small program with the program's form names, on which the bench itself is tested.

#include <string>
#include <string_view>

#include "programme.h"
#include "seance.h"

namespace banc {

/// Form2 logs in and shows Form3; `serie` shows Form1, which has a box of each state, timers, a
/// pop-up menu, message boxes and faults.
[[nodiscard]] Fabrique fauxprogramme();

/// Runs a scenario on the control model of that program; the answers, one a line. `nom` is
/// "essai".
[[nodiscard]] std::string jouerfaux(const std::string& scenario);

}  // namespace banc
