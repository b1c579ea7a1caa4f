#pragma once

#include <functional>

namespace ui::qt {

class Minuteur;

/// Waits in the middle of an event, as a blocking call would: no key or click is delivered and no
/// timer ticks, but windows are redrawn. `lancer` starts the operation; it receives the function to
/// call when the operation is over, which does nothing once the wait has ended. The wait lasts
/// `limite` milliseconds at most. Returns false if that limit or the end of the program ended it.
[[nodiscard]] bool attendre(Minuteur& minuteur, int limite,
                            const std::function<void(std::function<void()> finir)>& lancer);

}  // namespace ui::qt
