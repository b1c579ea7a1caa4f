#include "lieux.h"

#include <array>

#include "faute.h"
#include "fichier.h"
#include "inventaire.h"
#include "listes.h"
#include "programme.h"

namespace installation {
namespace {

namespace fs = std::filesystem;

/// From the folder of the executable. Where that one can be written by the player, as on Windows,
/// an installed program has no `listes` in it, and its files in the last of these.
constexpr std::array endroits{".", "../share/games/orvane", "fournis"};

bool est(common::Appels& appels, const fs::path& chemin, common::Genre genre) {
    common::Etat etat;
    return !appels.etat(chemin, etat) && etat.genre == genre;
}

}  // namespace

fs::path donneesxdg(const char* donnees, const char* maison) {
    const fs::path dites(donnees == nullptr ? "" : donnees);
    if (dites.is_absolute())
        return dites / "orvane";
    const fs::path chezsoi(maison == nullptr ? "" : maison);
    return chezsoi.is_absolute() ? chezsoi / ".local" / "share" / "orvane" : fs::path();
}

Lieu choisir(common::Appels& appels, const Environs& environs) {
    const auto listes = environs.programme / common::dossierlistes;
    bool deslistes = est(appels, listes, common::Genre::Dossier);
    if (!deslistes && !common::remettrelistes(appels, environs.programme))
        deslistes = est(appels, listes, common::Genre::Dossier);
    if (deslistes && common::inscriptible(appels, environs.programme))
        return {environs.programme, {}};
    for (const auto* endroit : endroits) {
        const auto fournis = environs.programme / endroit;
        if (!est(appels, fournis / fichierinventaire, common::Genre::Fichier))
            continue;
        if (environs.donnees.empty())
            throw common::Faute(common::rapportfichier(
                "Recherche de votre dossier", fournis.string(),
                "le système ne dit pas où sont vos données (" + environs.sansdonnees + ")"));
        return {environs.donnees, fournis};
    }
    return {};
}

}  // namespace installation
