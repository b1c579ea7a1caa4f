#pragma once

// Makes the rows of a list from words: choosing words, reducing their number, adding hints,
// ordering.

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vocabulaire.h"

namespace atelier {

/// A row of a list file (format: docs/formats.md).
struct Rangee {
    std::string lettres;    ///< the letters of the rack alone, which rows are ordered by
    std::string tirage;     ///< the rack as the player sees it
    std::string solutions;  ///< separated by ";"

    [[nodiscard]] std::string texte() const { return tirage + ';' + solutions; }
};

/// The rows of a list, in order, and all words that a player has to find in it.
struct Contenu {
    std::vector<Rangee> rangees;
    std::vector<std::uint32_t> mots;  ///< indices in the vocabulary
};

using Selection = std::vector<const Mot*>;

/// The words of `min` to `max` letters for which `predicat` is true and which are not offensive, by
/// length, then alphabet.
template <class Predicat>
Selection choisir(const Vocabulaire& v, std::size_t min, std::size_t max, Predicat predicat) {
    Selection choisis;
    for (const auto& mot : v.mots(min, max)) {
        if (!mot.injurieux && predicat(mot))
            choisis.push_back(&mot);
    }
    return choisis;
}

/// One of the words is offensive.
[[nodiscard]] bool injurieuse(const Selection& mots);

/// The words of a rack for which `predicat` is true, in alphabetical order.
template <class Predicat>
Selection choisir(const Vocabulaire& v, const Tirage& tirage, Predicat predicat) {
    Selection choisis;
    for (const auto place : v.places(tirage)) {
        if (predicat(v.mot(place)))
            choisis.push_back(&v.mot(place));
    }
    return choisis;
}

[[nodiscard]] inline bool tous(const Mot& /*mot*/) {
    return true;
}
[[nodiscard]] inline bool nonconjugue(const Mot& mot) {
    return !mot.conjugue;
}
[[nodiscard]] inline bool conjugue(const Mot& mot) {
    return mot.conjugue;
}
[[nodiscard]] inline bool infinitive(const Mot& mot) {
    return mot.infinitif;
}

/// How common a word is. `frequencedeverbe` ranks the verbs that everybody uses above all others.
[[nodiscard]] std::uint32_t frequencedeverbe(const Vocabulaire& v, const Mot& mot);
[[nodiscard]] std::uint32_t frequence(const Vocabulaire& v, const Mot& mot);

/// The word is the infinitive of a defective verb.
[[nodiscard]] bool defectif(const Vocabulaire& v, const Mot& mot);

/// Removes the commonest words, by `mesure`, until `total` are left. Removes only words for which
/// `otable` is true. Ties are broken by alphabet.
[[nodiscard]] Selection couper(const Vocabulaire& v, Selection selection, std::size_t total,
                               std::uint32_t (*mesure)(const Vocabulaire&, const Mot&),
                               bool (*otable)(const Mot&) = tous);

/// The `nombre` words with the highest measure. Ties are broken by alphabet.
[[nodiscard]] Selection plushauts(Selection selection, std::size_t nombre,
                                  const std::function<int(const Mot&)>& mesure);

/// The rack of a word with a hint in brackets: the shortest beginning of the word that none of the
/// `rivaux` on the same letters shares. Without rivals, the plain rack.
[[nodiscard]] std::string tirageavecindice(const Mot& mot, const Selection& rivaux);
/// The same on texts; `rivaux` does not hold the word.
[[nodiscard]] std::string tirageavecindice(std::string_view mot,
                                           std::span<const std::string_view> rivaux);

/// One row for each word: its letters in alphabetical order, and the word.
[[nodiscard]] Contenu simples(const Vocabulaire& v, const Selection& selection);

/// The same, with a hint where other words of `rivaux` have the same letters.
[[nodiscard]] Contenu indiques(const Vocabulaire& v, const Selection& selection,
                               const Selection& rivaux);

/// Adds a rack with several solutions, unless one of them is offensive.
void ajoutermultiple(Contenu& contenu, const Vocabulaire& v, const Tirage& tirage,
                     const Selection& solutions);

/// Sorts the rows as in the files: by number of letters, then letters, then solutions.
void ordonner(Contenu& contenu);

/// The index of a word in the vocabulary.
[[nodiscard]] std::uint32_t place(const Vocabulaire& v, const Mot& mot);

}  // namespace atelier
