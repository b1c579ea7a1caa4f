#pragma once

#include <cstdint>
#include <string_view>

namespace series {

/// Kind of a list: what its answers are made of, and which notes go with them.
enum class Nature : std::uint8_t {
    Simple,            ///< an answer has the letters of its rack
    Rallongesavant,    ///< extensions: an answer is the letters that come in front of its rack
    Rallongesarriere,  ///< the same behind the rack
    Rallongesautres,   ///< extensions whose title doesn't tell the side: no note can be looked up
    Benjamins,         ///< an answer has other letters than its rack, and there are no notes
    Benjaminsenrevision,  ///< the same in a revision run, where assisted entry stays on
};

/// The kind of a list, from the panel that launches it (`typ`) and its title (`nombase`). A list of
/// the panel of the extensions is one, and the beginning of its title tells the side; elsewhere the
/// whole title makes the "Benjamins uniques". The one place where a title is compared.
[[nodiscard]] Nature naturedelaliste(std::string_view typ, std::string_view nombase);

[[nodiscard]] constexpr bool rallonges(Nature nature) {
    return nature == Nature::Rallongesavant || nature == Nature::Rallongesarriere ||
           nature == Nature::Rallongesautres;
}
/// Assisted entry may hold an answer to the letters of its rack.
[[nodiscard]] constexpr bool lettresdutirage(Nature nature) {
    return nature == Nature::Simple || nature == Nature::Benjaminsenrevision;
}
/// The words of the list are looked up in the notes, on the form that makes the exception.
[[nodiscard]] constexpr bool avecnotes(Nature nature) {
    return nature != Nature::Benjamins && nature != Nature::Benjaminsenrevision;
}

}  // namespace series
