#pragma once

// A player's file of words, examined before lists are made from it: what was read, what was
// refused and why, and how it differs from the lexicon.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <variant>
#include <vector>

#include "fichier.h"
#include "glossaire.h"
#include "vocabulaire.h"

namespace carnet {

/// Largest file that is read as words, in bytes: about six times a dictionary of the game.
inline constexpr std::size_t octetsmax = std::size_t{32} << 20U;
/// Refused lines that are listed one by one; the others are only counted.
inline constexpr std::size_t refusmontres = 1000;

enum class Encodage { ascii, utf8, windows1252, meles };

struct Lignerefusee {
    std::size_t numero = 0;  ///< from 1
    std::string extrait;     ///< its beginning, UTF-8
    std::string ennui;       ///< French
};

struct Motslus {
    atelier::Dictionnaire mots;  ///< sorted, each once
    Encodage encodage = Encodage::ascii;
    std::array<std::size_t, atelier::longueurmax + 1> parlongueur{};
    std::size_t doubles = 0;             ///< lines that repeat a word
    std::size_t refusees = 0;            ///< lines
    std::vector<Lignerefusee> montrees;  ///< the first of them
};

/// Reads bytes: one word a line, any line end, any case, accents or none; UTF-8 or Windows-1252,
/// decided line by line if the file mixes them. A line that is not a word of 2 to 15 letters is
/// refused, and the rest taken. Otherwise says in French why: the bytes are not text, or hold no
/// word.
[[nodiscard]] std::variant<Motslus, std::string> liremots(std::string_view octets);

/// The same for a file, which what is said names.
[[nodiscard]] std::variant<Motslus, std::string> lirefichierdemots(common::Disque& disque,
                                                                   std::string_view chemin);

/// Name of an encoding, in French.
[[nodiscard]] std::string_view nom(Encodage encodage);

struct Ecart {
    std::size_t inconnus = 0;  ///< words that the lexicon lacks
    std::size_t communs = 0;
    std::size_t manquants = 0;                  ///< words of the lexicon that the file lacks
    std::vector<std::string> exemplesinconnus;  ///< the first ones by length and alphabet
    std::vector<std::string> exemplesmanquants;
};
[[nodiscard]] Ecart comparer(const atelier::Dictionnaire& mots,
                             const recherche::Glossaire& lexique);

}  // namespace carnet
