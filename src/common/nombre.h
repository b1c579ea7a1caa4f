#pragma once

// Numbers of the rules: the numeric value of a text, checked 16-bit integers,
// and the few number formats that screen and files use. The decimal separator
// is the point everywhere.

#include <cstdint>
#include <string>
#include <string_view>

namespace common {

/// Numeric value of a text: the longest number that it begins with (blanks, an optional sign,
/// digits, at most one point, no exponent); 0 if it begins with none. Never infinite.
[[nodiscard]] double valeur(std::string_view texte);

/// Nearest integer, a tie going to the even one, as a 16-bit integer.
/// Throws `Faute` beginning with `quoi` outside -32768..32767.
[[nodiscard]] std::int16_t entier16(double nombre, std::string_view quoi);

/// The same check for an integer that is already whole.
[[nodiscard]] std::int16_t entier16(std::int64_t nombre, std::string_view quoi);

/// A count of seconds as minutes, ":", seconds, each in at least two digits, minutes not capped.
/// A negative count gives "00:00".
[[nodiscard]] std::string CalcDuree(std::int16_t secondes);

/// A number as text in at most 15 significant digits, without trailing zeros.
[[nodiscard]] std::string textenombre(double nombre);

/// A number with a fixed number of decimals ("#0.000" is 3, "#0.0" is 1; 0 to 59, none without the
/// point), to the nearest on the exact decimal value of the number, a tie away from zero.
[[nodiscard]] std::string decimales(double nombre, int nombrededecimales);

/// A number in at least two digits, behind its sign if it is negative.
[[nodiscard]] std::string deuxchiffres(std::int64_t nombre);

}  // namespace common
