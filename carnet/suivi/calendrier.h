#pragma once

// Days as numbers, and as the texts that players and scripts read.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace carnet {

/// Days since 1 January 1970, of the local calendar.
using Jour = std::int32_t;

/// The day that the machine's clock shows.
[[nodiscard]] Jour aujourdhui();
/// Day of a date yyyy-mm-dd of the calendar; nothing for any other text.
[[nodiscard]] std::optional<Jour> lirejour(std::string_view texte);
/// yyyy-mm-dd, the year in four digits or more.
[[nodiscard]] std::string textejour(Jour jour);
/// dd/mm/yyyy, as players write it.
[[nodiscard]] std::string datefrancaise(Jour jour);
/// The year of a day.
[[nodiscard]] int annee(Jour jour);
/// The month of a day, 1 to 12.
[[nodiscard]] int mois(Jour jour);
/// Day of the week, 0 for a Monday.
[[nodiscard]] int jourdesemaine(Jour jour);

}  // namespace carnet
