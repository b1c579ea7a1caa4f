#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "formserie.h"

namespace series {

/// Most racks of a sample.
inline constexpr int limiteechantillon = 900;
/// Letters of a solution that extend a rack with a joker, at most.
inline constexpr std::size_t limitevariantes = 26;

/// The words of a row to look up in the notes: its solution; in a list of extensions the whole
/// word, or with a joker one word for each letter of the solution. None if the kind of list does
/// not tell on which side the letters are added.
[[nodiscard]] std::vector<std::string> motsdesnotes(std::string_view tirage,
                                                    std::string_view solution, Nature nature);

/// The size of a sample, in racks: `demandee`. Throws `Faute` if that is more than the list has, or
/// more than `limiteechantillon`.
[[nodiscard]] int tailleechantillon(const Serie& serie, int demandee);

/// Form1: the series of racks with one solution.
///
/// The window: `tirage` are the racks and `solution` the answers, three columns of ten; `Command1`
/// the letter tiles; `temps` and `tempstot` the clocks; `Label5`, `seuiltxt` and `Label6` the
/// criterion, which `Command4` switches and `voyant` judges; `motsleft`, `nbftot`, `nbseries`,
/// `score` and `tps` the counters; `recherche` with `valider` a second line of entry; `Command3`
/// changes the font, `Command5` pauses, `Command6` goes compact; `InfoSourisText` shows notes.
class Form1 : public Formserie {
  public:
    Form1(ui::Plateforme& plateforme, const Voisins& voisins);

    void coloration() override;
    void commencer(std::string_view chemin) override;

  private:
    void ordonner();

    // form1_liste.cpp: the list, the criterion.
    void ouvrircritere();
    void changercritere();
    void fixercritere(bool secondes);

    // form1_saisie.cpp: focus, keys, the second line of entry.
    void branchersaisie();

    // form1_correction.cpp: marks, notes, judgement, word menu.
    void corrigerserie() override;
    [[nodiscard]] Correction jugerdepart(int boite) override;
    void marquer();
    void noter();
    void ouvrirmenu(int rang, bool surletirage);

    // form1_ecran.cpp: the two layouts.
    void disposer();
    void disposerboites();
    void passercompact();
    void rangernotes(bool listefinie) override;
    void placercritere();

    ui::Controle& Command6;
    std::int32_t nbmotsinitial_ = 0;
    Motsfaux motsfaux_;  ///< of the running list
    bool modecompact_ = false;
};

}  // namespace series
