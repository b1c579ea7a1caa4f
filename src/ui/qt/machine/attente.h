#pragma once

#include <functional>

namespace ui::qt {

class Minuteur;

/// Waits in the middle of an event, as an operation that blocks would: no key or click comes
/// through, no timer ticks, but windows are redrawn. `lancer` starts what is waited for and gets
/// what to call when that has come; calls after the wait do nothing. The wait ends after `limite`
/// milliseconds in any case. False if it was ended by that limit, or by the end of the program.
[[nodiscard]] bool attendre(Minuteur& minuteur, int limite,
                            const std::function<void(std::function<void()> finir)>& lancer);

}  // namespace ui::qt
