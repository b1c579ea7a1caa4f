#pragma once

#include <QString>

namespace ui::qt {

/// Opens a file with the program that the system has for it, or runs it if it is a program; a
/// failure is ignored. `chemin` is absolute. One source a system.
void ouvrirfichier(const QString& chemin);

}  // namespace ui::qt
