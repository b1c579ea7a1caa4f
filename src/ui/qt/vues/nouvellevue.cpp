#include "nouvellevue.h"

#include "boite.h"
#include "boitelongue.h"
#include "bouton.h"
#include "casecochee.h"
#include "decor.h"
#include "etiquette.h"
#include "formulaire.h"
#include "images.h"
#include "liste.h"

namespace ui::qt {
namespace {

template <class V>
Vue* faire(QWidget& parent, Hote& hote, Controle& controle) {
    return new V(parent, hote, controle);  // owned by its parent
}

Vue* faireboite(QWidget& parent, Hote& hote, Controle& controle) {
    return controle.multiligne ? faire<BoiteLongue>(parent, hote, controle)
                               : faire<Boite>(parent, hote, controle);
}

}  // namespace

Vue* nouvellevue(QWidget& parent, Hote& hote, Controle& controle) {
    switch (controle.genre()) {
        case Genre::Etiquette:
            return faire<Etiquette>(parent, hote, controle);
        case Genre::Boite:
            return faireboite(parent, hote, controle);
        case Genre::Bouton:
            return faire<Bouton>(parent, hote, controle);
        case Genre::Case:
            return faire<CaseCochee>(parent, hote, controle);
        case Genre::Liste:
            return faire<Liste>(parent, hote, controle);
        case Genre::Image:
            return faire<Image>(parent, hote, controle);
        case Genre::Cadre:
            return faire<Cadre>(parent, hote, controle);
        case Genre::Ligne:
            return faire<Ligne>(parent, hote, controle);
        case Genre::Entree:
            break;
    }
    return nullptr;
}

void annoncerimage(const Hote& hote, const Formulaire& formulaire, double densite) {
    for (const auto& c : formulaire.controles()) {
        if (c->genre() != Genre::Image || !c->visible() || c->image().empty())
            continue;
        const auto cadre =
            hote.echelle().cadre({c->gauche(), c->haut(), c->largeur(), c->hauteur()});
        annoncer(hote.chemin(c->image()), cadre.size(), densite);
        return;
    }
}

}  // namespace ui::qt
