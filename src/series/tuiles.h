#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "formulaire.h"

namespace series {

/// The nine letter tiles (`Command1`): they show the current rack, and two clicks swap two of them
/// on screen, as an aid to thought.
class Tuiles {
  public:
    static constexpr std::size_t nombre = 9;

    explicit Tuiles(ui::Formulaire& formulaire);

    /// Runs at each click, before the swap.
    std::function<void()> surclic;

    /// Takes the place of tile 0 and the width of a tile as they are now (`tuilegauche`).
    void relever();
    /// Shows a text of 1 to 9 characters, tiles back in order; any other leaves them as they are.
    void afficher(std::string_view tiragenet);
    /// No tile is picked for a swap any more.
    void oublier() { lettre_ = -1; }
    void peindre(ui::Couleur couleur);

    [[nodiscard]] const std::array<ui::Controle*, nombre>& controles() const { return tuiles_; }

  private:
    void cliquer(int rang);

    std::array<ui::Controle*, nombre> tuiles_{};
    int gauche_ = 0;   ///< of tile 0, in twips
    int largeur_ = 0;  ///< of a tile
    int lettre_ = -1;  ///< tile picked for a swap, -1 none
};

}  // namespace series
