#pragma once

// Public variables of the menu and of the options, read by every form.

#include <cstdint>
#include <string>
#include <string_view>

namespace common {

/// Kinds of run, as `toue` holds them; a part of a list has the empty text.
namespace modes {
inline constexpr std::string_view tout = "T";
inline constexpr std::string_view echantillon = "E";
inline constexpr std::string_view revision = "R";
inline constexpr std::string_view partie;
}  // namespace modes

/// Suffix of `nombase` during a revision run.
inline constexpr std::string_view titrerevision = " (révisions)";

/// Value of `typ` on the panel of rallonges.
inline constexpr std::string_view typrallonges = "rallong";

/// The colour name that replaces every unknown one.
inline constexpr std::string_view couleurpardefaut = "Par défaut";

/// Public variables of `Form3` (the menu).
struct VariablesForm3 {
    std::string util;          ///< user name, and the name of the user's folder
    std::string toue;          ///< kind of run, one of `modes`
    std::string typ;           ///< `typrallonges` or empty
    std::string nombase;       ///< title of the list
    std::string listerevisee;  ///< list file that a revision run belongs to
    bool persomulti = false;   ///< racks of the personal list have several solutions
    std::string couleurdufond{couleurpardefaut};  ///< name of the background colour
    std::string versionlocale;
    std::string dateversion;
};

/// Public variables of `Dialog2` (the options).
struct VariablesDialog2 {
    std::int16_t seuilch = 0;        ///< percent from which a result is green
    std::int16_t seuilcb = 0;        ///< percent under which a result is red
    std::int16_t tempsparmot = 0;    ///< seconds a word
    std::int16_t nbechantillon = 0;  ///< series in a sample
    std::int16_t son = 0;
    std::int16_t saisieassistee = 0;
    std::int16_t nbechuni = 0;  ///< sample sizes, in racks, by number of solutions
    std::int16_t nbechduo = 0;
    std::int16_t nbechtri = 0;
    std::int16_t nbechqua = 0;
    std::int16_t nbechqui = 0;

    /// Sets the five sample sizes for a number of series. Throws `Faute` past 16 bits.
    void affecterechantillons(std::int16_t nbser);
};

}  // namespace common
