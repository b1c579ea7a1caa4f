#pragma once

// The help texts of the menu, as tables: what the help box (`Label11`) and the message line
// (`Label13`) show. Lines of one text are separated by a line feed.

#include <cstddef>
#include <string>
#include <string_view>

namespace menu {

/// How the list of a row was made (`Command14`); empty if the row has no text.
[[nodiscard]] std::string_view aidetout(std::string_view cle, std::size_t rangee);
/// What the list of a row is for (`Label1`); empty if the row has no text.
[[nodiscard]] std::string_view aidelibelle(std::string_view cle, std::size_t rangee);
/// The text of a control that has one, whatever the panel and row; empty for the others.
[[nodiscard]] std::string_view aidefixe(std::string_view controle);
/// What the opening of a panel writes; empty if it writes nothing.
[[nodiscard]] std::string_view aidepanneau(std::string_view cle);
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
