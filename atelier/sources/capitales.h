#pragma once

// Words as the lists write them: capitals A to Z without accents.

#include <algorithm>
#include <array>
#include <bit>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace atelier {

/// Letters of the longest word that fits on the board.
constexpr std::size_t longueurmax = 15;
/// Letters of the shortest word that the game allows.
constexpr std::size_t longueurmin = 2;

/// A word of at most 15 capitals, which is fast to sort and compare.
class Capitales {
  public:
    Capitales() = default;
    /// `texte` consists of A to Z. Throws `std::length_error`, with the text, if it is longer than
    /// `longueurmax`.
    explicit Capitales(std::string_view texte) {
        if (texte.size() > longueurmax)
            troplong(texte);
        std::memcpy(lettres_.data(), texte.data(), texte.size());
        lettres_[longueurmax] = static_cast<char>(texte.size());
    }

    [[nodiscard]] std::size_t taille() const { return static_cast<std::size_t>(lettres_.back()); }
    [[nodiscard]] std::string_view texte() const { return {lettres_.data(), taille()}; }
    [[nodiscard]] char operator[](std::size_t i) const { return lettres_[i]; }
    /// The rack of the word: its letters in alphabetical order.
    [[nodiscard]] Capitales triees() const {
        Capitales rangees = *this;
        auto& l = rangees.lettres_;
        for (std::size_t i = 1; i < taille(); ++i) {
            for (std::size_t k = i; k > 0 && l[k] < l[k - 1]; --k)
                std::swap(l[k], l[k - 1]);
        }
        return rangees;
    }

    /// The letters and the length as two numbers, which compare as the letters do.
    [[nodiscard]] std::array<std::uint64_t, 2> nombres() const {
        std::array<std::uint64_t, 2> moities{};
        std::memcpy(moities.data(), lettres_.data(), lettres_.size());
        if constexpr (std::endian::native == std::endian::little) {
            for (auto& moitie : moities)
                moitie = __builtin_bswap64(moitie);
        }
        return moities;
    }

    /// Shorter words first, then by alphabet.
    [[nodiscard]] std::strong_ordering operator<=>(const Capitales& autre) const {
        const auto a = nombres();
        const auto b = autre.nombres();
        if (taille() != autre.taille())
            return taille() <=> autre.taille();
        return a[0] != b[0] ? a[0] <=> b[0] : a[1] <=> b[1];
    }
    [[nodiscard]] bool operator==(const Capitales& autre) const {
        return nombres() == autre.nombres();
    }

  private:
    [[noreturn]] static void troplong(std::string_view texte);

    std::array<char, longueurmax + 1> lettres_{};  // the last one is the length
};

/// A lower-case letter in capitals, without its accent: "é" gives E, "œ" gives OE. Empty for
/// anything else.
[[nodiscard]] std::string_view capitalesde(char32_t lettre);

/// The characters of a UTF-8 text; nothing if it is not UTF-8.
[[nodiscard]] std::optional<std::u32string> points(std::string_view utf8);

/// A lower-case word in capitals without accents; nothing if it has anything but letters.
[[nodiscard]] std::optional<std::string> encapitales(std::u32string_view mot);
[[nodiscard]] std::optional<std::string> encapitales(std::string_view utf8);

}  // namespace atelier
