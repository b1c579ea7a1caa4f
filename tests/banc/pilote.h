#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "formulaire.h"

namespace banc {

/// A key and the character that it types, if any.
struct Frappe {
    ui::Touche touche;
    std::optional<char32_t> caractere;
};

/// Performs on the program what the user does. Callers make sure that the controls and forms that
/// they pass are visible and enabled.
class Pilote {
  public:
    Pilote() = default;
    Pilote(const Pilote&) = delete;
    Pilote& operator=(const Pilote&) = delete;
    virtual ~Pilote() = default;

    virtual void cliquer(ui::Controle& controle) = 0;
    virtual void doublecliquer(ui::Controle& controle) = 0;
    virtual void survoler(ui::Controle& controle) = 0;
    virtual void relacher(ui::Controle& controle) = 0;
    /// Moves the focus to a control with the keyboard.
    virtual void focaliser(ui::Controle& controle) = 0;
    /// Presses and releases a key, for the form in front.
    virtual void frapper(const Frappe& frappe) = 0;
    /// Selects the whole text of the box that has the focus.
    virtual void selectionner(ui::Controle& boite) = 0;
    /// Picks an existing entry of a combo box.
    virtual void choisir(ui::Controle& liste, std::string_view entree) = 0;
    /// Picks an entry of the open pop-up menu.
    virtual void choisirentree(ui::Controle& entree) = 0;
    virtual void fermermenu(ui::Formulaire& formulaire) = 0;
    /// Clicks the close box.
    virtual void fermer(ui::Formulaire& formulaire) = 0;
    /// Writes a picture of the visible windows; false if the driver has no windows.
    [[nodiscard]] virtual bool capturer(const std::filesystem::path& fichier) = 0;
    /// Lets the screen catch up with what the program has just done. Returns what went wrong there;
    /// empty if nothing.
    [[nodiscard]] virtual std::string poser() = 0;
    /// How the screen differs from the model of a form or of a control; empty if it does not.
    [[nodiscard]] virtual std::string desaccord(const ui::Formulaire& formulaire) = 0;
    [[nodiscard]] virtual std::string desaccord(const ui::Controle& controle) = 0;
};

}  // namespace banc
