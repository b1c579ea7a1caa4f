#pragma once

// The words of the game with what the lists ask of them, computed once, and the racks they make.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "capitales.h"
#include "lexique.h"

namespace atelier {

/// What a word is first of all, from what a player would rather put down to a mere conjugation.
enum class Rang : std::uint8_t { nonconjugue, infinitif, plurielevident, participe, conjugue };

struct Mot {
    Capitales lettres;
    std::uint32_t tirage = 0;     ///< place in the racks
    std::uint32_t lecture = 0;    ///< place of the first reading
    std::uint32_t lectures = 0;   ///< number of readings
    std::uint32_t frequence = 0;  ///< of its commonest lemma
    std::uint8_t poids = 0;       ///< points of its letters, less one each
    Rang rang = Rang::nonconjugue;
    bool chere = false;           ///< holds one of J K Q W X Y Z
    bool conjugue = false;        ///< nothing but finite forms of verbs
    bool plurielevident = false;  ///< of a noun or adjective: the singular and S or X
    bool entree = false;          ///< heads an article of a dictionary
    bool infinitif = false;
    bool injurieux = false;  ///< nothing but offending lemmas: a word like others, never asked
    bool unique = false;     ///< the only word of its rack

    [[nodiscard]] std::size_t taille() const { return lettres.taille(); }
    [[nodiscard]] std::string_view texte() const { return lettres.texte(); }
    [[nodiscard]] bool finiten(std::string_view fin) const { return texte().ends_with(fin); }
};

/// The words on the same letters.
struct Tirage {
    Capitales lettres;  ///< in alphabetical order
    std::uint32_t premier = 0;
    std::uint32_t mots = 0;
    std::uint32_t nonconjugues = 0;
};

/// The words of a player's own dictionary, sorted.
using Dictionnaire = std::vector<Capitales>;

class Vocabulaire {
  public:
    /// With a dictionary, only its words count; those that the lexicon lacks are taken as nouns, or
    /// as plurals when they end in S or X behind a word.
    Vocabulaire(Lexique lexique, const std::optional<Dictionnaire>& dictionnaire);

    /// By length, then by alphabet.
    [[nodiscard]] std::span<const Mot> mots() const { return mots_; }
    [[nodiscard]] std::span<const Mot> mots(std::size_t min, std::size_t max) const;
    /// By length, then by letters.
    [[nodiscard]] std::span<const Tirage> tirages() const { return tirages_; }
    [[nodiscard]] std::span<const Tirage> tirages(std::size_t min, std::size_t max) const;

    /// The words of a rack, by alphabet: places in `mots()`.
    [[nodiscard]] std::span<const std::uint32_t> places(const Tirage& tirage) const {
        return std::span(places_).subspan(tirage.premier, tirage.mots);
    }
    [[nodiscard]] const Tirage& tirage(const Mot& mot) const { return tirages_[mot.tirage]; }
    [[nodiscard]] const Mot& mot(std::uint32_t place) const { return mots_[place]; }

    [[nodiscard]] std::span<const Lecture> lectures(const Mot& mot) const {
        return std::span(lectures_).subspan(mot.lecture, mot.lectures);
    }
    [[nodiscard]] const Lemme& lemme(const Lecture& lecture) const {
        return lemmes_[lecture.lemme];
    }
    [[nodiscard]] std::span<const Lemme> lemmes() const { return lemmes_; }

    /// The word of these capitals, or nothing.
    [[nodiscard]] const Mot* chercher(std::string_view capitales) const;
    [[nodiscard]] bool existe(std::string_view capitales) const {
        return chercher(capitales) != nullptr;
    }

    /// One of the readings, or every reading, of a word is such.
    template <class Predicat>
    [[nodiscard]] bool une(const Mot& mot, Predicat predicat) const {
        const auto l = lectures(mot);
        return std::any_of(l.begin(), l.end(), predicat);
    }
    template <class Predicat>
    [[nodiscard]] bool toutes(const Mot& mot, Predicat predicat) const {
        const auto l = lectures(mot);
        return std::all_of(l.begin(), l.end(), predicat);
    }

  private:
    void restreindre(std::vector<Forme>& formes, const Dictionnaire& dictionnaire);
    void ranger(std::vector<Forme>& formes);
    void indexer();
    void qualifier(Mot& mot) const;
    void former();

    std::vector<Mot> mots_;
    std::vector<Lecture> lectures_;
    std::vector<Lemme> lemmes_;
    std::vector<Tirage> tirages_;
    std::vector<std::uint32_t> places_;
    std::vector<std::uint32_t> index_;  // open addressing; 0 is free, else place + 1
};

/// A letter of this many points or more is dear.
constexpr int pointschere = 8;

/// Points of a letter on the French tiles.
[[nodiscard]] int points(char lettre);

}  // namespace atelier
