#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "adresses.h"
#include "faces.h"
#include "partage.h"
#include "plateforme.h"

namespace dialogs {

/// Two versions are the same if their numeric values (`common::valeur`) are equal: "2.680" is
/// "2.68", but "2,68" is 2.
[[nodiscard]] bool memeversion(std::string_view locale, std::string_view publiee);

/// The addresses that the update check uses.
struct Publication {
    std::string version{common::adresses::version};      ///< address of the version file
    std::string lien{common::adresses::lien};            ///< address of the link file
    std::string page{common::adresses::telechargement};  ///< page that the browser opens
};

/// The update check: compares the program's version with the published one and, if the player
/// agrees, downloads the installer, opens it and ends the program. The version file is saved in the
/// program's folder; the link and the installer are saved in the working folder and must come from
/// a safe address (`ui::Exigence::sure`). docs/formats.md describes the published files.
class MiseAJour {
  public:
    MiseAJour(ui::Plateforme& plateforme, const common::VariablesForm3& form3, ui::FaceMenu& menu,
              Publication publication = {})
        : plateforme_(plateforme),
          form3_(form3),
          menu_(menu),
          publication_(std::move(publication)) {}

    /// Runs the whole check. Throws `Faute` if the downloaded version file cannot be read.
    void verifier();

  private:
    [[nodiscard]] bool proposer(std::string_view publiee);
    void telecharger(const std::optional<std::string>& somme);
    void installer();
    void ouvrirpage(std::string_view explication, ui::Icone icone);
    [[nodiscard]] std::optional<std::string> lirelien();
    [[nodiscard]] std::string dansdossierprogramme(std::string_view fichier);

    ui::Plateforme& plateforme_;
    const common::VariablesForm3& form3_;
    ui::FaceMenu& menu_;
    Publication publication_;
};

}  // namespace dialogs
