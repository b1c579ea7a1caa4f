#pragma once

// What a page says or asks in a box of its own.

#include <string>

#include <QString>

class QWidget;

namespace carnet {

void avertir(QWidget* parent, const QString& texte);
/// Asks; `oui` is the caption of the button that agrees, "Annuler" is the default one.
[[nodiscard]] bool confirmer(QWidget* parent, const QString& texte, const QString& oui);
/// Asks where to save a file, `nom` in the home folder to begin with; a name that is typed without
/// an extension gets that of `nom`. Empty if the player gives up.
[[nodiscard]] QString ouenregistrer(QWidget* parent, const QString& titre, const QString& nom,
                                    const QString& filtre);
/// Writes a whole file in one step; false, once it has been said why, if it stays as it was.
[[nodiscard]] bool ecrirefichier(QWidget* parent, const QString& chemin, const std::string& octets);

}  // namespace carnet
