#include "etats.h"

namespace series {

namespace c = ui::couleurs;

Apparence apparence(Etattirage etat) {
    switch (etat) {
        case Etattirage::Courant:
            return {c::juste, "Tirage en cours"};
        case Etattirage::Solution:
            return {c::juste, "Solution"};
        case Etattirage::Faux:
            return {c::faux, "Faux"};
        case Etattirage::Incomplet:
            return {c::incomplet, "Incomplet"};
        case Etattirage::Repos:
            break;
    }
    return {c::tirageaurepos, {}};
}

Apparence apparence(Etatreponse etat) {
    switch (etat) {
        case Etatreponse::Courante:
            return {c::courante, "Réponse en cours"};
        case Etatreponse::Juste:
            return {c::juste, "Juste"};
        case Etatreponse::Fausse:
            return {c::faux, "Faux"};
        case Etatreponse::Attendue:
            return {c::tirageaurepos, "Mot attendu"};
        case Etatreponse::Repos:
            break;
    }
    return {c::solutionaurepos, {}};
}

Apparence apparencedelhorloge(bool arretee) {
    return arretee ? Apparence{c::juste, "Arrêté"} : Apparence{ui::Couleur::fenetre(), {}};
}

}  // namespace series
