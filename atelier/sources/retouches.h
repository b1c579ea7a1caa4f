#pragma once

// What is changed in the lexicon by hand: entries set aside, words added, words refused.

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
    std::string modele;         ///< of a verb: the verb of the lexicon that it is conjugated as
};

class Retouches {
  public:
    /// Changes nothing.
    Retouches() = default;
    /// Reads three texts in the formats that the heads of ecartes.txt, ajouts.txt and exclus.txt
    /// tell. Throws `common::Faute`, with file and line, for a line of another form.
    Retouches(std::string_view ecartes, std::string_view ajouts, std::string_view exclus);

    /// The entry gives no word of the game.
    [[nodiscard]] bool ecarte(std::string_view lemme, Nature nature) const;
    /// The lemma offends: its forms are words that no list asks.
    [[nodiscard]] bool injurieux(std::string_view lemme) const;
    /// No player would accept this form of the lemma.
    [[nodiscard]] bool refuse(std::string_view lemme, std::string_view capitales) const;
    /// A word added is conjugated as this verb.
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
    std::unordered_map<std::string, std::vector<std::string>> refuses_;  // forms that stay
};

/// What ecartes.txt, ajouts.txt and exclus.txt say.
[[nodiscard]] const Retouches& retouches();
/// The same without a word added.
[[nodiscard]] const Retouches& retouchessansajouts();

}  // namespace atelier
