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

/// The lists that drive marks, in the order in which they are read.
enum class Liste : std::size_t { Ods5, Ods6, Ods7, Vbi, Vbt, Inv };
inline constexpr std::size_t nombredelistes = common::listesreference.size();

/// Most items of each list, in the order of `Liste`.
using Limites = std::array<std::size_t, nombredelistes>;

/// What one list puts on a box: a full mark, or for a grammar list beside a dated mark the half
/// one.
struct Marque {
    std::string_view controle;  ///< full mark
    std::string_view image;
    std::string_view demicontrole;  ///< half mark, empty for the dated marks
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

/// The marks of the boxes of a series form: facts on the word that a box stands for.
class Marques {
  public:
    /// Makes the marks of `nombre` boxes, hidden, the half ones in front.
    Marques(ui::Formulaire& formulaire, std::size_t nombre, const Limites& limites);

    /// Sets the pictures. Throws `Faute` if one cannot be read.
    void charger();
    /// Puts the marks of a box level with it, from its right edge.
    void placer(std::size_t boite, const ui::Controle& controle);
    void cacher();
    /// Reads the lists and shows the marks of the words, word i on box i, where no mark shows.
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
