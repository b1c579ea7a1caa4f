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

/// Two versions are the same when their numeric values are: "2.680" is "2.68", "2,68" is 2.
[[nodiscard]] bool memeversion(std::string_view locale, std::string_view publiee);

/// Where the update check looks.
struct Publication {
    std::string version{common::adresses::version};      ///< address of the version file
    std::string lien{common::adresses::lien};            ///< address of the link file
    std::string page{common::adresses::telechargement};  ///< what the browser opens
};

/// The update check: compares the program's version with the published one, and on the player's
/// word downloads the installer, opens it and ends the program. All of it runs in one call. The
/// version file goes to the program's folder; the link and the installer go to the working folder,
/// and come from a safe address only (`ui::Exigence`). What is published, and where it lies, is
/// told in docs/formats.md.
class MiseAJour {
  public:
    MiseAJour(ui::Plateforme& plateforme, const common::VariablesForm3& form3, ui::FaceMenu& menu,
              Publication publication = {})
        : plateforme_(plateforme),
          form3_(form3),
          menu_(menu),
          publication_(std::move(publication)) {}

    /// Throws `Faute` if the version file that was downloaded cannot be read.
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
