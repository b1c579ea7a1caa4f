#pragma once

#include "pilote.h"
#include "plateformesimulee.h"

namespace banc {

/// Drives the control model, without windows.
class PiloteModele : public Pilote {
  public:
    explicit PiloteModele(PlateformeSimulee& plateforme) : plateforme_(plateforme) {}

    void cliquer(ui::Controle& controle) override;
    void doublecliquer(ui::Controle& controle) override;
    void survoler(ui::Controle& controle) override;
    void relacher(ui::Controle& controle) override;
    void focaliser(ui::Controle& controle) override;
    void frapper(const Frappe& frappe) override;
    void selectionner(ui::Controle& boite) override;
    void choisir(ui::Controle& liste, std::string_view entree) override;
    void choisirentree(ui::Controle& entree) override;
    void fermermenu(ui::Formulaire& formulaire) override;
    void fermer(ui::Formulaire& formulaire) override;
    [[nodiscard]] bool capturer(const std::filesystem::path& /*fichier*/) override { return false; }
    [[nodiscard]] std::string poser() override { return {}; }
    [[nodiscard]] std::string desaccord(const ui::Formulaire& /*formulaire*/) override {
        return {};
    }
    [[nodiscard]] std::string desaccord(const ui::Controle& /*controle*/) override { return {}; }

  private:
    /// Runs a mouse event on a control, whose form first comes to the front.
    void sur(ui::Controle& controle, const std::function<void()>& evenement);

    PlateformeSimulee& plateforme_;
};

}  // namespace banc
