#pragma once

#include <QClipboard>

namespace ui {
class Controle;
}  // namespace ui

namespace ui::qt {

// Copy, cut and paste of a box of one line, by whatever way the user asks for them. Cut and paste
// run handlers, and belong in `Fenetre::executer`. Without a selection the clipboard keeps what it
// holds.

void copier(const Controle& boite, QClipboard::Mode bloc = QClipboard::Clipboard);
/// Nothing if the box refuses, or has lost the focus.
void couper(const Controle& boite);
void coller(const Controle& boite, QClipboard::Mode bloc = QClipboard::Clipboard);

}  // namespace ui::qt
