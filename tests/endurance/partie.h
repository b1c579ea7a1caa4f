#pragma once

// A run of the program under the orders of a random player, with its witnesses.

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "constats.h"
#include "machine.h"
#include "suivi.h"

namespace endurance {

class Partie {
  public:
    /// `jeu`: where the program's pictures are.
    explicit Partie(const std::filesystem::path& jeu);

    /// Carries out an order of the bench and checks what it has left. False once the program has
    /// ended or something is wrong.
    bool donner(const std::string& ordre, const std::vector<std::string>& lignes = {});
    /// The next order may launch this list.
    void annoncer(Lancement lancement) { annonce_ = std::move(lancement); }
    /// The next order has to end the program with a report that holds this text.
    void attendrefaute(std::string texte) { fauteattendue_ = std::move(texte); }

    [[nodiscard]] bool finie() const { return seance_.plateforme.fini(); }
    [[nodiscard]] const Constats& constats() const { return constats_; }
    /// The orders so far, as the text of a scenario.
    [[nodiscard]] std::string scenario(std::size_t derniers) const;
    [[nodiscard]] std::size_t ordres() const { return trace_.size(); }
    [[nodiscard]] int series() const { return series_; }
    [[nodiscard]] int listes() const { return listes_; }

    [[nodiscard]] banc::Seance& seance() { return seance_; }
    [[nodiscard]] const ui::Formulaire* formulaire(std::string_view nom) const {
        return seance_.plateforme.bureau.trouver(nom);
    }
    /// The form is there and shown.
    [[nodiscard]] bool montre(std::string_view nom) const;
    /// The series form that is shown; null for none.
    [[nodiscard]] const Suivi* serie() const;
    [[nodiscard]] const Ecran& ecran(bool multi) const { return fiches_.at(multi ? 1 : 0).ecran; }

  private:
    /// What is known of one of the two series forms.
    struct Fiche {
        const char* nom;
        Suivi suivi;
        std::optional<Lecteurecran> lecteur;
        Ecran ecran;
    };

    [[nodiscard]] Fiche fiche(const char* nom, bool multi);
    void verifier(const banc::Ordre& ordre, const std::string& reponse);
    void verifierfiche(Fiche& fiche, const Moment& moment);
    void verifierfin(const banc::Ordre& ordre);
    [[nodiscard]] bool fauteprevue(const std::string& rapport, const banc::Ordre& ordre) const;
    [[nodiscard]] Fichiers lirefichiers(const std::string& revision) const;
    [[nodiscard]] std::vector<std::string> lignesde(const std::string& chemin) const;

    fuzz::Machine machine_;
    banc::Seance& seance_;
    std::array<Fiche, 2> fiches_;
    Constats constats_;
    std::vector<std::string> trace_;
    std::optional<Lancement> annonce_;
    std::string fauteattendue_;
    Fichiers fichiers_;
    std::string revision_;  ///< path of the one in `fichiers_`
    std::string util_;      ///< whose they are
    common::Instant instant_;
    int ecritures_ = -1;
    int series_ = 0;
    int listes_ = 0;
};

}  // namespace endurance
