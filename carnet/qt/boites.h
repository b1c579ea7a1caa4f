#pragma once

// What a page says or asks in a box of its own.

#include <QString>

class QWidget;

namespace carnet {

void avertir(QWidget* parent, const QString& texte);
/// Asks; `oui` is the caption of the button that agrees, "Annuler" is the default one.
[[nodiscard]] bool confirmer(QWidget* parent, const QString& texte, const QString& oui);

}  // namespace carnet
