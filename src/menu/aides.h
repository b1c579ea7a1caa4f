#pragma once

// What the help box (`Label11`) and the message line (`Label13`) show: texts of the catalogue, and
// texts of their own. A line feed separates the lines of a text.

#include <cstddef>
#include <string>
#include <string_view>

#include "catalogue.h"

namespace menu {

/// Over "Tout" (`Command14`) of a row: how its list was made. Empty without a panel, or if the row
/// has no text.
[[nodiscard]] std::string_view aidetout(const Panneau* panneau, std::size_t rangee);
/// Over the name of a row (`Label1`): what its list is for. Empty in the same cases.
[[nodiscard]] std::string_view aidelibelle(const Panneau* panneau, std::size_t rangee);
/// The text of a control, named by its design name, whose help is the same on every panel; empty
/// for any other control.
[[nodiscard]] std::string_view aidefixe(std::string_view controle);
/// The greeting at start-up.
[[nodiscard]] std::string bienvenue(std::string_view util);

inline constexpr std::string_view aidepersonnelle =
    "Fichier personnel, à placer dans le répertoire /listes";
inline constexpr std::string_view messagepersonnel =
    "Fabriquez vos propres listes ! Allez faire un tour sur le site de Oriel Vantac :";
inline constexpr std::string_view personnelvalide = "Le fichier personnel semble valide.";
inline constexpr std::string_view messageechantillon =
    "La taille de l'échantillon dépasse la taille de la base !";

}  // namespace menu
