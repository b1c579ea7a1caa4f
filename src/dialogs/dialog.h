#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "formulaire.h"

namespace dialogs {

/// Dialog: the history of the results of lists. `Text1` is the box that fills the form; what the
/// user types in it is not kept. While it is open, each further list is added to its title and
/// text. Closing it destroys it.
class Dialog : public ui::Formulaire {
  public:
    /// `decharger` destroys the form; the next use makes a new one.
    Dialog(ui::Plateforme& plateforme, std::function<void()> decharger);

    /// Shows the form, then adds a list's name to its title.
    void montrer(std::string_view titre);
    /// Adds lines (UTF-8) below those that the form shows.
    void ajouter(std::span<const std::string> lignes);
    /// Hides the form, which keeps its title and its text.
    void cacher() { visible = false; }

  private:
    std::function<void()> decharger_;
    ui::Controle& resultats_;
};

}  // namespace dialogs
