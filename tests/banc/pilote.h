#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "formulaire.h"

namespace banc {

/// A key of the keyboard and the character that it types, if any.
struct Frappe {
    ui::Touche touche;
    std::optional<char32_t> caractere;
};

/// How what the user does reaches the program. The controls and forms given are shown and enabled:
/// who gives the order has looked.
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
    /// The keyboard brings the focus there.
    virtual void focaliser(ui::Controle& controle) = 0;
    /// A key goes down and up, to the form in front.
    virtual void frapper(const Frappe& frappe) = 0;
    /// Selects the whole text of the box that has the focus.
    virtual void selectionner(ui::Controle& boite) = 0;
    /// Picks an entry of a combo box; it is one of its entries.
    virtual void choisir(ui::Controle& liste, std::string_view entree) = 0;
    /// Picks an entry of the pop-up menu that is open, or closes it.
    virtual void choisirentree(ui::Controle& entree) = 0;
    virtual void fermermenu(ui::Formulaire& formulaire) = 0;
    /// The close box.
    virtual void fermer(ui::Formulaire& formulaire) = 0;
    /// A picture of the visible windows; false if there are none to be seen.
    [[nodiscard]] virtual bool capturer(const std::filesystem::path& fichier) = 0;
    /// Lets the screen follow what the program has just done. What went wrong there, if anything
    /// did.
    [[nodiscard]] virtual std::string poser() = 0;
    /// What the screen shows of a form, or of a control, otherwise than the model says; empty if
    /// it agrees.
    [[nodiscard]] virtual std::string desaccord(const ui::Formulaire& formulaire) = 0;
    [[nodiscard]] virtual std::string desaccord(const ui::Controle& controle) = 0;
};

}  // namespace banc
