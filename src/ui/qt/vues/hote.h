#pragma once

#include <functional>
#include <string_view>

#include <QFont>
#include <QString>

#include "echelle.h"

namespace ui::qt {

class Vue;

/// The window, as far as a view in it knows it.
class Hote {
  public:
    Hote() = default;
    Hote(const Hote&) = delete;
    Hote& operator=(const Hote&) = delete;
    virtual ~Hote() = default;

    /// How the design lies in the window at its present size.
    [[nodiscard]] virtual const Echelle& echelle() const = 0;
    /// The font for menus, at the window's scale.
    [[nodiscard]] virtual QFont fontedemenu() const = 0;
    /// Whether this window or its pop-up menu is the active one.
    [[nodiscard]] virtual bool active() const = 0;
    /// The system's path of a picture, given the path that a control holds.
    [[nodiscard]] virtual QString chemin(std::string_view image) const = 0;

    /// Runs an event in the model, then brings all windows up to date. Does nothing once the form
    /// is gone.
    virtual void executer(const std::function<void()>& evenement) = 0;
    /// Asks for `Vue::appliquer` at the next refresh.
    virtual void noter(Vue& vue) = 0;
};

}  // namespace ui::qt
