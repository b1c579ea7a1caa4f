#pragma once

// The catalogue: the word lists that the menu offers, as data without a control. A panel is one row
// of one table, with everything that is told of it; panels, rows, captions and files never change
// while the program runs.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace menu {

/// The small picture to the left of a row.
enum class Insigne : std::uint8_t {
    aucun,
    verbe,  ///< Vb: verbs or conjugated forms
    chere,  ///< JKQ: racks that hold a high-value letter
};

/// The form on which the lists of a row are worked.
enum class Ecran : std::uint8_t {
    form1,  ///< a rack has one solution
    multi,  ///< a rack has two to five solutions
};

/// A row of a panel: one list, whole and in parts.
struct Rangee {
    std::string_view libelle;   ///< caption, UTF-8
    std::string_view fichier;   ///< name in the folder of the lists, with its extension
    std::size_t parties = 0;    ///< 0, or 2 to 4: the parts are named a to d
    std::size_t solutions = 1;  ///< of a rack, 1 to 5
    Insigne insigne = Insigne::aucun;
    /// What the help box shows, lines separated by a line feed; empty: it keeps what it shows.
    std::string_view aidetout{};     ///< over "Tout": how the list was made
    std::string_view aidelibelle{};  ///< over its caption: what the list is for

    [[nodiscard]] constexpr Ecran ecran() const {
        return solutions > 1 ? Ecran::multi : Ecran::form1;
    }
};

/// A set of second-level buttons that are shown together. Each group has a button that shows it;
/// that of the high-value letter stands among the racks with one solution.
enum class Groupe : std::uint8_t {
    aucun,  ///< the button is always shown
    uniques,
    chere,
    multiples,
    autres
};

/// A button of the menu.
struct Bouton {
    std::string_view nom;  ///< design name
    int index = -1;        ///< in its control array, -1 if it stands alone
    std::string_view libelle;
    Groupe groupe = Groupe::aucun;  ///< it stands among these
    int largeur = 0;                ///< twips; 0: the width of the buttons that are always shown
};

/// The button that shows the buttons of a group.
struct Boutondegroupe {
    Bouton bouton;
    Groupe montre{};
};

struct Panneau {
    std::string_view cle;  ///< what tells it from the others
    Bouton bouton;         ///< opens it
    std::span<const Rangee> rangees{};
    bool total = false;         ///< the sum of the sizes is shown
    std::string_view typ{};     ///< what `typ` holds while one of its lists is worked
    std::size_t etape = 0;      ///< at which a sample of its lists is launched, from 0
    std::string_view aide{};    ///< what its opening writes in the help box; empty: nothing
    bool personnel = false;     ///< its last row, one more, is the user's own list
    bool images = false;        ///< it shows the buttons of the two pictures (`Command11`)
    bool nombredecale = false;  ///< the sizes stand a little to the right
    /// The rows with parts share the first part buttons, in order; otherwise a row has its own.
    bool partiesserrees = false;
};

/// All panels, in the order of the menu. The row of the user's own list, which has no fixed name,
/// is in none of them.
[[nodiscard]] std::span<const Panneau> panneaux();

/// The panel of a key, or nothing.
[[nodiscard]] const Panneau* panneau(std::string_view cle);

/// The buttons that show a group, in the order of the menu.
[[nodiscard]] std::span<const Boutondegroupe> boutonsdegroupe();

/// The letter of a part, from 0.
[[nodiscard]] char lettredepartie(std::size_t partie);

/// The file of a part of a list: "_" and its letter stand before the extension.
[[nodiscard]] std::string fichierdepartie(std::string_view fichier, std::size_t partie);

/// Every fixed file of the catalogue: each list, followed by its parts.
[[nodiscard]] std::vector<std::string> fichiersfixes();

}  // namespace menu
