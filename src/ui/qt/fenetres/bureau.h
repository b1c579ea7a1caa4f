#pragma once

#include <functional>
#include <string_view>

#include <QString>

namespace ui {
class Formulaire;
}  // namespace ui

namespace ui::qt {

class Fenetre;

/// The windows of the program together, as far as one of them knows them.
class Bureau {
  public:
    Bureau() = default;
    Bureau(const Bureau&) = delete;
    Bureau& operator=(const Bureau&) = delete;
    virtual ~Bureau() = default;

    /// The window activated last, or another if that one is hidden; null if none is shown.
    [[nodiscard]] virtual Fenetre* enavant() const = 0;
    /// The window that dialogs stay in front of (`Formulaire::devant`): the one that was active or
    /// shown last and is no dialog itself. Null if none is shown.
    [[nodiscard]] virtual Fenetre* proprietaire() const = 0;
    /// The system's path of a picture.
    [[nodiscard]] virtual QString chemin(std::string_view image) const = 0;

    /// Runs an event in the model, then brings the windows up to date.
    virtual void executer(const std::function<void()>& evenement) = 0;
    /// Asks for a refresh of all windows, once the present event is over.
    virtual void demanderrafraichissement() = 0;

    /// The window has become the active one.
    virtual void activee(Fenetre& fenetre) = 0;
    /// The window, which is no dialog, is about to be shown.
    virtual void montree(Fenetre& fenetre) = 0;
    /// The window has come to the front; dialogs are raised above it.
    virtual void garderdevant(const Fenetre& fenetre) = 0;
    /// A window has been painted.
    virtual void peinte() = 0;
    /// The form is being destroyed; its window will delete itself.
    virtual void oublier(Fenetre& fenetre, Formulaire& formulaire) = 0;
};

}  // namespace ui::qt
