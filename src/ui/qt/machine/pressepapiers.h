#pragma once

#include <QClipboard>

namespace ui {
class Controle;
}  // namespace ui

namespace ui::qt {

// Copy, cut and paste for a text box of one line. Cut and paste run handlers of the form, so they
// are called within an event (`Hote::executer`). Copy and cut leave the clipboard unchanged if
// nothing is selected.

void copier(const Controle& boite, QClipboard::Mode bloc = QClipboard::Clipboard);
/// Does nothing if the box does not allow it or does not have the focus.
void couper(const Controle& boite);
/// Does nothing if the box does not allow it or does not have the focus.
void coller(const Controle& boite, QClipboard::Mode bloc = QClipboard::Clipboard);

}  // namespace ui::qt
