#pragma once

#include <functional>
#include <string_view>

#include <QString>

namespace ui {
class Formulaire;
}  // namespace ui

namespace ui::qt {

class Fenetre;

/// What a window knows of the others: which stand where, and whom to tell of its own doings.
class Bureau {
  public:
    Bureau() = default;
    Bureau(const Bureau&) = delete;
    Bureau& operator=(const Bureau&) = delete;
    virtual ~Bureau() = default;

    /// The window that is in front, or was last; null if none is shown.
    [[nodiscard]] virtual Fenetre* enavant() const = 0;
    /// The window that those of forms that stay in front belong to: of the others the one that was
    /// active or shown last. Null if none is shown.
    [[nodiscard]] virtual Fenetre* proprietaire() const = 0;
    /// The system's path of a picture.
    [[nodiscard]] virtual QString chemin(std::string_view image) const = 0;

    /// Runs an event in the model, then brings the windows up to date.
    virtual void executer(const std::function<void()>& evenement) = 0;
    /// Asks for a refresh of all windows as soon as events run.
    virtual void demanderrafraichissement() = 0;

    /// The user has come to work in a window.
    virtual void activee(Fenetre& fenetre) = 0;
    /// A window that others may belong to is about to show itself.
    virtual void montree(Fenetre& fenetre) = 0;
    /// A window has come in front of the others: those of forms that stay in front go over it.
    virtual void garderdevant(const Fenetre& fenetre) = 0;
    /// A window was painted.
    virtual void peinte() = 0;
    /// The form is gone, and its window will delete itself.
    virtual void oublier(Fenetre& fenetre, Formulaire& formulaire) = 0;
};

}  // namespace ui::qt
