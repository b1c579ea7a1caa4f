#pragma once

#include <functional>
#include <memory>

#include <QtPlugin>

#include "hautparleur.h"

namespace ui::qt {

/// A sound being played. Destroying it stops the sound.
class Lecture {
  public:
    Lecture() = default;
    Lecture(const Lecture&) = delete;
    Lecture& operator=(const Lecture&) = delete;
    virtual ~Lecture() = default;
};

/// The interface of the sound module.
class Son {
  public:
    Son() = default;
    Son(const Son&) = delete;
    Son& operator=(const Son&) = delete;
    virtual ~Son() = default;
    /// Starts a sound; `finir` is called when it has ended or the device has failed. Null if the
    /// machine cannot play it.
    [[nodiscard]] virtual std::unique_ptr<Lecture> jouer(const Onde& onde,
                                                         const std::function<void()>& finir) = 0;
};

}  // namespace ui::qt

Q_DECLARE_INTERFACE(ui::qt::Son, "orvane.Son/1")
