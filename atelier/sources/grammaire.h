#pragma once

// What the lexicon says of a form of a word: tense, persons, gender and number, and for a verb its
// code.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace atelier {

/// Tenses and moods of a verb, one bit each, since a form may have several.
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

/// Persons of a verb, one bit each, and a bit for forms used only before their pronoun.
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

/// The part of speech of a word.
enum class Nature : std::uint8_t { nom, adjectif, verbe, autre };

/// The grammatical traits of a form, a suffix rule or an entry.
struct Traits {
    std::uint16_t temps = sanstemps;
    std::uint8_t personnes = sanspersonne;
    Genre genre = Genre::aucun;
    Nombre nombre = Nombre::aucun;

    /// Reads a field such as "po:ipre" or "is:pl"; false if it gives none of these traits. A gender
    /// or number that an earlier field gave is kept.
    bool lire(std::string_view champ);
    /// The tenses and persons of both, with gender and number of `autre` where these lack them.
    [[nodiscard]] Traits completes(const Traits& autre) const;
};

/// Number of cells in a full conjugation: three forms without a person, seven tenses of six
/// persons, and three imperatives.
constexpr std::size_t nombredecases = 3 + 7 * 6 + 3;

/// The cells that a form fills, one bit each.
[[nodiscard]] std::uint64_t cases(const Traits& traits);

/// The code of a verb, such as "v1_it_q__a": each position has its meaning.
struct CodeVerbe {
    char groupe = '0';  ///< '0' to '3'
    bool transitif = false;
    bool decrit = true;  ///< false where the source leaves the auxiliary open: "v3_i____zz"
};

/// Reads the code in the value of a "po:" field; false if it is not one.
bool lirecode(std::string_view valeur, CodeVerbe& code);

}  // namespace atelier
