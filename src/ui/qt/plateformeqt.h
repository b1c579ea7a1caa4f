#pragma once

#include <string>
#include <string_view>

#include "disquereel.h"
#include "fenetrier.h"
#include "hasard.h"
#include "plateforme.h"
#include "telechargement.h"

namespace ui::qt {

/// The player's machine: its disk, clock, random numbers, sound, network and shell, and windows of
/// Qt. The application object of Qt must outlive it.
class PlateformeQt : public Plateforme {
  public:
    explicit PlateformeQt(Telechargement::Limites limites = {});

    common::Disque& disque() override { return disque_; }
    common::Hasard& hasard() override { return hasard_; }
    [[nodiscard]] common::Instant maintenant() override;
    void ouvrir(std::string_view cible) override;
    [[nodiscard]] bool telecharger(std::string_view adresse, std::string_view chemin,
                                   const Exigence& exigence) override;
    [[nodiscard]] std::string dossierprogramme() override;
    void accueillir(Formulaire& formulaire) override { fenetrier_.accueillir(formulaire); }

    /// Whether the program is installed: it then runs in its player's folder, and writes nothing to
    /// that of its executable (`dossierprogramme`).
    void installee(bool installee) { installee_ = installee; }

    [[nodiscard]] Fenetrier& fenetrier() { return fenetrier_; }

  protected:
    void sonner() override;
    [[nodiscard]] Reponse demander(std::string_view texte, Icone icone, bool ouinon) override;
    void jouer(std::string_view fichier) override;
    void pomper() override;
    void rapporter(std::string_view rapport) override;
    void arreter(int statut) override;

  private:
    common::DisqueReel disque_;
    common::HasardReel hasard_;
    Fenetrier fenetrier_;
    Telechargement telechargement_;
    bool installee_ = false;
};

}  // namespace ui::qt
