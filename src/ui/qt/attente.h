#pragma once

#include <functional>

class QEventLoop;

namespace ui::qt {

class Minuteur;

/// Waits in the middle of an event, as an operation that blocks would: no key or click comes
/// through, no timer ticks, but windows are redrawn. `lancer` gets the loop to leave; the wait ends
/// after `limite` milliseconds in any case. False if it was ended by that limit, or by the end of
/// the program.
[[nodiscard]] bool attendre(Minuteur& minuteur, int limite,
                            const std::function<void(QEventLoop&)>& lancer);

}  // namespace ui::qt
