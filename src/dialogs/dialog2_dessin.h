#pragma once

// The drawing of `Dialog2`: places, sizes and fixed texts. No rule reads it.

#include "formulaire.h"

namespace dialogs {

/// Colour of the message area: warm, and readable on each of the six backgrounds.
inline constexpr ui::Couleur couleurdumessage{0x8C1500};

/// Makes the labels of fixed text, and gives every control of the form its place.
void dessinerdialog2(ui::Formulaire& form);

}  // namespace dialogs
