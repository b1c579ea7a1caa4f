#pragma once

#include <cstdint>
#include <string_view>

namespace series {

/// The kind of a list: what its answers are made of, and which notes belong to them.
enum class Nature : std::uint8_t {
    Simple,               ///< an answer has the letters of its rack
    Rallongesavant,       ///< extensions: an answer is the letters to add in front of its rack
    Rallongesarriere,     ///< extensions: an answer is the letters to add behind its rack
    Rallongesautres,      ///< extensions on a side that the title does not tell: they have no notes
    Benjamins,            ///< an answer is letters that its rack does not have; there are no notes
    Benjaminsenrevision,  ///< the same list in a revision run, where assisted entry stays on
};

/// The kind of a list. `typ` is that of the panel that launches it, `nombase` the title of the
/// list. On the panel of the extensions the beginning of the title tells their side; elsewhere the
/// title "Benjamins uniques" tells that list. No other code compares titles.
[[nodiscard]] Nature naturedelaliste(std::string_view typ, std::string_view nombase);

[[nodiscard]] constexpr bool rallonges(Nature nature) {
    return nature == Nature::Rallongesavant || nature == Nature::Rallongesarriere ||
           nature == Nature::Rallongesautres;
}
/// Whether assisted entry may restrict an answer to the letters of its rack.
[[nodiscard]] constexpr bool lettresdutirage(Nature nature) {
    return nature == Nature::Simple || nature == Nature::Benjaminsenrevision;
}
/// Whether the words of the list are looked up in the notes, on the form that asks.
[[nodiscard]] constexpr bool avecnotes(Nature nature) {
    return nature != Nature::Benjamins && nature != Nature::Benjaminsenrevision;
}

}  // namespace series
