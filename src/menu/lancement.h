#pragma once

// What a click on a launch button comes to: the form, and for a sample the stages.

#include <array>
#include <cstddef>
#include <optional>

#include "partage.h"
#include "tableau.h"

namespace menu {

/// The form on which a row is worked. While the personal list has several solutions every row of
/// its panel goes to `Multi`.
[[nodiscard]] Ecran ecran(const Panneau& panneau, std::size_t rangee, bool persomulti);

/// What a stage of the launch of a sample does.
struct Etape {
    bool refus = false;              ///< writes that the sample is larger than the base
    std::optional<Ecran> lancement;  ///< launches the list on this form
};
using Etapes = std::array<Etape, nbetapes>;
/// The stages, each run whatever the ones before did: `base` is the size of the list, which has to
/// be strictly greater than the sample size that the stage compares.
[[nodiscard]] Etapes etapes(const Panneau& panneau, std::size_t rangee, bool persomulti,
                            double base, const common::VariablesDialog2& tailles);

}  // namespace menu
