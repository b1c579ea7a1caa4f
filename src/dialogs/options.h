#pragma once

// The rules of the options: what a change of a box says, when OK accepts, and the texts that are
// computed from the boxes. Numbers are read from the boxes as the numeric value of their text.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "partage.h"

namespace dialogs::options {

/// The four boxes, as their texts stand.
struct Saisie {
    std::string vert;   ///< `Text1(0)`, percent
    std::string rouge;  ///< `Text1(1)`, percent
    std::string temps;  ///< `Text2`, seconds a word
    std::string base;   ///< `Text3`, series in a sample
};

enum class Champ : std::uint8_t { Vert, Rouge, Temps, Base };

/// What the message area takes when a box has changed; nothing: it keeps what it shows.
[[nodiscard]] std::optional<std::string_view> message(Champ champ, const Saisie& saisie);

/// The value of the box is shown at once in what is computed from it. Its bounds are one beyond
/// those of the messages, so that 1.5 or 15.5 passes here until OK refuses it. A threshold is shown
/// nowhere else.
[[nodiscard]] bool repercute(Champ champ, const Saisie& saisie);

/// What OK makes of the boxes.
struct Verdict {
    bool accepte = true;
    std::optional<std::string_view> message;  ///< for the message area; nothing: it stays
};
[[nodiscard]] Verdict valider(const Saisie& saisie);

/// The time of a series of 30 words, as mm:ss. Throws `Faute` past 16 bits.
[[nodiscard]] std::string tempsdeserie(double secondesparmot);

constexpr std::size_t nbtailles = 5;
/// The sizes of a sample as shown, from one solution a rack to five. Sets the sample sizes of
/// `variables` for `nbser` series. Throws `Faute` past 16 bits.
[[nodiscard]] std::array<std::string, nbtailles> tailles(common::VariablesDialog2& variables,
                                                         std::int16_t nbser);

}  // namespace dialogs::options
