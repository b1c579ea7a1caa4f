#pragma once

// The small faces that forms show one another. `application` holds the real
// ones and makes a form at the first touch of it.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "partage.h"

namespace common {

/// What the menu sees of a series form (`Form1`, `Multi`).
class FaceSerie {
  public:
    FaceSerie() = default;
    FaceSerie(const FaceSerie&) = delete;
    FaceSerie& operator=(const FaceSerie&) = delete;
    virtual ~FaceSerie() = default;
    /// Gives the form the hourglass pointer (which makes the form if it is not there yet).
    virtual void patienter() = 0;
    /// Brings the labels to the background colour.
    virtual void coloration() = 0;
    virtual void montrer() = 0;
    /// Loads the list and draws the first series.
    virtual void commencer(std::string_view chemin) = 0;
    /// Enables or disables the box of the threshold (`seuiltxt`).
    virtual void activerseuil(bool actif) = 0;
    /// Gives the form its background colour, 0xRRGGBB.
    virtual void donnerfond(std::uint32_t rvb) = 0;
};

/// What the other forms see of the menu (`Form3`).
class FaceMenu {
  public:
    FaceMenu() = default;
    FaceMenu(const FaceMenu&) = delete;
    FaceMenu& operator=(const FaceMenu&) = delete;
    virtual ~FaceMenu() = default;
    virtual void montrer() = 0;
    /// Reads the results again and rewrites the table.
    virtual void maj() = 0;
    /// The menu's background colour, 0xRRGGBB.
    [[nodiscard]] virtual std::uint32_t fond() = 0;
    virtual void donnerfond(std::uint32_t rvb) = 0;
    /// The check box `app` ("Apprentissage") is ticked.
    [[nodiscard]] virtual bool app() = 0;
    /// Writes the help box (`Label11`).
    virtual void aide(std::string_view texte) = 0;
    /// The busy pointer, or the normal one.
    virtual void patienter(bool attente) = 0;
};

/// What the other forms see of the options (`Dialog2`).
class FaceOptions {
  public:
    FaceOptions() = default;
    FaceOptions(const FaceOptions&) = delete;
    FaceOptions& operator=(const FaceOptions&) = delete;
    virtual ~FaceOptions() = default;
    /// The check box `Check1` ("Son") is ticked. Loads the form, hidden, if it is not there.
    [[nodiscard]] virtual bool check1() = 0;
    /// Puts a colour name in `Combo1` and applies it to the forms (`Combo1_Click`).
    virtual void choisircouleur(std::string_view nom) = 0;
    /// Opens the options in front of the other forms, without blocking them.
    virtual void ouvrir() = 0;
};

/// What the menu sees of the history (`Dialog`).
class FaceHistorique {
  public:
    FaceHistorique() = default;
    FaceHistorique(const FaceHistorique&) = delete;
    FaceHistorique& operator=(const FaceHistorique&) = delete;
    virtual ~FaceHistorique() = default;
    /// Shows the form, then adds a list's name to its title.
    virtual void montrer(std::string_view titre) = 0;
    /// Adds lines under those that the form holds.
    virtual void ajouter(std::span<const std::string> lignes) = 0;
};

/// What the menu sees of the about panel (`Dialog1`) and of the update check.
class FaceApropos {
  public:
    FaceApropos() = default;
    FaceApropos(const FaceApropos&) = delete;
    FaceApropos& operator=(const FaceApropos&) = delete;
    virtual ~FaceApropos() = default;
    /// Shows the text about the program.
    virtual void apropos() = 0;
    /// Shows the picture of a button `Command11`: 1 the racks of 7 letters, otherwise of 8.
    virtual void montrerimage(int index) = 0;
    /// Compares the program's version with the published one.
    virtual void verifiermiseajour() = 0;
};

/// Everything a form may know of the others.
struct Voisins {
    VariablesForm3& form3;
    VariablesDialog2& dialog2;
    FaceMenu& menu;
    FaceOptions& options;
    FaceSerie& form1;
    FaceSerie& multi;
    FaceHistorique& historique;
    FaceApropos& apropos;
    /// Lines of the journal of racks that the disk has not taken yet, as bytes of that file.
    std::string journalenattente{};
};

}  // namespace common
