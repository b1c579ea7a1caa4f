#pragma once

// Looking words up in the reference lists and the notes, at a correction. Each file is read once,
// for the few words of the series; no table of it is built. docs/formats.md describes the files.

#include <bitset>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"

namespace series {

/// What is being done, in the reports of a correction.
inline constexpr std::string_view actioncorrection = "Correction de la série";

/// A set of words to look for, fast to ask for each word of a large file.
class Recherche {
  public:
    /// `mots` in UTF-8; an empty word, or one that the files cannot hold, is never found.
    explicit Recherche(std::span<const std::string> mots);
    /// The indices in `mots` of the words equal to `octets` (Windows-1252), in increasing order.
    [[nodiscard]] std::span<const std::size_t> rangs(std::string_view octets) const {
        if (octets.empty() || !peutetre(octets))
            return {};
        return trouver(octets);
    }

  private:
    static constexpr std::size_t cases = 4096;

    /// A hash below `cases`.
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
    std::vector<std::size_t> rangs_;   ///< the index of each of them in `mots`
    std::bitset<cases> filtre_;        ///< their hashes
};

/// Tells for each word whether the list has it. The list is read by items, up to the first empty
/// one. `nombredemots` is the number of words in `recherche`. Throws `Faute` if the file cannot be
/// read or has more than `limite` items.
[[nodiscard]] std::vector<bool> chercherliste(common::Disque& disque, std::string_view chemin,
                                              std::size_t limite, const Recherche& recherche,
                                              std::size_t nombredemots);

/// A note that was found.
struct Note {
    std::size_t mot = 0;  ///< index of the word that was looked for
    std::string texte;    ///< UTF-8
    friend bool operator==(const Note&, const Note&) = default;
};

/// Which lines of the notes are compared with the words.
enum class Lignesdemots {
    Paires,  ///< lines 1, 3, 5...: a word on one line, its note on the next
    Toutes,  ///< every line, those of the notes too
};

/// The notes of the words, in the order of the file. The first empty line that is compared ends the
/// search; a word on the last line has no note. Throws `Faute` if the file cannot be read or has
/// more than `limite` lines.
[[nodiscard]] std::vector<Note> cherchernotes(common::Disque& disque, std::string_view chemin,
                                              std::size_t limite, Lignesdemots lignes,
                                              const Recherche& recherche);

}  // namespace series
