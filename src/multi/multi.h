#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formserie.h"
#include "jugement.h"

namespace multi {

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

    // multi_liste.cpp: the list, the criterion.
    void ouvrircritere();
    void changercritere();
    [[nodiscard]] int tailleechantillon() const;
    [[nodiscard]] std::int16_t totaliser() const;
    [[nodiscard]] std::vector<std::string> solutionsdelarangee(int rang) const;
    [[nodiscard]] std::string lignedelaliste(int rang) const override;

    // Entry of answers.
    [[nodiscard]] std::optional<int> boitevoisine(int rang, int code) const override;
    [[nodiscard]] std::string tirageasaisir(int place) const override;
    void rendreletirage(int place) override;
    [[nodiscard]] bool occupee(int place) const override;

    // multi_correction.cpp: judgement, marks and notes, word menu.
    void corrigerserie() override;
    int jugertirages(int nombre);
    bool corrigertirage(int place, std::vector<Ratee>& ratees);
    void montrer(int place, const Verdict& verdict);
    void juger(int place, int rang, std::vector<Ratee>& ratees);
    void jugerboite(int rang) override;
    [[noreturn]] void deborder(int place, Debordement debordement) const;
    void annoterboites();
    void ouvrirmenudesolution(int rang);
    void ouvrirmenudetirage(int place);

    // multi_ecran.cpp: the layout.
    void disposer();
    void disposercolonne();
    void rangernotes(bool listefinie) override;

    [[nodiscard]] std::size_t nbsolutions() const;
    /// The answer box of a word (from 0) of a rack place.
    [[nodiscard]] ui::Controle& boite(int place, std::size_t mot) const;

    Ratages ratages_;
    std::int16_t nbmotstotal_ = 0;  ///< solutions of the run, each rack counted as a full one
};

}  // namespace multi
