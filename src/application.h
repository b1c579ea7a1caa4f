#pragma once

#include <memory>
#include <string_view>

#include "faces.h"
#include "plateforme.h"

namespace application {

/// The program: holds the shared variables, makes each of the seven forms when it is first used,
/// and gives it the others. It knows nothing of windows; the platform shows the forms.
class Application {
  public:
    explicit Application(ui::Plateforme& plateforme);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    ~Application();

    /// Starts the program: shows the first form.
    void demarrer();
    /// The faces of the forms, for a test or a benchmark that drives the program.
    [[nodiscard]] ui::Voisins& voisins();

  private:
    class Salle;
    std::unique_ptr<Salle> salle_;
};

}  // namespace application
