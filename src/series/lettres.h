#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace series {

/// The letters of a rack without its mark-up, and which of them are not typed yet.
class Lettres {
  public:
    /// Most letters that a rack may hold.
    static constexpr std::size_t limite = 15;

    /// Takes a rack text: "+", "(", ")" and the digits 1 to 8 are skipped; with a "-" the rack is
    /// what stands before the first one, as it stands. False if that is over `limite` letters.
    [[nodiscard]] bool lirelettres(std::string_view texte);
    /// The rack without mark-up.
    [[nodiscard]] const std::string& tiragenet() const { return tiragenet_; }
    /// Sets a text to show on the tiles, with no letter to play.
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
