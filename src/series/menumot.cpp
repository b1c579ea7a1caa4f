#include "menumot.h"

#include <array>
#include <utility>

#include "adresses.h"
#include "revision.h"
#include "texte.h"

namespace series {

Menumot::Menumot(ui::Formulaire& formulaire)
    : formulaire_(formulaire),
      MenuContextuel_(formulaire.ajoutermenu("MenuContextuel")),
      defsolu_(formulaire.ajouter(ui::Genre::Entree, "defsolu")),
      addrevmenu_(formulaire.ajouter(ui::Genre::Entree, "addrevmenu")),
      supprevmenu_(formulaire.ajouter(ui::Genre::Entree, "supprevmenu")) {
    defsolu_.texte = "Définition";
    addrevmenu_.texte = "Ajouter au fichier de révision";
    supprevmenu_.texte = "Supprimer du fichier de révision";
    defsolu_.clic = [this] { definir(); };
    addrevmenu_.clic = [this] { ajouter(); };
    supprevmenu_.clic = [this] { supprimer(); };
    MenuContextuel_.entrees = {&defsolu_, &addrevmenu_, &supprevmenu_};
}

void Menumot::ouvrir(Objet objet) {
    objet_ = std::move(objet);
    defsolu_.actif = objet_.definition;
    addrevmenu_.actif = !objet_.enrevision;
    supprevmenu_.actif = objet_.enrevision;
    formulaire_.ouvrirmenu(MenuContextuel_);
}

void Menumot::definir() {
    formulaire_.plateforme().ouvrir(std::string(common::adresses::definitions) +
                                    common::minuscules(objet_.mot));
}

void Menumot::ajouter() {
    const std::array lignes{objet_.ligne};
    ajouterenrevision(formulaire_.plateforme().disque(), fichier(), lignes);
    surrevision(true);
    formulaire_.plateforme().message(objet_.ligne + " ajouté au fichier de révision");
}

void Menumot::supprimer() {
    retirerderevision(formulaire_.plateforme().disque(), fichier(), objet_.ligne);
    surrevision(false);
    formulaire_.plateforme().message(objet_.ligne + " a été effacé du fichier de révision");
}

}  // namespace series
