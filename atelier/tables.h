#pragma once

// Racks with more anagrams than a series can ask: tables to read, as a text and as a picture.

#include <array>
#include <cstddef>
#include <string_view>

#include "rangees.h"

namespace atelier {

/// A rack with this many words that are not conjugated, or more, is in the tables.
inline constexpr std::size_t anagrammesmin = 6;

struct Table {
    std::size_t taille = 0;  ///< letters of its racks
    std::string_view texte;  ///< file in the folder of the lists
    std::string_view image;  ///< file in the folder of the pictures
};

inline constexpr std::array tables{
    Table{7, "7l_6anagrammes.txt", "7l_6anagrammes.bmp"},
    Table{8, "8l_6anagrammes.txt", "8l_6anagrammes.bmp"},
};

/// The rows of a table: a rack and its words.
[[nodiscard]] Contenu tirages6(const Vocabulaire& v, std::size_t taille);

}  // namespace atelier
