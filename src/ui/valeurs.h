#pragma once

// The types of the values that properties hold.

#include <cstdint>
#include <string>

namespace ui {

/// A colour: #RRGGBB, or one of two colours of the system.
class Couleur {
  public:
    constexpr Couleur() = default;
    constexpr explicit Couleur(std::uint32_t rvb) : valeur_(rvb & 0xFFFFFFU) {}
    static constexpr Couleur fenetre() { return systeme(1); }  ///< window background
    static constexpr Couleur bouton() { return systeme(2); }   ///< button face

    /// 0xRRGGBB; a system colour has none.
    [[nodiscard]] constexpr std::uint32_t rvb() const { return valeur_ & 0xFFFFFFU; }
    friend constexpr bool operator==(const Couleur&, const Couleur&) = default;
    /// "#RRGGBB", "systeme:fenetre" or "systeme:bouton".
    [[nodiscard]] std::string nom() const;

  private:
    static constexpr Couleur systeme(std::uint32_t rang) {
        Couleur c;
        c.valeur_ = rang << 24U;
        return c;
    }
    std::uint32_t valeur_ = 0;
};

/// Colours with a fixed meaning on the series forms.
namespace couleurs {
inline constexpr Couleur tirageaurepos{0x80FFFF};
inline constexpr Couleur solutionaurepos{0xFFC080};
inline constexpr Couleur juste{0x80FF80};     ///< right; also the current rack, and a stopped clock
inline constexpr Couleur courante{0xFFFF80};  ///< answer box of the current rack
inline constexpr Couleur faux{0xFF8080};      ///< wrong; also the tiles at the end of a list
inline constexpr Couleur incomplet{0xFFC0C0};  ///< a rack whose only faults are boxes left blank
inline constexpr Couleur tuile{0xC0C0FF};      ///< also `quitter` at the end of a list
inline constexpr Couleur noir{0x000000};
inline constexpr Couleur parDefaut{0xFFE0C0};  ///< background of the forms
}  // namespace couleurs

enum class Pointeur : std::uint8_t { Normal, Fleche, Texte, Attente };
enum class Alignement : std::uint8_t { Gauche, Centre, Droite };

/// What a control is.
enum class Genre : std::uint8_t {
    Etiquette,  ///< label
    Boite,      ///< text box, of one line or several
    Bouton,
    Case,   ///< check box
    Liste,  ///< combo box with an editable text
    Image,
    Cadre,  ///< frame
    Ligne,
    Entree  ///< entry of a pop-up menu
};

/// The style in which a view draws a control; no rule reads it.
enum class Aspect : std::uint8_t {
    Courant,
    Tuile,      ///< letter tile
    Case,       ///< box of a rack or of an answer
    Horloge,    ///< clock or counter
    Principal,  ///< the main button of the form
    Titre
};

/// Virtual key codes that the rules name.
namespace touches {
inline constexpr int retour = 8;  ///< Backspace
inline constexpr int tab = 9;
inline constexpr int entree = 13;
inline constexpr int echap = 27;
inline constexpr int espace = 32;
inline constexpr int fin = 35;
inline constexpr int origine = 36;  ///< Home
inline constexpr int gauche = 37;
inline constexpr int haut = 38;
inline constexpr int droite = 39;
inline constexpr int bas = 40;
inline constexpr int suppr = 46;  ///< Delete
inline constexpr int f8 = 119;
inline constexpr int f12 = 123;
}  // namespace touches

}  // namespace ui
