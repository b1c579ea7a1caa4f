#pragma once

// Values of criteria. Each function reads one, or throws an `Ennui` that says in French what is
// wrong with it.

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "criteres.h"

namespace recherche {

/// What is wrong with a value. The reader of the search catches it and adds the name of the
/// criterion.
struct Ennui : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The text in French quotation marks.
[[nodiscard]] std::string entreguillemets(std::string_view texte);

/// A number written in digits only, at most `max`.
[[nodiscard]] std::uint64_t nombre(std::string_view texte, std::uint64_t max);
/// `N` or `A-B`, which must overlap `bornes`.
[[nodiscard]] Plage plage(std::string_view texte, const Plage& bornes);
/// Capitals of a text of letters in any case, with or without accents.
[[nodiscard]] std::string capitales(std::string_view texte);
/// The same for a text that also has some of these signs, which are kept.
[[nodiscard]] std::string capitales(std::string_view texte, std::string_view signes);
/// The texts between commas, none of which may be empty.
[[nodiscard]] std::vector<std::string_view> liste(std::string_view texte);

/// Letters in hand, jokers among them.
class Reserve {
  public:
    explicit Reserve(std::string_view lettresetjokers);
    [[nodiscard]] std::size_t taille() const { return taille_; }
    /// Whether the letters, with the jokers, make the word.
    [[nodiscard]] bool fait(const Fiche& fiche) const;

  private:
    std::array<std::int8_t, 26> comptes_{};
    std::uint32_t lettres_ = 0;
    int jokers_ = 0;
    std::size_t taille_ = 0;
};

}  // namespace recherche
