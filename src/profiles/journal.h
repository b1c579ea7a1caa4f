#pragma once

// `journal.txt`: every rack that a user was judged on, one a line, oldest first. The player may
// delete it at any moment. Format: docs/formats.md.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"
#include "horloge.h"

namespace profiles {

/// Most bytes of a line that a reader takes: a row of a list, and as much that was typed.
inline constexpr std::size_t limitelignejournal = 2 * common::limiterangee;
/// Most bytes that wait for a disk that takes none. Past it the oldest lines are given up.
inline constexpr std::size_t limiteattente = 16UL * 1024 * 1024;

/// `<util>\journal.txt`
[[nodiscard]] std::string cheminjournal(std::string_view util);

/// A rack at the correction of its series.
struct Tiragejuge {
    std::string tirage;                  ///< as the list has it
    std::vector<std::string> solutions;  ///< of its row
    std::vector<std::string> saisis;     ///< what its boxes held, one text a box

    /// Every solution was typed.
    [[nodiscard]] bool trouve() const;
};

/// The series that a correction closes.
struct Serie {
    common::Instant quand;
    std::string_view liste;  ///< the short name of a record of the history
    std::string_view mode;   ///< one of `common::modes`
};

/// The line of a rack, as the file has it, its line end included. What was typed is left out if
/// the file could not hold it; empty if the rest could not be held either.
[[nodiscard]] std::string lignejournal(const Serie& serie, const Tiragejuge& juge);

/// Appends the lines of a correction, in one write, behind those that still wait in `attente`. What
/// the disk does not take waits there. Never a fault.
void journaliser(common::Disque& disque, std::string_view util, const Serie& serie,
                 std::span<const Tiragejuge> juges, std::string& attente);

/// A line that was read, as bytes of Windows-1252 inside it.
struct Lignejournal {
    std::int32_t jour = 0;         ///< days since 1 January 1970
    std::int32_t seconde = 0;      ///< of the day
    std::string_view liste;        ///< file of the list
    std::string_view mode;         ///< one of `common::modes`
    std::string_view tirage;       ///< never empty
    std::string_view solutions;    ///< joined by commas, never empty
    std::string_view identifiant;  ///< rack, ";" and solutions: what a rack is known by
    bool trouve = false;
    std::string_view saisi;  ///< what the boxes held, joined by commas
};

/// Days from 1 January 1970 to a date; nothing if the calendar lacks it, or for a year under 1.
[[nodiscard]] std::optional<std::int32_t> jourdu(int annee, int mois, int jour);

/// Reads a line without its line end. Nothing for one that is none: other than seven fields, no
/// such date or time, a found field other than 0 or 1, no rack, no solution.
[[nodiscard]] std::optional<Lignejournal> lirelignejournal(std::string_view ligne);

/// What a reading of a journal met.
struct Lecturejournal {
    std::size_t lues = 0;
    std::size_t sautees = 0;  ///< lines that could not be read
};

/// Gives every line that can be read to `voir`, in order, in one pass and the memory of one line.
/// A file that is missing has no line. An error if it cannot be read.
[[nodiscard]] std::error_code parcourirjournal(common::Disque& disque, std::string_view chemin,
                                               const std::function<void(const Lignejournal&)>& voir,
                                               Lecturejournal& lecture);

}  // namespace profiles
