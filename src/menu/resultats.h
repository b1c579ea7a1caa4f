#pragma once

// How the records of `hist.dat` are boiled down to one result a row of the panel on show.

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

/// The last record of each list of a panel and of each of its parts. Records are shown to it
/// oldest first, as bytes of Windows-1252; those of revision runs and damaged ones pass by. It
/// keeps the texts, not the lists.
class Derniers {
  public:
    explicit Derniers(std::span<const Liste> listes);
    void voir(std::string_view record);
    /// The last record of a row's whole list; empty if it has none.
    [[nodiscard]] const std::string& liste(std::size_t rangee) const;
    /// The last record of a part, from 0, of a row.
    [[nodiscard]] const std::string& partie(std::size_t rangee, std::size_t partie) const;

  private:
    struct Case {
        std::string nom;
        std::string record;
    };
    /// What tells at a glance that a record may end with a name.
    struct Signe {
        std::uint64_t bout;    ///< the last bytes of the name
        std::uint64_t masque;  ///< which of them it has
        std::size_t place;     ///< in `cases_`
    };
    void ajouter(std::string_view nom);

    std::vector<Case> cases_;           ///< of each row in turn: the list, then its parts
    std::vector<std::size_t> rangees_;  ///< place of each row in `cases_`
    /// By the character that tells names apart best: the fifth from the end, before ".txt".
    /// Shorter names stand under every character.
    std::array<std::vector<Signe>, 256> parcaractere_;
};

/// Rewrites the results of a panel's rows from its last records. It only overwrites: a row without
/// a record keeps what it shows. Whole lists come first; the mean of the parts takes the place of
/// an earlier day's result; a row still empty shows the furthest part done.
void actualiser(Resultats& resultats, std::span<const Liste> listes, const Derniers& derniers);

/// The colour of a result, by the two thresholds in percent; nothing for an empty text.
[[nodiscard]] std::optional<ui::Couleur> teinte(std::string_view texte, int seuilch, int seuilcb);
/// The name of such a colour, for those who hear the table; empty for any other.
[[nodiscard]] std::string_view nomdelateinte(ui::Couleur couleur);

}  // namespace menu
