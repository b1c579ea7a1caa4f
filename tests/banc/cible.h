#pragma once

#include <string>
#include <string_view>

#include "seance.h"

namespace banc {

/// What a name of a scenario stands for: a form, and a control or a timer of it if one is named.
struct Cible {
    ui::Formulaire* formulaire = nullptr;
    ui::Controle* controle = nullptr;
    ui::Minuterie* minuterie = nullptr;
};

/// "Form1", "Form1.solution(3)" or "Form1.Timer1". Throws `Refus` if there is none.
[[nodiscard]] Cible trouver(const Seance& seance, std::string_view nom);
[[nodiscard]] ui::Controle& controle(const Seance& seance, std::string_view nom);
/// A form that is shown. Throws `Refus` if it is not.
[[nodiscard]] ui::Formulaire& fenetre(const Seance& seance, std::string_view nom);
/// A control that the user can reach: shown and enabled, on a form that is shown.
[[nodiscard]] ui::Controle& atteindre(const Seance& seance, std::string_view nom);
/// The form whose pop-up menu is open. Throws `Refus` if there is none.
[[nodiscard]] ui::Formulaire& formulairedumenu(const Seance& seance);
/// The entry is in a menu that is open.
[[nodiscard]] bool proposee(const ui::Controle& entree);
/// The form in front. Throws `Refus` if none is shown.
[[nodiscard]] ui::Formulaire& devant(const Seance& seance);

}  // namespace banc
