#pragma once

// The desk of the simulated machine: the forms that exist, which one is in front, and the timers.

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

    /// A form has just been made. A view that it already has goes on being told of everything.
    void accueillir(ui::Formulaire& formulaire);
    /// The form of a name, if it has been made and not unloaded.
    [[nodiscard]] ui::Formulaire* trouver(std::string_view nom) const;
    [[nodiscard]] std::vector<ui::Formulaire*> formulaires() const;
    /// The form in front, which hears the keyboard; none if none is shown.
    [[nodiscard]] ui::Formulaire* actif() const;
    /// Puts a form in front of the others.
    void activer(ui::Formulaire& formulaire);
    /// A second goes by: the running timers of all forms tick in the order of their names, those
    /// that started in this second left out, until `fini` says that the program has ended. Each
    /// tick goes through `executer`.
    void seconde(const std::function<void(const std::function<void()>&)>& executer,
                 const std::function<bool()>& fini);

  private:
    class Place;

    void oublier(const Place& place);

    std::vector<std::unique_ptr<Place>> places_;  ///< the form in front comes last
    std::vector<const ui::Minuterie*> fraiches_;  ///< started or stopped in this second
    /// Without real windows nobody else tells a form that another one came in front.
    bool simulees_ = true;
};

}  // namespace banc
