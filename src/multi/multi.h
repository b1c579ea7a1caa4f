#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "correctionmulti.h"
#include "formserie.h"

namespace multi {

/// The size of a sample, in racks: `demandee`, or the size of the list if that is smaller. Throws
/// `Faute` for a list of more than `common::rangeesmulti` rows, or a sample of more than
/// `limiteechantillon`.
[[nodiscard]] int tailleechantillon(const series::Serie& serie, int demandee);

/// The solutions of a run, as if each rack had the most of its list. Throws `Faute` if they exceed
/// 16 bits.
[[nodiscard]] std::int16_t totaldessolutions(const series::Serie& serie);

/// Multi: the series of racks with several solutions.
///
/// The window: `tirage` are the racks, from top to bottom; to the right of each stand the boxes for
/// its answers (`solution`), one column for each solution. The other parts have the same names as
/// on `Form1`, except `nbftotal`: the faults, out of the solutions of the run. There is no compact
/// mode.
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
    std::int16_t nbmotstotal_ = 0;  ///< as `totaldessolutions`
};

}  // namespace multi
