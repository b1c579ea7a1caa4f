#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace series {

/// The pool of letters: those of a rack, without its mark-up, and which of them are still free.
class Lettres {
  public:
    /// Most letters that a rack may hold.
    static constexpr std::size_t limite = 15;

    /// Takes the letters of a rack. "+", "(", ")" and the digits 1 to 8 are left out; but if the
    /// text has a "-", the rack is all that stands before the first one, unchanged. False if that
    /// is more than `limite` letters.
    [[nodiscard]] bool lirelettres(std::string_view texte);
    /// The rack without mark-up.
    [[nodiscard]] const std::string& tiragenet() const { return tiragenet_; }
    /// Takes a text that the tiles show, without a letter to play.
    void annoncer(std::string_view texte);

    /// Uses up the first free letter equal to `lettre`; false if there is none.
    bool prendre(std::string_view lettre);
    /// Frees all letters of the rack, then uses up those of `reponse`.
    void recalculer(std::string_view reponse);
    /// The letters not used yet, in their order.
    [[nodiscard]] std::string restantes() const;

  private:
    std::string tiragenet_;
    std::array<std::string, limite> lettrestirage_;  ///< "" for a used letter
};

}  // namespace series
