#pragma once

#include <functional>
#include <string>

#include "formulaire.h"

namespace series {

/// The word menu of a corrected box (`MenuContextuel`): the word's definition, and its row into or
/// out of the revision file.
class Menumot {
  public:
    /// What the menu works on: the row in list format, and whether it stands in the file.
    struct Objet {
        std::string mot;    ///< as shown in the box
        std::string ligne;  ///< rack, ";", solution(s)
        bool definition = false;
        bool enrevision = false;
    };

    explicit Menumot(ui::Formulaire& formulaire);

    /// Path of the revision file of the running list.
    std::function<std::string()> fichier;
    /// Told when the row has come into the file (true) or gone from it.
    std::function<void(bool)> surrevision;

    void ouvrir(Objet objet);

  private:
    void definir();
    void ajouter();
    void supprimer();

    ui::Formulaire& formulaire_;
    ui::Menu& MenuContextuel_;
    ui::Controle& defsolu_;
    ui::Controle& addrevmenu_;
    ui::Controle& supprevmenu_;
    Objet objet_;
};

}  // namespace series
