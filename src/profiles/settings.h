#pragma once

// `settings.dat`: the options of a user, seven items in a fixed order, one a line. docs/formats.md
// describes the format.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"
#include "partage.h"

namespace profiles {

/// The content of `settings.dat`, with the defaults that a new user starts with.
struct Reglages {
    std::int16_t seuilch = 95;
    std::int16_t seuilcb = 80;
    std::int16_t tempsparmot = 8;
    std::int16_t nbechantillon = 5;
    std::int16_t son = 1;
    /// Nothing if the file ends before it.
    std::optional<std::string> couleur{common::couleurpardefaut};
    std::int16_t saisieassistee = 1;
};

/// `<util>\settings.dat`
[[nodiscard]] std::string cheminsettings(std::string_view util);

/// The options in the bytes of the file `chemin`. A text that begins with no number counts as 0;
/// without a seventh item, assisted entry is on. Throws `Faute` for fewer than five items and for a
/// value that does not fit in 16 bits.
[[nodiscard]] Reglages reglages(std::string_view octets, std::string_view chemin);

/// Only the sixth item, the name of the colour; nothing if there is none, or if the file is far too
/// long for seven lines (over `limiteligne` bytes).
[[nodiscard]] std::optional<std::string> couleurreglee(std::string_view octets);

/// The lines of the file, UTF-8.
[[nodiscard]] std::vector<std::string> lignessettings(const Reglages& reglages);

/// Reads a user's file. Throws `Faute`.
[[nodiscard]] Reglages liresettings(common::Disque& disque, std::string_view util);

/// Sets the variables of the program in the order of the file: the first five; then calls `couleur`
/// with the name of the colour, if there is one; then the assisted entry.
void appliquer(const Reglages& reglages, common::VariablesDialog2& dialog2,
               const std::function<void(const std::string&)>& couleur);

/// Rewrites a user's file from the variables and the name of a colour. Throws `Faute`.
void ecriresettings(common::Disque& disque, std::string_view util,
                    const common::VariablesDialog2& dialog2, std::string_view couleur);

}  // namespace profiles
