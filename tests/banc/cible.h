#pragma once

#include <string>
#include <string_view>

#include "seance.h"

namespace banc {

/// What a name in a scenario stands for: a form, and its control or timer if one is named.
struct Cible {
    ui::Formulaire* formulaire = nullptr;
    ui::Controle* controle = nullptr;
    ui::Minuterie* minuterie = nullptr;
};

/// Finds "Form1", "Form1.solution(3)" or "Form1.Timer1". Throws `Refus` if there is none.
[[nodiscard]] Cible trouver(const Seance& seance, std::string_view nom);
[[nodiscard]] ui::Controle& controle(const Seance& seance, std::string_view nom);
/// A visible form. Throws `Refus` if it is not visible.
[[nodiscard]] ui::Formulaire& fenetre(const Seance& seance, std::string_view nom);
/// A control that the user can reach: visible and enabled, on a visible form. Throws `Refus` if it
/// is not.
[[nodiscard]] ui::Controle& atteindre(const Seance& seance, std::string_view nom);
/// The form whose pop-up menu is open. Throws `Refus` if there is none.
[[nodiscard]] ui::Formulaire& formulairedumenu(const Seance& seance);
/// The entry belongs to an open menu.
[[nodiscard]] bool proposee(const ui::Controle& entree);
/// The form in front. Throws `Refus` if no form is visible.
[[nodiscard]] ui::Formulaire& devant(const Seance& seance);

}  // namespace banc
