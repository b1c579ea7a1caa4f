#pragma once

// Lines of a text in memory, and the blank-separated words of a line.

#include <array>
#include <cstddef>
#include <string_view>

namespace atelier {

/// Lines of a text, without their line end (CR LF or LF).
class LignesTexte {
  public:
    explicit LignesTexte(std::string_view texte) : reste_(texte) {}
    /// The next line; false at the end of the text.
    [[nodiscard]] bool suivante(std::string_view& ligne) {
        if (reste_.empty())
            return false;
        const auto fin = reste_.find('\n');
        ligne = reste_.substr(0, fin);
        reste_.remove_prefix(fin == std::string_view::npos ? reste_.size() : fin + 1);
        if (!ligne.empty() && ligne.back() == '\r')
            ligne.remove_suffix(1);
        ++numero_;
        return true;
    }
    /// Number of the line last given, from 1.
    [[nodiscard]] std::size_t numero() const { return numero_; }

  private:
    std::string_view reste_;
    std::size_t numero_ = 0;
};

/// The words of a line; a place past the last one is the empty text.
class Mots {
  public:
    /// Most words that are kept.
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
    /// The line has words past the limit.
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
