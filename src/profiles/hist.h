#pragma once

// `hist.dat`: the finished lists of a user, one record a line, oldest first; nothing is ever
// removed. docs/formats.md describes a record.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "fichier.h"
#include "horloge.h"

namespace profiles {

/// Most records that a reader keeps.
inline constexpr std::size_t maximumhist = 30001;
/// Number of characters of the date and time of a record.
inline constexpr std::size_t largeurdate = 18;

/// `<util>\hist.dat`
[[nodiscard]] std::string cheminhist(std::string_view util);

/// Percentage of right rows, to one decimal, from the rows at the start (not 0) and the wrong ones.
[[nodiscard]] double pourcentage(std::int64_t nbmotsinitial, std::int64_t nbfautes);

/// The name in a record: the file of the list without its folder, or in mode "R" the revision file
/// without `<util>\rev-`.
[[nodiscard]] std::string nomcourt(std::string_view fich, std::string_view toue,
                                   std::string_view util);

/// A record: date, time, percentage, mode (left out if empty: a part of a list), short name.
[[nodiscard]] std::string enregistrement(const common::Instant& quand, double pourc,
                                         std::string_view toue, std::string_view nom);

/// Appends a record to a user's file in one step. Throws `Faute`, whose report quotes the record.
void ajouterhist(common::Disque& disque, std::string_view util, const std::string& record);

/// What `balayer` finds: views of the record.
struct Balayage {
    std::string_view pourcentage;  ///< from position 22 to before the "%"
    std::string_view mode;         ///< one character; empty if the record is cut short
};

/// Finds percentage and mode in a record, as bytes of Windows-1252. Nothing for a record without a
/// "%" from position 21 on, which every reader skips.
[[nodiscard]] std::optional<Balayage> balayer(std::string_view record);

/// Calls `voir` with each record of a user's file, oldest first, as bytes of Windows-1252; `voir`
/// returns whether it keeps the record. Throws `Faute` if the file is missing or more than
/// `maximumhist` records are kept.
void parcourirhist(common::Disque& disque, std::string_view util,
                   const std::function<bool(std::string_view)>& voir);

}  // namespace profiles
