#pragma once

// Parts of the program that are loaded at their first use, with the system libraries that only they
// need: the program starts faster, and also on a machine that lacks such a library.

#include <QObject>

namespace ui::qt {

inline constexpr const char* moduleson = "orvane-son";
inline constexpr const char* modulereseau = "orvane-reseau";

/// The root object of a module, to be cast to the interface that it implements. The first call
/// loads the module: from the program's own folder, from `../lib/games/orvane` beside it, or from a
/// library path of Qt. Null, with a line on the error output, if it is missing or fails to load.
[[nodiscard]] QObject* module(const char* nom);

}  // namespace ui::qt
