#include "pilotemodele.h"

namespace banc {

void PiloteModele::sur(ui::Controle& controle, const std::function<void()>& evenement) {
    plateforme_.executer([&] {
        plateforme_.bureau.activer(controle.formulaire());
        controle.formulaire().fermermenu();  // a click elsewhere closes it
        evenement();
    });
}

void PiloteModele::cliquer(ui::Controle& controle) {
    sur(controle, [&] {
        controle.formulaire().cliquer(controle);
        if (controle.formulaire().visible() && ui::Formulaire::accessible(controle))
            ui::survenir(controle, controle.relache);  // a click ends with the button going up
    });
}

void PiloteModele::doublecliquer(ui::Controle& controle) {
    sur(controle, [&] { controle.formulaire().doublecliquer(controle); });
}

void PiloteModele::survoler(ui::Controle& controle) {
    plateforme_.executer([&] { ui::survenir(controle, controle.survol); });
}

void PiloteModele::relacher(ui::Controle& controle) {
    plateforme_.executer([&] { ui::survenir(controle, controle.relache); });
}

void PiloteModele::focaliser(ui::Controle& controle) {
    sur(controle, [&] { controle.formulaire().focaliser(controle); });
}

void PiloteModele::frapper(const Frappe& frappe) {
    plateforme_.executer([&] {
        if (auto* formulaire = plateforme_.bureau.actif())
            formulaire->enfoncer(frappe.touche, frappe.caractere);
    });
    plateforme_.executer([&] {
        if (auto* formulaire = plateforme_.bureau.actif())  // another one may have come in front
            formulaire->relacher(frappe.touche.code);
    });
}

void PiloteModele::selectionner(ui::Controle& boite) {
    plateforme_.executer([&] { boite.toutselectionner(); });
}

void PiloteModele::choisir(ui::Controle& liste, std::string_view entree) {
    sur(liste, [&] {
        liste.formulaire().focaliser(liste);
        ui::Formulaire::choisir(liste, entree);
    });
}

void PiloteModele::choisirentree(ui::Controle& entree) {
    plateforme_.executer([&] { entree.formulaire().choisirentree(entree); });
}

void PiloteModele::fermermenu(ui::Formulaire& formulaire) {
    plateforme_.executer([&] { formulaire.fermermenu(); });
}

void PiloteModele::fermer(ui::Formulaire& formulaire) {
    plateforme_.executer([&] { formulaire.fermer(); });
}

}  // namespace banc
