#pragma once

// The catalogue: the word lists that the menu offers, as data without a control. Panels, rows,
// captions and files never change while the program runs.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace menu {

/// The small picture to the left of a row.
enum class Insigne {
    aucun,
    verbe,  ///< Vb: verbs or conjugated forms
    chere,  ///< JKQ: racks that hold a dear letter
};

/// The form on which the lists of a row are worked.
enum class Ecran {
    form1,  ///< a rack has one solution
    multi,  ///< a rack has two to five solutions
};

/// A row of a panel: one list, whole and in parts.
struct Rangee {
    std::string_view libelle;  ///< caption, UTF-8
    std::string_view fichier;  ///< name in the folder of the lists, with its extension
    std::size_t parties = 0;   ///< 0, or 2 to 4: the parts are named a to d
    Insigne insigne = Insigne::aucun;
    Ecran ecran = Ecran::form1;
};

struct Panneau {
    std::string_view cle;  ///< what `panneau` holds while it is on show
    std::span<const Rangee> rangees;
    bool total = false;  ///< the sum of the sizes is shown
};

/// All panels, in the order of the menu. The row of the user's own list, which has no fixed name,
/// is in none of them.
[[nodiscard]] std::span<const Panneau> panneaux();

/// The panel of a key, or nothing.
[[nodiscard]] const Panneau* panneau(std::string_view cle);

/// The letter of a part, from 0.
[[nodiscard]] char lettredepartie(std::size_t partie);

/// The file of a part of a list: "_" and its letter stand before the extension.
[[nodiscard]] std::string fichierdepartie(std::string_view fichier, std::size_t partie);

/// Every fixed file of the catalogue: each list, followed by its parts.
[[nodiscard]] std::vector<std::string> fichiersfixes();

}  // namespace menu
