#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "correctionmulti.h"
#include "formserie.h"

namespace multi {

/// Size of the sample of a list: what the options ask for its number of solutions, cut down to the
/// list. Throws `Faute` for a list, or a sample, that is too large.
[[nodiscard]] int tailleechantillon(const series::Serie& serie, int demandee);

/// Solutions of the run, each rack counted as a full one. Throws `Faute` past 16 bits.
[[nodiscard]] std::int16_t totaldessolutions(const series::Serie& serie);

/// Multi: the series of racks with several solutions.
///
/// The window: `tirage` are the racks, top to bottom, each with its answers (`solution`) to the
/// right of it, one column a solution; the other parts bear the names that they have on `Form1`,
/// but for `nbftotal`, the faults out of the solutions of the run. There is no compact mode.
class Multi : public series::Formserie {
  public:
    Multi(ui::Plateforme& plateforme, const Voisins& voisins);

    void coloration() override;
    void commencer(std::string_view chemin) override;

  private:
    void ordonner();
    void branchersaisie();
    void validerrecherche() override;

    // multi_liste.cpp: the list, the criterion.
    void ouvrircritere();
    void changercritere();
    [[nodiscard]] int taillevoulue() const;

    // multi_correction.cpp: judgement, marks and notes, word menu.
    void corrigerserie() override;
    [[nodiscard]] series::Correction jugerdepart(int boite) override;
    void annoterboites();
    void ouvrirmenudesolution(int rang);
    void ouvrirmenudetirage(int place);

    // multi_ecran.cpp: the layout.
    void disposer();
    void disposercolonne();
    void rangernotes(bool listefinie) override;

    /// The answer box of a word (from 0) of a rack place.
    [[nodiscard]] ui::Controle& boite(int place, std::size_t mot) const;

    Ratages ratages_;
    std::int16_t nbmotstotal_ = 0;  ///< solutions of the run, each rack counted as a full one
};

}  // namespace multi
