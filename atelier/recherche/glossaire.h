#pragma once

// The words of the dictionary in force, one record each, with all that a search asks of them. Made
// from a vocabulary, or read back from the file that was made with the lists.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "capitales.h"
#include "difficulte.h"
#include "vocabulaire.h"

namespace recherche {

/// File of the words, in the folder of the lists (format: docs/formats.md).
inline constexpr std::string_view fichierglossaire = "mots.dat";

/// A property of words, as the lists define it.
struct Nature {
    std::string_view nom;
    std::uint16_t bit = 0;
};
inline constexpr std::array natures{
    Nature{"nom", 1U << 0U},      Nature{"infinitif", 1U << 1U}, Nature{"participe", 1U << 2U},
    Nature{"conjugue", 1U << 3U}, Nature{"pluriel", 1U << 4U},   Nature{"invariable", 1U << 5U},
    Nature{"entree", 1U << 6U},
};
/// The thesaurus knows one of the lemmas of the word.
inline constexpr std::uint16_t bitcommun = 1U << 7U;

/// The bit of a letter A to Z in a set of letters.
[[nodiscard]] constexpr std::uint32_t bitlettre(char lettre) {
    return 1U << static_cast<unsigned>(lettre - 'A');
}

struct Fiche {
    atelier::Capitales mot;
    std::uint32_t tirage = 0;      ///< the same for all words on the same letters
    std::uint32_t devant = 0;      ///< letters that make a word in front of this one
    std::uint32_t derriere = 0;    ///< letters that make a word behind it
    std::uint32_t lettres = 0;     ///< letters of the word
    std::int16_t difficulte = 0;   ///< of formation
    std::uint16_t marques = 0;     ///< bits of `natures`, and `bitcommun`
    std::uint16_t anagrammes = 0;  ///< words on its letters, itself included
    std::uint8_t poids = 0;
    std::uint8_t voyelles = 0;  ///< A E I O U Y

    [[nodiscard]] std::string_view texte() const { return mot.texte(); }
};

/// Orders of the results that depend on the words alone. Words that are equal come in alphabetical
/// order.
enum class Ordre : std::uint8_t { alphabet, difficulte, probabilite, poids, hasard };

/// The number of ways to draw the letters of a word from a full bag without jokers.
[[nodiscard]] std::uint64_t tirages(std::string_view mot);

class Glossaire {
  public:
    Glossaire(const atelier::Vocabulaire& vocabulaire, const atelier::Difficulte& difficulte);

    /// Reads the bytes that `octets` returned; nothing if they are cut or changed.
    [[nodiscard]] static std::optional<Glossaire> lire(std::string_view octets);
    /// These words as the bytes of a file.
    [[nodiscard]] std::string octets() const;

    /// In alphabetical order.
    [[nodiscard]] std::span<const Fiche> fiches() const { return fiches_; }
    /// The places of all words, in an order other than by chance.
    [[nodiscard]] std::span<const std::uint32_t> places(Ordre ordre) const {
        return ordres_.at(static_cast<std::size_t>(ordre));
    }
    /// Number of different racks.
    [[nodiscard]] std::size_t tirages() const { return debuts_.size() - 1; }
    /// The places of the words on a rack, in alphabetical order.
    [[nodiscard]] std::span<const std::uint32_t> surtirage(std::uint32_t tirage) const {
        return std::span(partirage_)
            .subspan(debuts_[tirage], debuts_[tirage + 1] - debuts_[tirage]);
    }
    /// The place of a word, or nothing.
    [[nodiscard]] std::optional<std::uint32_t> chercher(std::string_view mot) const;

  private:
    Glossaire(std::vector<Fiche> fiches, std::size_t tirages);
    void completer();
    void grouper(std::size_t tirages);
    void ordonner();

    std::vector<Fiche> fiches_;
    std::array<std::vector<std::uint32_t>, 4> ordres_;
    std::vector<std::uint32_t> debuts_;  // of each rack in `partirage_`, and the end
    std::vector<std::uint32_t> partirage_;
};

}  // namespace recherche
