#pragma once

// Racks with more anagrams than a series can ask for: tables to read, as text and as a picture.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "contenu.h"

namespace atelier {

/// Fewest words, conjugated ones aside, of a rack in the tables.
inline constexpr std::size_t anagrammesmin = 6;

struct Table {
    std::size_t taille = 0;  ///< number of letters of its racks
    std::string_view texte;  ///< file in the folder of the lists
    std::string_view image;  ///< file in the folder of the pictures, without its extension
};

/// Each picture comes for screens of normal and of double density.
inline constexpr std::array variantes{1, 2};

inline constexpr std::array tables{
    Table{7, "7l_6anagrammes.txt", "7l_6anagrammes"},
    Table{8, "8l_6anagrammes.txt", "8l_6anagrammes"},
};

/// The file of a picture for a density; "@2x" precedes the extension of the finer one.
[[nodiscard]] std::string fichierimage(const Table& table, int finesse);

/// The title of a picture.
[[nodiscard]] std::string titre(const Table& table);

/// All wanted words of a rack of 8 letters are a word of 7 letters, not conjugated, with S behind
/// it. Such a rack is left out: the player learns it with the racks of 7.
[[nodiscard]] bool pluriels(const Vocabulaire& v, const Selection& souhaites, std::size_t taille);

/// The rows of a table: a rack and its words.
[[nodiscard]] Contenu tirages6(const Vocabulaire& v, std::size_t taille);

}  // namespace atelier
