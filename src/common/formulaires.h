#pragma once

// The small faces that forms show one another. `application` holds the real
// ones and makes a form at the first touch of it.

#include <cstdint>
#include <string>
#include <string_view>

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
    /// Gives the form its background colour, #RRGGBB.
    virtual void donnerfond(std::uint32_t rvb) = 0;
};

/// What the series forms and the options see of the menu (`Form3`).
class FaceMenu {
  public:
    FaceMenu() = default;
    FaceMenu(const FaceMenu&) = delete;
    FaceMenu& operator=(const FaceMenu&) = delete;
    virtual ~FaceMenu() = default;
    virtual void montrer() = 0;
    /// Reads the results again and rewrites the table.
    virtual void maj() = 0;
    /// The menu's background colour, #RRGGBB.
    [[nodiscard]] virtual std::uint32_t fond() = 0;
    virtual void donnerfond(std::uint32_t rvb) = 0;
    /// The check box `app` ("Apprentissage") is ticked.
    [[nodiscard]] virtual bool app() = 0;
};

/// What the other forms see of the options (`Dialog2`).
class FaceOptions {
  public:
    FaceOptions() = default;
    FaceOptions(const FaceOptions&) = delete;
    FaceOptions& operator=(const FaceOptions&) = delete;
    virtual ~FaceOptions() = default;
    /// The check box `Check1` ("Son") is ticked.
    [[nodiscard]] virtual bool check1() = 0;
    /// Puts a colour name in `Combo1`.
    virtual void choisircouleur(std::string_view nom) = 0;
    /// Applies the colour named in `Combo1` to the forms.
    virtual void Combo1_Click() = 0;
    /// Opens the options in front of the other forms, without blocking them.
    virtual void ouvrir() = 0;
};

}  // namespace common
