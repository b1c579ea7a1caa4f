#pragma once

// Names and sizes of the word files that come with the program (formats: docs/formats.md).

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace common {

/// Folder of the word lists, beside the program.
inline constexpr std::string_view dossierlistes = "listes";

/// Folder of the pictures, beside the program.
inline constexpr std::string_view dossierimages = "images";

/// `listes\<fichier>`
[[nodiscard]] std::string cheminliste(std::string_view fichier);
/// The name or path of a list without the suffix of a part: "_" and a character before ".txt".
[[nodiscard]] std::string sanspartie(std::string_view fichier);
/// `<util>\rev-<fichier>`. The parts of a list share the revision file of the whole list.
[[nodiscard]] std::string cheminrevision(std::string_view util, std::string_view fichier);
/// The path of a list without its folder.
[[nodiscard]] std::string nomdeliste(std::string_view chemin);
/// The path of a revision file without `<util>\rev-`.
[[nodiscard]] std::string nomderevision(std::string_view chemin, std::string_view util);

/// A list of words, one a line, each of which gets a mark at the correction.
struct ListeReference {
    std::string_view fichier;  ///< name in the folder of the lists
    std::size_t places = 0;    ///< most words that it may hold
};

inline constexpr ListeReference listeods5{"ods5.txt", 5001};
inline constexpr ListeReference listeods6{"ods6.txt", 5001};
inline constexpr ListeReference listeods7{"ods7.txt", 5001};
inline constexpr ListeReference listevbi{"vbi.txt", 2501};
inline constexpr ListeReference listevbt{"vbt4-10.txt", 20001};
inline constexpr ListeReference listeinv{"inv.txt", 1001};

/// In the order in which a correction reads them.
inline constexpr std::array listesreference{listeods5, listeods6, listeods7,
                                            listevbi,  listevbt,  listeinv};

/// Notes on words, beside the program: the word on one line, its note on the next.
inline constexpr std::string_view fichierinfosouris = "infosouris.txt";
/// Most lines of the notes: on the form of racks with one solution, and on that of several.
inline constexpr std::size_t lignesinfosouris = 500001;
inline constexpr std::size_t lignesinfosourismulti = 20001;

/// Racks of a series: on the form of racks with one solution, and on that of several.
inline constexpr int tiragesform1 = 30;
inline constexpr int tiragesmulti = 10;

/// Most rows of a list with one solution a rack.
inline constexpr std::size_t rangeesform1 = 15000;
/// Most rows of a list with several solutions a rack, if samples are to be drawn from it.
inline constexpr std::size_t rangeesmulti = 8001;
/// Most solutions of a rack.
inline constexpr std::size_t solutionsmulti = 5;

}  // namespace common
