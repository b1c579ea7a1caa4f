#pragma once

#include <string>
#include <vector>

#include "formulaire.h"
#include "plateformesimulee.h"

namespace essais {

/// A form of three boxes, a button, a check box and a label, in that order of Tab but for the
/// label. What happens to its controls is written down: "solution(0)+" entered, "solution(0)-"
/// left, "valider!" clicked.
class FormulaireTemoin : public ui::Formulaire {
  public:
    explicit FormulaireTemoin(ui::Plateforme& plateforme) : Formulaire(plateforme, "Form1") {
        for (int i = 0; i < 3; ++i)
            suivre(ajouter(ui::Genre::Boite, "solution", i));
        suivre(ajouter(ui::Genre::Bouton, "valider"));
        suivre(ajouter(ui::Genre::Case, "app"));
        suivre(ajouter(ui::Genre::Etiquette, "score"));
        tabulation({&boite(0), &boite(1), &boite(2), &valider(), &app()});
    }

    [[nodiscard]] ui::Controle& boite(int index) const { return controle("solution", index); }
    [[nodiscard]] ui::Controle& valider() const { return controle("valider"); }
    [[nodiscard]] ui::Controle& app() const { return controle("app"); }
    [[nodiscard]] ui::Controle& score() const { return controle("score"); }
    /// Types letters, each as a key of its own.
    void taper(const std::string& lettres) {
        for (const char lettre : lettres) {
            enfoncer({lettre}, static_cast<char32_t>(lettre));
            relacher(lettre);
        }
    }
    void touche(int code, bool maj = false, bool ctrl = false) {
        enfoncer({code, maj, ctrl});
        relacher(code);
    }
    /// What has happened since the last reading.
    std::vector<std::string> journal() { return std::exchange(journal_, {}); }
    void noter(const std::string& fait) { journal_.push_back(fait); }

  private:
    void suivre(ui::Controle& controle) {
        const auto nomducontrole = controle.nomcomplet();
        controle.entree = [this, nomducontrole] { noter(nomducontrole + "+"); };
        controle.sortie = [this, nomducontrole] { noter(nomducontrole + "-"); };
        controle.clic = [this, nomducontrole] { noter(nomducontrole + "!"); };
    }
    std::vector<std::string> journal_;
};

}  // namespace essais
