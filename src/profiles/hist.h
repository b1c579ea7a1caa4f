#pragma once

// `hist.dat`: one user's finished runs, one record a line, oldest first, never trimmed. The layout
// of a record is described in docs/formats.md.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "fichier.h"
#include "horloge.h"

namespace profiles {

/// Most items of the file that a reader keeps.
inline constexpr std::size_t maximumhist = 30001;
/// Characters of the date and time of a record.
inline constexpr std::size_t largeurdate = 18;

/// `<util>\hist.dat`
[[nodiscard]] std::string cheminhist(std::string_view util);

/// Percent of a list, one decimal at most, from its rows at the start (not 0) and the wrong ones.
[[nodiscard]] double pourcentage(std::int64_t nbmotsinitial, std::int64_t nbfautes);

/// The name that a record bears: the list's file without its folder, or for the mode "R" the
/// revision file without `<util>\rev-`.
[[nodiscard]] std::string nomcourt(std::string_view fich, std::string_view toue,
                                   std::string_view util);

/// A record: date, time, percent, the mode unless it is empty (a part of a list), short name.
[[nodiscard]] std::string enregistrement(const common::Instant& quand, double pourc,
                                         std::string_view toue, std::string_view nom);

/// Appends a record to a user's file in one write. Throws `Faute`, whose report says the record.
void ajouterhist(common::Disque& disque, std::string_view util, const std::string& record);

/// What the scan of a record finds, inside the record.
struct Balayage {
    std::string_view pourcentage;  ///< from position 22 up to the "%", left out
    std::string_view mode;         ///< one character, or none where the record is cut
};

/// Scans a record, as bytes of Windows-1252. Nothing for one without a "%" from position 21 on,
/// which no reader takes up.
[[nodiscard]] std::optional<Balayage> balayer(std::string_view record);

/// Gives every item of a user's file to `voir`, oldest first, as bytes of Windows-1252, in one
/// pass; `voir` says whether it keeps the item. Throws `Faute` if the file is missing or more than
/// `maximumhist` items are kept.
void parcourirhist(common::Disque& disque, std::string_view util,
                   const std::function<bool(std::string_view)>& voir);

}  // namespace profiles
