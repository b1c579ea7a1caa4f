#pragma once

// The catalogue: the word lists that the menu offers, as constant data. All that is known of a
// panel stands in one row of one table.

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

/// What the answers of a list are made of. During play the title of the list tells the same
/// (`series::naturedelaliste`).
enum class Reponses : std::uint8_t {
    mots,      ///< words with the letters of their rack
    devant,    ///< extensions: letters that make a word in front of the rack
    derriere,  ///< extensions: letters that make a word behind it
    benjamin,  ///< three letters that make a word in front of the rack
};

/// A row of a panel: one list, whole and in parts.
struct Rangee {
    std::string_view libelle;   ///< caption, UTF-8
    std::string_view fichier;   ///< name in the folder of the lists, with its extension
    std::size_t parties = 0;    ///< 0, or 2 to 4, named from a to d
    std::size_t solutions = 1;  ///< of a rack, 1 to `common::solutionsmulti`
    Insigne insigne = Insigne::aucun;
    /// Texts of the help box, lines separated by a line feed. Empty: the box stays as it is.
    std::string_view aidetout{};     ///< over "Tout": how the list was made
    std::string_view aidelibelle{};  ///< over its caption: what the list is for
    Reponses reponses = Reponses::mots;

    [[nodiscard]] constexpr Ecran ecran() const {
        return solutions > 1 ? Ecran::multi : Ecran::form1;
    }
};

/// A set of second-level buttons that are shown together. Each group has a button that shows it: a
/// first-level button, but for the high-value letters, whose button is one of the group `uniques`.
enum class Groupe : std::uint8_t {
    aucun,  ///< no group: a first-level button
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
    Groupe groupe = Groupe::aucun;  ///< the group that it belongs to
    int largeur = 0;                ///< twips; 0: the width of the first-level buttons
};

/// The button that shows the buttons of a group.
struct Boutondegroupe {
    Bouton bouton;
    Groupe montre{};
};

/// A page of the menu: its button, its lists, and what is special about it.
struct Panneau {
    std::string_view cle;  ///< unique, for code and tests; no player sees it
    Bouton bouton;         ///< opens it
    std::span<const Rangee> rangees{};
    bool total = false;         ///< the sum of the sizes is shown
    std::string_view typ{};     ///< what `typ` holds while one of its lists is worked
    std::size_t etape = 0;      ///< stage at which a sample is launched, from 0 (lancement.h)
    std::string_view aide{};    ///< shown in the help box when the panel opens; empty: none
    bool personnel = false;     ///< the user's own list follows these rows
    bool images = false;        ///< shows the buttons of the two pictures (`Command11`)
    bool nombredecale = false;  ///< the column of sizes stands a little to the right
    /// The first row with parts takes the first set of part buttons, the second one the second, and
    /// so on. Otherwise each row takes the set with its own number.
    bool partiesserrees = false;
};

/// All panels, in the order of the menu, without the row of the user's own list.
[[nodiscard]] std::span<const Panneau> panneaux();

/// The panel with this key; null if there is none.
[[nodiscard]] const Panneau* panneau(std::string_view cle);

/// The row of a list, given the file of the whole list or of a part; null for any other file.
[[nodiscard]] const Rangee* rangeedefichier(std::string_view fichier);

/// The buttons that show a group, in the order of the menu.
[[nodiscard]] std::span<const Boutondegroupe> boutonsdegroupe();

/// The letter of part `partie`: 0 is a.
[[nodiscard]] char lettredepartie(std::size_t partie);

/// The file of a part of the list `fichier`, which has an extension: `3lc.txt` becomes `3lc_a.txt`.
[[nodiscard]] std::string fichierdepartie(std::string_view fichier, std::size_t partie);

/// The files of all lists, each followed by the files of its parts.
[[nodiscard]] std::vector<std::string> fichiersfixes();

}  // namespace menu
