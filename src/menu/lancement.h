#pragma once

// Which form a launch opens, and the stages through which the launch of a sample goes.

#include <array>
#include <cstddef>
#include <optional>

#include "partage.h"
#include "tableau.h"

namespace menu {

/// The form for the list of a row. While the racks of the personal list have several solutions, all
/// lists of its panel go to `Multi`.
[[nodiscard]] Ecran ecran(const Panneau& panneau, std::size_t rangee, bool persomulti);

/// What one stage of the launch of a sample does.
struct Etape {
    bool refus = false;              ///< shows that the sample is larger than the list
    std::optional<Ecran> lancement;  ///< launches the list on this form; none: does not launch it
};
using Etapes = std::array<Etape, nbetapes>;
/// The outcome of each stage. All stages run, whatever the earlier ones did. A stage compares
/// `base`, the size of the list, with one of the sample sizes `tailles`: a list that is not larger
/// than the sample is refused.
[[nodiscard]] Etapes etapes(const Panneau& panneau, std::size_t rangee, bool persomulti,
                            double base, const common::VariablesDialog2& tailles);

}  // namespace menu
