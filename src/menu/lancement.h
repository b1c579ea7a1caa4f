#pragma once

// What a click on a launch button comes to: the form, the shared variables, the files, and for a
// sample the five stages.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue.h"
#include "partage.h"

namespace menu {

/// `typ` after a launch from a panel.
[[nodiscard]] std::string_view typdupanneau(std::string_view cle);

/// The form on which a row is worked. While the personal list has several solutions every row of
/// its panel goes to `Multi`.
[[nodiscard]] Ecran ecran(std::string_view cle, std::size_t rangee, bool persomulti);

/// What a stage of the launch of a sample does.
struct Etape {
    bool refus = false;              ///< writes that the sample is larger than the base
    std::optional<Ecran> lancement;  ///< launches the list on this form
};
/// The five stages, each run whatever the ones before did: `base` is the size of the list, which
/// has to be strictly greater than the sample size that the stage compares.
[[nodiscard]] std::array<Etape, 5> etapes(std::string_view cle, std::size_t rangee, bool persomulti,
                                          double base, const common::VariablesDialog2& tailles);

}  // namespace menu
