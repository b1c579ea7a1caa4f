#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "formulaire.h"

namespace series {

/// The nine letter tiles (`Command1`) show the current rack. To help thinking, the player swaps two
/// of them by clicking on one, then on the other.
class Tuiles {
  public:
    static constexpr std::size_t nombre = 9;

    explicit Tuiles(ui::Formulaire& formulaire);

    /// Runs at each click on a tile, before the swap.
    std::function<void()> surclic;

    /// Remembers the place of tile 0 and the width of a tile, to lay the tiles out again.
    void relever();
    /// Shows a text of 1 to `nombre` characters, with the tiles back in order. Any other text
    /// leaves the tiles as they are.
    void afficher(std::string_view tiragenet);
    /// Forgets the tile that was clicked first.
    void oublier() { lettre_ = -1; }
    void peindre(ui::Couleur couleur);

    [[nodiscard]] const std::array<ui::Controle*, nombre>& controles() const { return tuiles_; }

  private:
    void cliquer(int rang);

    std::array<ui::Controle*, nombre> tuiles_{};
    int gauche_ = 0;   ///< of tile 0, in twips
    int largeur_ = 0;  ///< of a tile
    int lettre_ = -1;  ///< the tile that was clicked first; -1: none
};

}  // namespace series
