#pragma once

#include "formulaire.h"

namespace dialogs {

/// Makes Escape close the form as its close box does, whichever control has the focus.
inline void fermerparechap(ui::Formulaire& form) {
    form.toucheenfoncee = [&form](ui::Touche& touche) {
        if (touche.code != ui::touches::echap)
            return;
        touche.avalee = true;
        form.fermer();
    };
}

}  // namespace dialogs
