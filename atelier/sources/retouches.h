#pragma once

// Changes to the lexicon by hand: entries set aside, words added, words refused.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "grammaire.h"

namespace atelier {

/// A word that the lexicon lacks.
struct Ajout {
    struct Forme {
        std::string capitales;
        Nombre nombre = Nombre::aucun;
    };
    std::string mot;  ///< lower case, accents kept, UTF-8
    Nature nature = Nature::autre;
    std::vector<Forme> formes;  ///< none for a verb
    std::string modele;         ///< for a verb: the verb of the lexicon that it is conjugated like
    std::size_t ligne = 0;      ///< of `fichierajouts`, from 1
};

inline constexpr std::string_view fichierajouts = "ajouts.txt";

class Retouches {
  public:
    /// No change at all.
    Retouches() = default;
    /// Reads three texts; the comments at the top of ecartes.txt, ajouts.txt and exclus.txt
    /// describe the formats. Throws `common::Faute`, with file and line, for a malformed line.
    Retouches(std::string_view ecartes, std::string_view ajouts, std::string_view exclus);

    /// The entry is set aside: it gives no word of the game.
    [[nodiscard]] bool ecarte(std::string_view lemme, Nature nature) const;
    /// The lemma is offensive: its forms are words, but no list asks for them.
    [[nodiscard]] bool injurieux(std::string_view lemme) const;
    /// This form of the lemma is refused: no player would accept it.
    [[nodiscard]] bool refuse(std::string_view lemme, std::string_view capitales) const;
    /// An added verb is conjugated like this one.
    [[nodiscard]] bool modele(std::string_view lemme) const;
    [[nodiscard]] const std::vector<Ajout>& ajouts() const { return ajouts_; }

  private:
    void lireecartes(std::string_view texte);
    void lireajouts(std::string_view texte);
    void lireexclus(std::string_view texte);

    std::unordered_set<std::string> ecartes_;  // lemma, blank, nature
    std::vector<Ajout> ajouts_;
    std::unordered_set<std::string> modeles_;
    std::unordered_set<std::string> injures_;
    std::unordered_map<std::string, std::vector<std::string>> refuses_;  // the forms that are kept
};

/// The changes in ecartes.txt, ajouts.txt and exclus.txt.
[[nodiscard]] const Retouches& retouches();
/// The same without the added words.
[[nodiscard]] const Retouches& retouchessansajouts();

}  // namespace atelier
