#pragma once

#include <optional>
#include <string_view>

#include "fichier.h"

// The sizes of pictures. A form takes the size of the picture that it shows, and forms see no Qt:
// so the header of the file is read here, through the disk of the rules.

namespace dialogs {

/// The size of a picture, in pixels.
struct Dimensions {
    int largeur = 0;
    int hauteur = 0;
    friend bool operator==(const Dimensions&, const Dimensions&) = default;
};

/// The size of a picture, from the header of its BMP or PNG file. Nothing if the file cannot be
/// read, is no such picture, or has a side outside 1 to `cotemaximal`.
[[nodiscard]] std::optional<Dimensions> dimensions(common::Disque& disque, std::string_view chemin);
inline constexpr int cotemaximal = 10000;

}  // namespace dialogs
