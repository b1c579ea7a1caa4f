#pragma once

// The reference lists and the notes, looked up at a correction: each file is
// walked once, for the few words of the series; no table of it is built.
// Formats: docs/formats.md.

#include <bitset>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"

namespace series {

/// A set of words to look for, fast to ask for each word of a large file.
class Recherche {
  public:
    /// `mots` in UTF-8; an empty word, or one that the files cannot hold, is never found.
    explicit Recherche(std::span<const std::string> mots);
    /// Ranks in `mots` of the words equal to `octets` (Windows-1252), in order.
    [[nodiscard]] std::span<const std::size_t> rangs(std::string_view octets) const {
        if (octets.empty() || !peutetre(octets))
            return {};
        return trouver(octets);
    }

  private:
    static constexpr std::size_t cases = 4096;

    /// A number under `cases`, equal for equal words.
    [[nodiscard]] static std::size_t empreinte(std::string_view octets) {
        const auto octet = [&](std::size_t place) {
            return static_cast<std::size_t>(static_cast<unsigned char>(octets[place]));
        };
        const auto n = octets.size();
        return (octet(0) + octet(n / 2) * 31 + octet(n - 1) * 97 + n * 389) % cases;
    }
    [[nodiscard]] bool peutetre(std::string_view octets) const {
        return filtre_[empreinte(octets)];
    }
    [[nodiscard]] std::span<const std::size_t> trouver(std::string_view octets) const;

    std::vector<std::string> octets_;  ///< the words, sorted
    std::vector<std::size_t> rangs_;   ///< of each of them
    std::bitset<cases> filtre_;        ///< their prints
};

/// For each word whether it stands in the list, read by items up to the first empty one. Throws
/// `Faute` if the file cannot be read or holds more than `limite` items.
[[nodiscard]] std::vector<bool> chercherliste(common::Disque& disque, std::string_view chemin,
                                              std::size_t limite, const Recherche& recherche,
                                              std::size_t nombredemots);

/// A note found: the rank of the word looked for, and the text of the note (UTF-8).
struct Note {
    std::size_t mot = 0;
    std::string texte;
    friend bool operator==(const Note&, const Note&) = default;
};

/// Which lines of the notes are compared with the words.
enum class Lignesdemots {
    Paires,  ///< every second line from the first: words and notes alternate
    Toutes,  ///< word lines and note lines alike
};

/// The notes of the words, in the order of the file; the search ends at the first empty line that
/// is compared. A word line without a next line is no hit. Throws `Faute` if the file cannot be
/// read or holds more than `limite` lines.
[[nodiscard]] std::vector<Note> cherchernotes(common::Disque& disque, std::string_view chemin,
                                              std::size_t limite, Lignesdemots lignes,
                                              const Recherche& recherche);

}  // namespace series
