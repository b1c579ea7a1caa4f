#pragma once

// The desktop of the simulated machine: the existing forms, which one is in front, and the timers.

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "formulaire.h"

namespace banc {

class Bureau {
  public:
    Bureau();
    Bureau(const Bureau&) = delete;
    Bureau& operator=(const Bureau&) = delete;
    ~Bureau();

    /// A form has just been created. If it already has a view, that view is still told of changes.
    void accueillir(ui::Formulaire& formulaire);
    /// The form with a name; null if it was not created, or was unloaded.
    [[nodiscard]] ui::Formulaire* trouver(std::string_view nom) const;
    [[nodiscard]] std::vector<ui::Formulaire*> formulaires() const;
    /// The form in front, which gets the keys; null if no form is visible.
    [[nodiscard]] ui::Formulaire* actif() const;
    /// Puts a form in front of the others.
    void activer(ui::Formulaire& formulaire);
    /// A second passes: the running timers of all forms tick in order of their names, except those
    /// that started in this second, until `fini` says that the program has ended. Each tick runs
    /// inside `executer`.
    void seconde(const std::function<void(const std::function<void()>&)>& executer,
                 const std::function<bool()>& fini);

  private:
    class Place;

    void oublier(const Place& place);

    std::vector<std::unique_ptr<Place>> places_;  ///< the form in front comes last
    std::vector<const ui::Minuterie*> fraiches_;  ///< started or stopped in this second
    /// There are no real windows, so this class tells a form that another came to the front.
    bool simulees_ = true;
};

}  // namespace banc
