#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bureau.h"
#include "disquesimule.h"
#include "hasardsimule.h"
#include "plateforme.h"

namespace banc {

/// What the program has asked of the machine since each member was last read.
struct Journal {
    std::vector<std::string> messages;    ///< texts of message boxes
    std::vector<std::string> sons;        ///< sounds played
    std::vector<std::string> ouvertures;  ///< addresses and files opened by the shell
    int bips = 0;
};

/// A machine that a scenario controls: clock, chance, disk, network, sound, shell, message boxes,
/// timers.
class PlateformeSimulee : public ui::Plateforme {
  public:
    explicit PlateformeSimulee(const std::filesystem::path& dossier,
                               common::Appels& appels = common::appelsdusysteme())
        : disque_(dossier, appels) {}

    [[nodiscard]] DisqueSimule& disque() override { return disque_; }
    [[nodiscard]] HasardSimule& hasard() override { return hasard_; }
    [[nodiscard]] common::Instant maintenant() override { return instant_; }
    void ouvrir(std::string_view cible) override { journal.ouvertures.emplace_back(cible); }
    [[nodiscard]] bool telecharger(std::string_view adresse, std::string_view chemin,
                                   const ui::Exigence& exigence) override;
    void accueillir(ui::Formulaire& formulaire) override;

    void regler(const common::Instant& instant) { instant_ = instant; }
    /// Lets seconds pass, with the ticks of the timers, unless the program ends before.
    void avancer(int secondes);
    /// Adds an answer; message boxes take the answers in order.
    void repondre(ui::Reponse reponse) { reponses_.push_back(reponse); }
    /// A download from an address that ends with `fin` gives this file of the working folder, or
    /// fails if there is none.
    void relier(std::string_view fin, std::optional<std::string> fichier);
    /// The report of the fault that ended the program; nothing if none did.
    [[nodiscard]] const std::optional<std::string>& rapport() const { return rapport_; }
    /// Reports an answer given to a message box without such a button; empty once read.
    [[nodiscard]] std::string incident() { return std::exchange(incident_, {}); }

    Journal journal;
    Bureau bureau;
    /// Gives a form its window, before `bureau` learns of the form; empty without windows.
    std::function<void(ui::Formulaire&)> fenetre;
    /// Lets the pending events of the windows run.
    std::function<void()> pompe;
    /// Shows a message box and presses the button of an answer; returns the answer received.
    std::function<ui::Reponse(std::string_view, ui::Icone, bool ouinon, ui::Reponse)> boite;
    /// Shows the report of a fault.
    std::function<void(std::string_view)> affichage;
    /// SHA-256 of bytes, as 64 hexadecimal digits in lower case. If empty, no checksum ever
    /// matches.
    std::function<std::string(std::string_view)> somme;

  protected:
    void sonner() override { ++journal.bips; }
    [[nodiscard]] ui::Reponse demander(std::string_view texte, ui::Icone icone,
                                       bool ouinon) override;
    void jouer(std::string_view fichier) override { journal.sons.emplace_back(fichier); }
    void pomper() override;
    void rapporter(std::string_view rapport) override;
    void arreter(int /*statut*/) override {}

  private:
    [[nodiscard]] ui::Reponse reponsesuivante(std::string_view texte, bool ouinon);
    [[nodiscard]] bool convient(std::string_view octets, const ui::Exigence& exigence) const;

    struct Adresse {
        std::string fin;
        std::optional<std::string> fichier;
    };

    DisqueSimule disque_;
    HasardSimule hasard_;
    common::Instant instant_{2026, 1, 15, 10, 0, 0};
    std::deque<ui::Reponse> reponses_;
    std::vector<Adresse> reseau_;
    std::optional<std::string> rapport_;
    std::string incident_;
};

}  // namespace banc
