#pragma once

// Copies a player's folder to a dated folder where the player chooses, and brings a copy back.
// Whenever either is interrupted, the folder in play and the copy are both complete, under their
// own names or those given below.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "appels.h"
#include "calendrier.h"

namespace carnet {

/// Called with how much of the work is done, in thousandths. Returns false to stop it.
using Avancecopie = std::function<bool(int millemes)>;

struct Issue {
    enum class Etat { fait, arrete, refuse } etat = Etat::refuse;
    std::string ennui;              ///< why it was refused, in French
    std::filesystem::path dossier;  ///< what was made
    std::filesystem::path ancien;   ///< what stood in its place before, under its new name
    std::size_t fichiers = 0;
    std::vector<std::string>
        laisses;  ///< names in the folder that are not regular files, not copied
};

class Sauvegarde {
  public:
    /// `jeu`: the play folder. `appels` must outlive this.
    explicit Sauvegarde(std::filesystem::path jeu,
                        common::Appels& appels = common::appelsdusysteme())
        : jeu_(std::move(jeu)), appels_(&appels) {}

    /// Copies `<jeu>/<util>` to `<destination>/Orvane yyyy-mm-dd/<util>`, or to one with a number
    /// after the date if that is taken. The copy gets its name once it is complete.
    [[nodiscard]] Issue copier(const std::string& util, const std::filesystem::path& destination,
                               Jour jour, const Avancecopie& avance);

    /// What bringing back a copy would do.
    struct Retour {
        std::string ennui;       ///< why it is not a copy, in French; empty if it is one
        std::string util;        ///< the name of its folder
        bool existe = false;     ///< the player has a folder in play
        bool identique = false;  ///< with the same files
        bool risque = false;     ///< with results that the copy lacks
        std::string icijusqua;   ///< date of the last result in play, dd/mm/yyyy; empty: none
        std::string copiejusqua;
    };
    [[nodiscard]] Retour examiner(const std::filesystem::path& copie);

    /// Replaces the player's folder by a copy. The old one is kept as `<util> avant le yyyy-mm-dd`,
    /// with a number after the date if that is taken.
    [[nodiscard]] Issue remettre(const std::filesystem::path& copie, Jour jour,
                                 const Avancecopie& avance);
    /// Completes each `remettre` that was interrupted after the copying, if the player's name is
    /// free. Returns the players whose name is not: their copy waits under `dossierenattente`.
    [[nodiscard]] std::vector<std::string> achever();

  private:
    struct Contenu {
        std::vector<std::string> fichiers;  ///< sorted
        std::vector<std::string> laisses;
    };
    [[nodiscard]] std::error_code lister(const std::filesystem::path& dossier, Contenu& contenu);
    [[nodiscard]] bool existe(const std::filesystem::path& chemin);
    [[nodiscard]] bool transporter(const std::filesystem::path& source,
                                   const std::filesystem::path& cible, const Avancecopie& avance,
                                   Issue& issue);
    void effacer(const std::filesystem::path& dossier);
    [[nodiscard]] std::error_code nommer(const std::filesystem::path& ancien,
                                         const std::filesystem::path& nouveau);
    [[nodiscard]] std::string lire(const std::filesystem::path& fichier);

    std::filesystem::path jeu_;
    common::Appels* appels_;
};

/// The folder of a copy that waits for its name.
[[nodiscard]] std::string dossierenattente(std::string_view util);

}  // namespace carnet
