#pragma once

#include <memory>
#include <string_view>

#include "faces.h"
#include "plateforme.h"

namespace application {

/// The program: holds the shared variables, makes each of the seven forms at its first touch and
/// joins them. It knows no window: the platform shows the forms.
class Application {
  public:
    explicit Application(ui::Plateforme& plateforme);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    ~Application();

    /// Starts the program: shows the first form.
    void demarrer();
    /// What the forms know of one another, for whoever drives the program from outside.
    [[nodiscard]] ui::Voisins& voisins();

  private:
    class Salle;
    std::unique_ptr<Salle> salle_;
};

}  // namespace application
