#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "formulaire.h"

namespace dialogs {

/// Dialog: the history of the results of a list. `Text1` is the box that fills the form; what the
/// user types in it is stored nowhere. Its close box makes it go away; as long as it is open, each
/// list asked for is added to the title and to the text.
class Dialog : public ui::Formulaire {
  public:
    /// `decharger` makes the form go away, and the next touch make it anew.
    Dialog(ui::Plateforme& plateforme, std::function<void()> decharger);

    /// Shows the form, then adds a list's name to its title.
    void montrer(std::string_view titre);
    /// Adds lines under those that the form holds.
    void ajouter(std::span<const std::string> lignes);
    /// Hides the form, which keeps its title and its text.
    void cacher() { visible = false; }

  private:
    std::function<void()> decharger_;
    ui::Controle& resultats_;
};

}  // namespace dialogs
