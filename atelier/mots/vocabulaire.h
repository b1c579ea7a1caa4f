#pragma once

// The words of the game and their racks, with the properties by which lists choose them.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "capitales.h"
#include "lexique.h"

namespace atelier {

/// The best that can be said of a word, best first: players value a mere conjugation least.
enum class Rang : std::uint8_t { nonconjugue, infinitif, plurielevident, participe, conjugue };

struct Mot {
    Capitales lettres;
    std::uint32_t tirage = 0;     ///< index in `tirages()`
    std::uint32_t lecture = 0;    ///< index of its first reading
    std::uint32_t lectures = 0;   ///< number of readings
    std::uint32_t frequence = 0;  ///< that of its commonest lemma
    std::uint8_t poids = 0;       ///< sum of its letters' points less one each
    Rang rang = Rang::nonconjugue;
    bool chere = false;           ///< has a high-value letter: J K Q W X Y Z
    bool conjugue = false;        ///< all readings are finite forms of verbs
    bool plurielevident = false;  ///< of a noun or adjective: its singular with S or X
    bool entree = false;          ///< a dictionary lists it by itself
    bool infinitif = false;
    bool injurieux = false;  ///< all lemmas are offensive: valid, but no list asks for it
    bool unique = false;     ///< the only word on its rack

    [[nodiscard]] std::size_t taille() const { return lettres.taille(); }
    [[nodiscard]] std::string_view texte() const { return lettres.texte(); }
    [[nodiscard]] bool finiten(std::string_view fin) const { return texte().ends_with(fin); }
};

/// The words made of the same letters.
struct Tirage {
    Capitales lettres;  ///< in alphabetical order
    std::uint32_t premier = 0;
    std::uint32_t mots = 0;
    std::uint32_t nonconjugues = 0;
};

/// A set of words, sorted: a player's own dictionary.
using Dictionnaire = std::vector<Capitales>;

class Vocabulaire {
  public:
    /// With a dictionary, only its words are kept. Those that the lexicon lacks count as nouns, or
    /// as plurals if they are another word with S or X.
    Vocabulaire(Lexique lexique, const std::optional<Dictionnaire>& dictionnaire);

    /// All words, by length, then alphabet.
    [[nodiscard]] std::span<const Mot> mots() const { return mots_; }
    [[nodiscard]] std::span<const Mot> mots(std::size_t min, std::size_t max) const;
    /// All racks, by length, then letters.
    [[nodiscard]] std::span<const Tirage> tirages() const { return tirages_; }
    [[nodiscard]] std::span<const Tirage> tirages(std::size_t min, std::size_t max) const;

    /// The words of a rack, in alphabetical order, as indices in `mots()`.
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

    /// The word with these capitals; null if there is none.
    [[nodiscard]] const Mot* chercher(std::string_view capitales) const;
    [[nodiscard]] bool existe(std::string_view capitales) const {
        return chercher(capitales) != nullptr;
    }

    /// `predicat` is true of one reading of a word (`une`), or of all (`toutes`).
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

/// A letter with this many points or more is a high-value letter.
constexpr int pointschere = 8;

/// The points of a letter on French tiles.
[[nodiscard]] int points(char lettre);

}  // namespace atelier
