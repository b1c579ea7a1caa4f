#include "aides.h"

#include <algorithm>
#include <array>

namespace menu {
namespace {

struct Aidefixe {
    std::string_view controle;  ///< design name
    std::string_view texte;
};

constexpr std::string_view parties =
    "Boutons a/b/c/d :\nSubdivisions de la base pour pouvoir la travailler plus facilement.\nLeur "
    "contenu est fixe.";

constexpr std::array aidesfixes{
    Aidefixe{"coma", parties},
    Aidefixe{"comb", parties},
    Aidefixe{"comc", parties},
    Aidefixe{"comd", parties},
    Aidefixe{"Command6", "Echantillon aléatoire (150 mots par défaut, voir les options)"},
    Aidefixe{"Command22",
             "Toutes les erreurs que vous faites sont ajoutées dans un fichier de révisions "
             "retravaillable ici."},
    Aidefixe{"Label6",
             "Dernier score réalisé. Clic = historique.\nT=tout ; E=échantillon ; Ts=tout en "
             "plusieurs fois ; R=révisions"},
    Aidefixe{"app",
             "Mode apprentissage : les erreurs ne sont pas stockées dans le fichier de révisions"},
    Aidefixe{"Command10", "Reprendre une activité normale !"},
    Aidefixe{"Command11",
             "Les fichiers texte se trouvent également dans le dossier Orvane_2018/listes"},
    Aidefixe{
        "Command12",
        "Régler les options : chronomètre, taille des échantillons, couleurs des pourcentages."},
    Aidefixe{"Command13", "A propos du logiciel"},
    Aidefixe{"Command17", "Vérifie si votre version d'Orvane est la plus récente."},
};

/// The row of a panel, if there is one.
const Rangee* trouver(const Panneau* panneau, std::size_t rangee) {
    if (panneau == nullptr || rangee >= panneau->rangees.size())
        return nullptr;
    return &panneau->rangees[rangee];
}

}  // namespace

std::string_view aidetout(const Panneau* panneau, std::size_t rangee) {
    const auto* trouvee = trouver(panneau, rangee);
    return trouvee == nullptr ? std::string_view() : trouvee->aidetout;
}

std::string_view aidelibelle(const Panneau* panneau, std::size_t rangee) {
    const auto* trouvee = trouver(panneau, rangee);
    return trouvee == nullptr ? std::string_view() : trouvee->aidelibelle;
}

std::string_view aidefixe(std::string_view controle) {
    const auto* trouvee = std::find_if(aidesfixes.begin(), aidesfixes.end(),
                                       [&](const Aidefixe& a) { return a.controle == controle; });
    return trouvee == aidesfixes.end() ? std::string_view() : trouvee->texte;
}

std::string bienvenue(std::string_view util) {
    return "Bienvenue " + std::string(util) +
           ".\nPassez votre souris sur les boutons et les infos utiles s'afficheront ici."
           "\nBon entraînement !";
}

}  // namespace menu
