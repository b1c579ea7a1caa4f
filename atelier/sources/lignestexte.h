#pragma once

// The lines of a text in memory, and the words of a line.

#include <array>
#include <cstddef>
#include <string_view>

#include "lignes.h"

namespace atelier {

/// The lines of a text in memory.
using LignesTexte = common::Decoupage;

/// The words of a line, separated by blanks. Past the last word, any index gives an empty text.
class Mots {
  public:
    /// Most words of a line that are kept.
    static constexpr std::size_t limite = 24;

    explicit Mots(std::string_view ligne) {
        while (nombre_ < mots_.size()) {
            const auto debut = ligne.find_first_not_of(' ');
            if (debut == std::string_view::npos)
                return;
            ligne.remove_prefix(debut);
            const auto fin = ligne.find(' ');
            mots_[nombre_++] = ligne.substr(0, fin);
            if (fin == std::string_view::npos)
                return;
            ligne.remove_prefix(fin);
        }
        coupes_ = ligne.find_first_not_of(' ') != std::string_view::npos;
    }
    /// The line has more words than the limit.
    [[nodiscard]] bool coupes() const { return coupes_; }
    [[nodiscard]] std::size_t nombre() const { return nombre_; }
    [[nodiscard]] std::string_view operator[](std::size_t i) const {
        return i < nombre_ ? mots_[i] : std::string_view();
    }

  private:
    std::array<std::string_view, limite> mots_{};
    std::size_t nombre_ = 0;
    bool coupes_ = false;
};

}  // namespace atelier
