#pragma once

// The message boxes of the update check, as a journal shows them.

#include <string>

namespace essai {

inline const std::string ajour = "information Votre logiciel est à jour.";
inline const std::string echecverification =
    "exclamation Erreur durant la vérification. Votre navigateur va s'ouvrir sur la page d'Orvane.";
inline const std::string debuttelechargement =
    "information Le programme va télécharger la nouvelle version, cela peut prendre quelques "
    "secondes.";
inline const std::string echeclien =
    "exclamation Erreur durant le téléchargement automatisé, désolé. Votre navigateur va s'ouvrir "
    "sur la page d'Orvane, vous pourrez ensuite télécharger la dernière version.";
inline const std::string echecinstalleur =
    "information Votre navigateur va s'ouvrir sur la page d'Orvane, vous pourrez ensuite "
    "télécharger la dernière version.";
inline const std::string aurevoir =
    "information Orvane va maintenant se fermer et l'installation de la mise à jour va débuter. "
    "Suivez les instructions puis cochez \"Lancer Orvane\" à la fin pour le relancer.";

/// The question that offers a published version.
inline std::string proposer(const std::string& publiee) {
    return "question Votre version actuelle est 2.68\nLa mise à jour " + publiee +
           " est disponible. Voulez-vous la télécharger ?";
}

}  // namespace essai
