#pragma once

// Numbers: the numeric value of a text, checked 16-bit integers, and the number formats of screen
// and files. The decimal separator is always a point.

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace common {

/// Value of a text of decimal digits alone; nothing for any other text, or past an `int`.
[[nodiscard]] std::optional<int> entierdechiffres(std::string_view texte);

/// The largest 16-bit integer.
inline constexpr std::int16_t plusgrand16 = std::numeric_limits<std::int16_t>::max();

/// Numeric value of a text: the longest number at its start (blanks, an optional sign, digits, at
/// most one point, no exponent), or 0 if there is none. Never infinite.
[[nodiscard]] double valeur(std::string_view texte);

/// The nearest integer, a tie going to the even one. Throws `Faute`, whose report begins with
/// `quoi`, outside -32768..32767.
[[nodiscard]] std::int16_t entier16(double nombre, std::string_view quoi);

/// The same check, for an integer.
[[nodiscard]] std::int16_t entier16(std::int64_t nombre, std::string_view quoi);

/// A duration as "mm:ss", each in at least two digits; an hour or more stays in minutes. A negative
/// one gives "00:00".
[[nodiscard]] std::string CalcDuree(std::int16_t secondes);

/// A number in at most 15 significant digits, without trailing zeros.
[[nodiscard]] std::string textenombre(double nombre);

/// A number with 0 to 59 decimals, and no point for 0. Rounds the exact value of the number to the
/// nearest, a tie away from zero.
[[nodiscard]] std::string decimales(double nombre, int nombrededecimales);

/// A number in at least two digits, not counting the sign of a negative one.
[[nodiscard]] std::string deuxchiffres(std::int64_t nombre);

}  // namespace common
