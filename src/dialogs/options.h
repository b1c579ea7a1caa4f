#pragma once

// The rules of the options: what a change of a box says, when OK accepts, and the texts that are
// computed from the boxes. The number in a box is the numeric value of its text
// (`common::valeur`).

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "listes.h"
#include "partage.h"

namespace dialogs::options {

/// The texts of the four boxes.
struct Saisie {
    std::string vert;   ///< `Text1(0)`, percent
    std::string rouge;  ///< `Text1(1)`, percent
    std::string temps;  ///< `Text2`, seconds a word
    std::string base;   ///< `Text3`, series in a sample
};

enum class Champ : std::uint8_t { Vert, Rouge, Temps, Base };

/// What OK accepts of a box, both bounds included, in the unit of the box.
struct Bornes {
    int bas;
    int haut;
};
inline constexpr Bornes bornesvert{10, 100};
inline constexpr Bornes bornesrouge{5, 100};
inline constexpr Bornes bornestemps{2, 15};
inline constexpr Bornes bornesbase{1, 30};

/// The message that a change of a box leads to; nothing: the message area keeps what it shows.
[[nodiscard]] std::optional<std::string> message(Champ champ, const Saisie& saisie);

/// Whether what is computed from the box follows its value at once. A value passes here that is
/// less than one beyond a bound, such as 1.5 or 15.5 seconds, though OK refuses it. Nothing is
/// computed from a threshold.
[[nodiscard]] bool repercute(Champ champ, const Saisie& saisie);

/// The outcome of OK.
struct Verdict {
    bool accepte = true;
    std::optional<std::string_view> message;  ///< nothing: the message area keeps what it shows
};
[[nodiscard]] Verdict valider(const Saisie& saisie);

/// The time of a series of `common::tiragesform1` words, as mm:ss. Throws `Faute` if it has more
/// seconds than 16 bits hold.
[[nodiscard]] std::string tempsdeserie(double secondesparmot);

/// Sample sizes: one for each number of solutions a rack may have.
constexpr std::size_t nbtailles = common::solutionsmulti;
/// The sizes of a sample of `nbser` series as shown, from one solution a rack up. Sets those of
/// `variables` too. Throws `Faute` if one is over 16 bits.
[[nodiscard]] std::array<std::string, nbtailles> tailles(common::VariablesDialog2& variables,
                                                         std::int16_t nbser);

}  // namespace dialogs::options
