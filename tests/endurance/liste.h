#pragma once

// Rows of lists, as the witness of a session sees them: worked out anew, without the program's own
// readers.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace endurance {

/// A row of a list, UTF-8.
struct Rangee {
    std::string tirage;
    std::string suite;  ///< what stands behind the first ";"

    [[nodiscard]] std::string ligne() const { return tirage + ";" + suite; }
    /// What a rack with several solutions is judged on: those before the first empty one.
    [[nodiscard]] std::vector<std::string> solutions() const;
    /// Solutions written in the row, empty ones included, but not one behind a ";" at its end.
    [[nodiscard]] std::size_t nombre() const;
};

/// The letters of a rack without its mark-up.
[[nodiscard]] std::string net(std::string_view tirage);
/// Each letter of the first text stands as often in the second.
[[nodiscard]] bool tirede(std::string_view lettres, std::string_view tirage);

/// The lines of a file, as texts; none for a file that is not there.
[[nodiscard]] std::vector<std::string> leslignes(const std::filesystem::path& fichier);
/// The rows of a list file.
[[nodiscard]] std::vector<Rangee> lesrangees(const std::vector<std::string>& lignes);
/// Solutions per rack of a list for `Multi`.
[[nodiscard]] std::size_t nbsolutions(const std::vector<Rangee>& rangees);
/// No two rows have the same letters.
[[nodiscard]] bool distinctes(const std::vector<Rangee>& rangees);

/// The forms in which a row may stand in a revision file.
[[nodiscard]] std::vector<std::string> formes(const Rangee& rangee, bool multi,
                                              std::size_t nbsolutions);

}  // namespace endurance
