#pragma once

// Translates the key events of Qt for the model.

#include <optional>
#include <string>
#include <vector>

#include "controle.h"

class QKeyEvent;
class QString;

namespace ui::qt {

/// A key of the keyboard and the characters that it types, in order.
struct Frappe {
    Touche touche;
    std::vector<char32_t> caracteres;
};

/// Virtual key code of a character: the code of its capital for a letter, its own for a digit or
/// the space, 0 for any other.
[[nodiscard]] int codede(char32_t caractere);
/// Virtual key code of a key event; 0 if it has none.
[[nodiscard]] int codede(const QKeyEvent& evenement);
/// The key and the characters that an event reports to the model. Nothing for a key that has no
/// code and types nothing (Shift, a dead key) or is combined with Alt or the system's key. A key
/// combined with Ctrl types no character, one combined with AltGr does.
[[nodiscard]] std::optional<Frappe> frappe(const QKeyEvent& evenement);
/// The characters of a text of Qt.
[[nodiscard]] std::vector<char32_t> caracteres(const QString& texte);

}  // namespace ui::qt
