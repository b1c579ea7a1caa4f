#pragma once

// A small program with the form names of the real one, to test the bench itself on.

#include <string>
#include <string_view>

#include "programme.h"
#include "seance.h"

namespace banc {

/// Form2 logs in and shows Form3; `serie` shows Form1, which has boxes in each state, timers, a
/// pop-up menu, message boxes and faults.
[[nodiscard]] Fabrique fauxprogramme();

/// Runs a scenario, named "essai", on the control model of that program, and returns the answers,
/// one a line.
[[nodiscard]] std::string jouerfaux(const std::string& scenario);

}  // namespace banc
