#pragma once

// What the lexicon says of a form of a word: tense, persons, gender, number, and the code of a
// verb.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace atelier {

/// Tenses and moods of a verb, one bit each: a form may stand for several.
enum Temps : std::uint16_t {
    sanstemps = 0,
    infinitif = 1U << 0U,
    participepresent = 1U << 1U,
    participepasse = 1U << 2U,
    present = 1U << 3U,
    imparfait = 1U << 4U,
    passesimple = 1U << 5U,
    futur = 1U << 6U,
    conditionnel = 1U << 7U,
    subjonctif = 1U << 8U,
    subjonctifimparfait = 1U << 9U,
    imperatif = 1U << 10U,
};

/// Persons of a verb, one bit each, and the two forms that stand only before their pronoun.
enum Personne : std::uint8_t {
    sanspersonne = 0,
    je = 1U << 0U,
    tu = 1U << 1U,
    il = 1U << 2U,
    nous = 1U << 3U,
    vous = 1U << 4U,
    ils = 1U << 5U,
    inversee = 1U << 6U,  ///< "chantè-je", "chanté-je"
};

enum class Genre : std::uint8_t { aucun, masculin, feminin, epicene };
enum class Nombre : std::uint8_t { aucun, singulier, pluriel, invariable };

/// What a word is.
enum class Nature : std::uint8_t { nom, adjectif, verbe, autre };

/// The traits of a form, of a suffix rule or of an entry.
struct Traits {
    std::uint16_t temps = sanstemps;
    std::uint8_t personnes = sanspersonne;
    Genre genre = Genre::aucun;
    Nombre nombre = Nombre::aucun;

    /// Reads one field, "po:ipre" or "is:pl"; false if it says nothing of these traits. Gender and
    /// number keep what an earlier field said.
    bool lire(std::string_view champ);
    /// Tenses and persons of both; gender and number of `autre` where this has none.
    [[nodiscard]] Traits completes(const Traits& autre) const;
};

/// Number of cells of a full conjugation: three forms without a person, seven tenses of six
/// persons, three imperatives.
constexpr std::size_t nombredecases = 3 + 7 * 6 + 3;

/// The cells that a form fills, one bit each.
[[nodiscard]] std::uint64_t cases(const Traits& traits);

/// Position by position, the code of a verb: "v1_it_q__a".
struct CodeVerbe {
    char groupe = '0';  ///< '0' to '3'
    bool transitif = false;
    bool decrit = true;  ///< false where the source leaves the auxiliary open: "v3_i____zz"
};

/// The code in a value of "po:", or false if it is none.
bool lirecode(std::string_view valeur, CodeVerbe& code);

}  // namespace atelier
