#include "vues.h"

#include "boite.h"
#include "boitelongue.h"
#include "bouton.h"
#include "casecochee.h"
#include "decor.h"
#include "etiquette.h"
#include "fenetre.h"
#include "liste.h"

namespace ui::qt {
namespace {

template <class V>
Vue* faire(Fenetre& fenetre, Controle& controle) {
    return new V(fenetre, fenetre, controle);  // owned by the window
}

Vue* faireboite(Fenetre& fenetre, Controle& controle) {
    return controle.multiligne ? faire<BoiteLongue>(fenetre, controle)
                               : faire<Boite>(fenetre, controle);
}

}  // namespace

Vue* nouvellevue(Fenetre& fenetre, Controle& controle) {
    switch (controle.genre()) {
        case Genre::Etiquette:
            return faire<Etiquette>(fenetre, controle);
        case Genre::Boite:
            return faireboite(fenetre, controle);
        case Genre::Bouton:
            return faire<Bouton>(fenetre, controle);
        case Genre::Case:
            return faire<CaseCochee>(fenetre, controle);
        case Genre::Liste:
            return faire<Liste>(fenetre, controle);
        case Genre::Image:
            return faire<Image>(fenetre, controle);
        case Genre::Cadre:
            return faire<Cadre>(fenetre, controle);
        case Genre::Ligne:
            return faire<Ligne>(fenetre, controle);
        case Genre::Entree:
            break;
    }
    return nullptr;
}

}  // namespace ui::qt
