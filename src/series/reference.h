#pragma once

// The reference lists and the notes, looked up at a correction: each file is
// walked once, for the few words of the series; no table of it is built.
// Formats: docs/formats.md.

#include <cstddef>
#include <cstdint>
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
    struct Cle {
        std::string octets;
        std::vector<std::size_t> rangs;
    };
    static constexpr std::size_t longueurs = 32;

    [[nodiscard]] bool peutetre(std::string_view octets) const {
        const auto n = octets.size() < longueurs ? octets.size() : longueurs - 1;
        const auto code = static_cast<unsigned char>(octets[0]) ^
                          (static_cast<unsigned char>(octets[octets.size() / 2]) * 5U);
        return ((filtre_[n] >> (code & 63U)) & 1U) != 0;
    }
    [[nodiscard]] std::span<const std::size_t> trouver(std::string_view octets) const;

    std::vector<Cle> cles_;  ///< sorted by bytes
    std::vector<std::uint64_t> filtre_ = std::vector<std::uint64_t>(longueurs);
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

/// Path of the notes, beside the program.
inline constexpr std::string_view fichierdesnotes = "infosouris.txt";

}  // namespace series
