#pragma once

#include <cstdint>

#include "faces.h"
#include "formulaire.h"

namespace profiles {

/// Form2: the login. The list of users (`user`), the button that starts (`Command1`), and the
/// entry of a new name (`Command2` opens it; `Label5`, `Text2`, `Label3`, `Command3`).
class Form2 : public ui::Formulaire {
  public:
    Form2(ui::Plateforme& plateforme, common::VariablesForm3& form3, ui::FaceMenu& menu,
          ui::FaceSerie& form1);

    /// Reads the users and takes the background colour of the last one. Stops without a word at a
    /// file that is missing or cannot be read.
    void charger();
    /// Shows a text about the author, then ends the program after a countdown.
    void apropos();

  private:
    void dresser();
    void brancher();
    void montrersaisie(bool montree);
    void saisirnouveau();
    void accepternouveau();
    void connecter();
    void decompter();

    common::VariablesForm3& form3_;
    ui::FaceMenu& menu_;
    ui::FaceSerie& form1_;
    ui::Controle& titre_;
    ui::Controle& image_;
    ui::Controle& utilisateur_;
    ui::Controle& user_;
    ui::Controle& commencer_;
    ui::Controle& nouveau_;
    ui::Controle& invite_;
    ui::Controle& nom_;
    ui::Controle& conseil_;
    ui::Controle& ok_;
    ui::Controle& texte_;
    ui::Controle& quitter_;
    ui::Controle& compte_;
    ui::Minuterie& minuterie_;
    std::int16_t decompte_ = 0;
};

}  // namespace profiles
