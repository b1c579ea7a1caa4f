#pragma once

// Parts of the program that stand in modules of their own, so that the libraries of the system that
// only they need are loaded at their first use, and a machine that lacks one still starts.

#include <QObject>

namespace ui::qt {

inline constexpr const char* moduleson = "orvane-son";
inline constexpr const char* modulereseau = "orvane-reseau";

/// What a module has to offer, loaded at the first call: from beside the program, from
/// `../lib/orvane`, or from a library path of Qt. Null, with a line on the error output, if it is
/// missing or cannot be loaded.
[[nodiscard]] QObject* module(const char* nom);

}  // namespace ui::qt
