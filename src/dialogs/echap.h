#pragma once

#include "formulaire.h"

namespace dialogs {

/// Makes Escape do what the form's close box does, whichever control has the focus.
inline void fermerparechap(ui::Formulaire& form) {
    form.toucheenfoncee = [&form](ui::Touche& touche) {
        if (touche.code != ui::touches::echap)
            return;
        touche.avalee = true;
        form.fermer();
    };
}

}  // namespace dialogs
