#include "motsenvigueur.h"

#include "faute.h"
#include "fichier.h"
#include "listes.h"

namespace carnet {

std::shared_ptr<const recherche::Glossaire> lexiquelibre(const atelier::Chemins& chemins) {
    const atelier::Chantier chantier(chemins, std::nullopt, {}, [](std::string_view) {});
    return std::make_shared<const recherche::Glossaire>(chantier.vocabulaire(),
                                                        chantier.difficulte());
}

std::variant<Motsenvigueur, std::string> lire(common::Disque& disque,
                                              const atelier::Chemins& chemins) {
    Motsenvigueur mots;
    std::string octets;
    if (!common::essayerlire(disque, common::cheminliste(recherche::fichierenvigueur), octets))
        mots.envigueur = recherche::lireenvigueur(octets).value_or(recherche::Envigueur{});
    if (!common::essayerlire(disque, common::cheminliste(recherche::fichierglossaire), octets)) {
        if (auto lu = recherche::Glossaire::lire(octets)) {
            mots.glossaire = std::make_shared<const recherche::Glossaire>(std::move(*lu));
            mots.envigueur.mots = mots.glossaire->fiches().size();
            return mots;
        }
    }
    if (!mots.envigueur.libre())
        return "Le répertoire de votre dictionnaire (listes\\" +
               std::string(recherche::fichierglossaire) +
               ") manque ou est abîmé. Refaites les listes, page « Mon dictionnaire ».";
    try {
        mots.glossaire = lexiquelibre(chemins);
    } catch (const common::Faute& faute) {
        return std::string(faute.what());
    }
    mots.envigueur.mots = mots.glossaire->fiches().size();
    return mots;
}

}  // namespace carnet
