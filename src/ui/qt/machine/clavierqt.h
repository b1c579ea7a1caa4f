#pragma once

// Key events of Qt as the model names them.

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

/// Virtual key code of a character: its capital for a letter, itself for a digit or the blank,
/// 0 for any other.
[[nodiscard]] int codede(char32_t caractere);
/// Virtual key code of a key event; 0 if it has none.
[[nodiscard]] int codede(const QKeyEvent& evenement);
/// What a key means to the model: nothing for a key that neither has a code nor types (Shift, a
/// dead key), nor for a combination with Alt or the system's key. Ctrl types nothing; AltGr does.
[[nodiscard]] std::optional<Frappe> frappe(const QKeyEvent& evenement);
/// The characters of a text of Qt.
[[nodiscard]] std::vector<char32_t> caracteres(const QString& texte);

}  // namespace ui::qt
