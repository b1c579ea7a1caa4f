#pragma once

// The texts that the help box (`Label11`) and the message line (`Label13`) show beside those of the
// catalogue. Lines of one text are separated by a line feed.

#include <cstddef>
#include <string>
#include <string_view>

#include "catalogue.h"

namespace menu {

/// How the list of a row was made (`Command14`); empty without a panel, or if the row has no text.
[[nodiscard]] std::string_view aidetout(const Panneau* panneau, std::size_t rangee);
/// What the list of a row is for (`Label1`); empty without a panel, or if the row has no text.
[[nodiscard]] std::string_view aidelibelle(const Panneau* panneau, std::size_t rangee);
/// The text of a control that has one, whatever the panel and row; empty for the others.
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
