#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formulaire.h"
#include "listes.h"

namespace series {

/// The reference lists, each of which has a mark, in the order in which they are read.
enum class Liste : std::size_t { Ods5, Ods6, Ods7, Vbi, Vbt, Inv };
inline constexpr std::size_t nombredelistes = common::listesreference.size();

/// Most items of each list, in the order of `Liste`.
using Limites = std::array<std::size_t, nombredelistes>;

/// The mark of a list: a picture on the box of each of its words. The first three marks are dated:
/// they tell an edition. Beside a dated mark, the others show their half picture.
struct Marque {
    std::string_view controle;  ///< full mark
    std::string_view image;
    std::string_view demicontrole;  ///< half mark; empty for a dated mark
    std::string_view demiimage;
    std::string_view infobulle;
};

inline constexpr std::array<Marque, nombredelistes> tabledesmarques = {{
    {"Image1", "images\\ods5_28x28.bmp", {}, {}, "Entré en janvier 2008"},
    {"Image4", "images\\ods6_28x28.bmp", {}, {}, "Entré en janvier 2012"},
    {"Image5", "images\\ods7_28x28.bmp", {}, {}, "Entré en janvier 2016"},
    {"Image2", "images\\ppi_28x28.bmp", "ImageDemiPpi", "images\\ppi_14x28.bmp",
     "Participe passé invariable !"},
    {"Image6", "images\\vbt_28x28.bmp", "ImageDemiVbt", "images\\vbt_14x28.bmp", "Verbe transitif"},
    {"Image3", "images\\inv_28x28.bmp", "ImageDemiInv", "images\\inv_14x28.bmp",
     "Mot invariable !"},
}};

/// The marks on the boxes of a series form.
class Marques {
  public:
    /// Makes the marks of `nombre` boxes, hidden, with the half marks in front.
    Marques(ui::Formulaire& formulaire, std::size_t nombre, const Limites& limites);

    /// Loads the pictures. Throws `Faute` if one cannot be read.
    void charger();
    /// Places the marks of a box on `controle`, at its right edge.
    void placer(std::size_t boite, const ui::Controle& controle);
    void cacher();
    /// Reads the lists and shows the marks of the words, those of word i on box i. Throws `Faute`
    /// if a list cannot be read or exceeds its limit. All marks are expected to be hidden.
    void montrer(std::span<const std::string> mots);

  private:
    struct Paire {
        ui::Controle* pleine = nullptr;
        ui::Controle* demie = nullptr;  ///< null for a dated mark
    };
    ui::Formulaire& formulaire_;
    Limites limites_;
    std::vector<std::array<Paire, nombredelistes>> paires_;  ///< by box, then list
};

}  // namespace series
