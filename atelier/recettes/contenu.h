#pragma once

// From words to the rows of a list: choosing, cutting to a size, hinting, ordering.

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
    std::string lettres;    ///< of the rack, without a sign: what rows are ordered by
    std::string tirage;     ///< as the player sees it
    std::string solutions;  ///< with ";" between them

    [[nodiscard]] std::string texte() const { return tirage + ';' + solutions; }
};

/// The rows of a list, in its order, and every word that a player has to find there.
struct Contenu {
    std::vector<Rangee> rangees;
    std::vector<std::uint32_t> mots;  ///< places in the vocabulary
};

using Selection = std::vector<const Mot*>;

/// The words of these lengths that are such and that a list may ask, by length and alphabet.
template <class Predicat>
Selection choisir(const Vocabulaire& v, std::size_t min, std::size_t max, Predicat predicat) {
    Selection choisis;
    for (const auto& mot : v.mots(min, max)) {
        if (!mot.injurieux && predicat(mot))
            choisis.push_back(&mot);
    }
    return choisis;
}

/// One of the words offends.
[[nodiscard]] bool injurieuse(const Selection& mots);

/// The words of a rack that are such, by alphabet.
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

/// How common a word is; verbs that everybody uses come before all others.
[[nodiscard]] std::uint32_t frequencedeverbe(const Vocabulaire& v, const Mot& mot);
[[nodiscard]] std::uint32_t frequence(const Vocabulaire& v, const Mot& mot);

/// The infinitive of a verb that lacks a good part of its conjugation.
[[nodiscard]] bool defectif(const Vocabulaire& v, const Mot& mot);

/// Takes the commonest words out of a selection until `total` are left; takes only words that are
/// `otables`. Ties go by alphabet.
[[nodiscard]] Selection couper(const Vocabulaire& v, Selection selection, std::size_t total,
                               std::uint32_t (*mesure)(const Vocabulaire&, const Mot&),
                               bool (*otable)(const Mot&) = tous);

/// The `nombre` words that measure highest; ties go by alphabet.
[[nodiscard]] Selection plushauts(Selection selection, std::size_t nombre,
                                  const std::function<int(const Mot&)>& mesure);

/// A rack with a hint: in brackets, the shortest beginning of the word that no rival on the same
/// letters shares. Without rivals, the plain rack.
[[nodiscard]] std::string tirageavecindice(const Mot& mot, const Selection& rivaux);
/// The same on texts; `rivaux` does not hold the word.
[[nodiscard]] std::string tirageavecindice(std::string_view mot,
                                           std::span<const std::string_view> rivaux);

/// One row a word: its letters in alphabetical order and the word.
[[nodiscard]] Contenu simples(const Vocabulaire& v, const Selection& selection);

/// The same with a hint where other words of `rivaux` stand on the letters.
[[nodiscard]] Contenu indiques(const Vocabulaire& v, const Selection& selection,
                               const Selection& rivaux);

/// Adds a rack and its several solutions; not one that asks an offending word.
void ajoutermultiple(Contenu& contenu, const Vocabulaire& v, const Tirage& tirage,
                     const Selection& solutions);

/// Puts rows in the order of the files: by number of letters, letters, solutions.
void ordonner(Contenu& contenu);

/// The place of a word in the vocabulary.
[[nodiscard]] std::uint32_t place(const Vocabulaire& v, const Mot& mot);

}  // namespace atelier
