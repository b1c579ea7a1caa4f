#pragma once

#include <cstdint>
#include <string>

namespace common {

/// A date and time of day, in local time.
struct Instant {
    int annee = 2000;
    int mois = 1;  ///< 1 to 12
    int jour = 1;  ///< 1 to 31
    int heure = 0;
    int minute = 0;
    int seconde = 0;

    /// dd/mm/yyyy
    [[nodiscard]] std::string date() const;
    /// HH:MM:SS
    [[nodiscard]] std::string heuredujour() const;
    [[nodiscard]] std::int32_t secondesdepuisminuit() const {
        return heure * 3600 + minute * 60 + seconde;
    }
};

/// The present, by the clock and in the time zone of the system.
[[nodiscard]] Instant instantlocal();

}  // namespace common
