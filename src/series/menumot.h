#pragma once

#include <functional>
#include <string>

#include "formulaire.h"

namespace series {

/// The word menu of a corrected box (`MenuContextuel`): looks up the definition of the word, adds
/// its row to the revision file or removes it.
class Menumot {
  public:
    /// The word that the menu is opened for.
    struct Objet {
        std::string mot;          ///< as shown in the box
        std::string ligne;        ///< its row, in list format
        bool definition = false;  ///< the menu offers its definition
        bool enrevision = false;  ///< the row is in the revision file
    };

    explicit Menumot(ui::Formulaire& formulaire);

    /// Path of the revision file of the running list.
    std::function<std::string()> fichier;
    /// Called when the row has been added to the file (true) or removed from it (false).
    std::function<void(bool)> surrevision;

    /// Opens the menu. A choice that fails to read or write the file throws `Faute`.
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
