#pragma once

// A player's folder, copied to a dated folder of the player's choice and brought back. Whatever
// stops it at whatever moment: the folder in play and the copy are there, each whole, under their
// own names or those told below.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "appels.h"
#include "calendrier.h"

namespace carnet {

/// Is told how far the work is, in thousandths; false stops it.
using Avancecopie = std::function<bool(int millemes)>;

struct Issue {
    enum class Etat { fait, arrete, refuse } etat = Etat::refuse;
    std::string ennui;              ///< why it was refused, in French
    std::filesystem::path dossier;  ///< what was made
    std::filesystem::path ancien;   ///< what stood in its place before, under its new name
    std::size_t fichiers = 0;
    std::vector<std::string> laisses;  ///< names in the folder that are no plain files
};

class Sauvegarde {
  public:
    /// `jeu`: the play folder. `appels` must outlive this.
    explicit Sauvegarde(std::filesystem::path jeu,
                        common::Appels& appels = common::appelsdusysteme())
        : jeu_(std::move(jeu)), appels_(&appels) {}

    /// Copies `<jeu>/<util>` to `<destination>/Orvane yyyy-mm-dd/<util>`, or to one with a number
    /// behind the date if that is taken. The copy gets its name once it is whole.
    [[nodiscard]] Issue copier(const std::string& util, const std::filesystem::path& destination,
                               Jour jour, const Avancecopie& avance);

    /// What bringing back a copy would do.
    struct Retour {
        std::string ennui;       ///< why it is no copy, in French; empty: it is one
        std::string util;        ///< the name of its folder
        bool existe = false;     ///< the player has a folder in play
        bool identique = false;  ///< with the same files
        bool risque = false;     ///< with results that the copy lacks
        std::string icijusqua;   ///< date of the last result in play, dd/mm/yyyy; empty: none
        std::string copiejusqua;
    };
    [[nodiscard]] Retour examiner(const std::filesystem::path& copie);

    /// Puts a copy in the place of the player's folder. That one stays, as `<util> avant le
    /// yyyy-mm-dd`, or with a number behind the date.
    [[nodiscard]] Issue remettre(const std::filesystem::path& copie, Jour jour,
                                 const Avancecopie& avance);
    /// Ends a bringing back that was stopped when all was copied and the name was free. The players
    /// whose copy waits beside a folder of their name, under `dossierenattente`.
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
