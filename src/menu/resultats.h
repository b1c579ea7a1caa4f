#pragma once

// From the records of `hist.dat` to one result for each row of the panel on show.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tableau.h"
#include "valeurs.h"

namespace menu {

/// The result of a row, as shown: both texts are empty for a list that was never run.
struct Resultat {
    std::string date;   ///< dd/mm/yyyy - HH:MM
    std::string texte;  ///< percentage, "% - ", and T, E, Ts, a, b, c or d
};
using Resultats = std::array<Resultat, nblignes>;

/// The last record of each list of a panel, and of each part of a list. `voir` takes the records in
/// Windows-1252, oldest first, and ignores damaged ones and those of revision runs. `listes` is not
/// kept.
class Derniers {
  public:
    explicit Derniers(std::span<const Liste> listes);
    void voir(std::string_view record);
    /// The last record of the whole list of a row; empty if it has none.
    [[nodiscard]] const std::string& liste(std::size_t rangee) const;
    /// The last record of a part (from 0) of the list of a row; empty if it has none.
    [[nodiscard]] const std::string& partie(std::size_t rangee, std::size_t partie) const;

  private:
    struct Case {
        std::string nom;
        std::string record;
    };
    /// A quick test whether a record may end with a name.
    struct Signe {
        std::uint64_t bout;    ///< the last bytes of the name, at most eight
        std::uint64_t masque;  ///< ones in the bytes that `bout` has
        std::size_t place;     ///< in `cases_`
    };
    void ajouter(std::string_view nom);

    std::vector<Case> cases_;           ///< row by row: the list, then its parts
    std::vector<std::size_t> rangees_;  ///< index in `cases_` of the list of each row
    /// By the byte of the name before ".txt", the fifth from its end, which tells names apart best.
    /// A shorter name is listed under every byte.
    std::array<std::vector<Signe>, 256> parcaractere_;
};

/// Updates the results of the rows of a panel. A row gets the result of its whole list; or the mean
/// of its parts, if all parts have a record and that of the last part is of a later day; or, if it
/// would still be empty, the result of the last part that has one. A row without a record stays as
/// it is.
void actualiser(Resultats& resultats, std::span<const Liste> listes, const Derniers& derniers);

/// The colour of a result: green from `seuilch` percent, red under `seuilcb`, otherwise orange;
/// nothing for an empty text.
[[nodiscard]] std::optional<ui::Couleur> teinte(std::string_view texte, int seuilch, int seuilcb);
/// The French name of such a colour, for assistive technologies; empty for any other colour.
[[nodiscard]] std::string_view nomdelateinte(ui::Couleur couleur);

}  // namespace menu
