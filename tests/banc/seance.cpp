#include "seance.h"

#include <algorithm>
#include <array>

#include "faute.h"
#include "ordres.h"
#include "textes.h"

namespace banc {
namespace {

const Commande* chercher(std::string_view nom) {
    for (const auto table : {ordresdelusager(), ordresduprogramme(), ordresdelamachine(),
                             ordresdattente(), ordresdesfichiers()}) {
        const auto place = std::find_if(table.begin(), table.end(),
                                        [&](const Commande& c) { return c.nom == nom; });
        if (place != table.end())
            return &*place;
    }
    return nullptr;
}

/// The order inside is refused; an error if it is carried out.
void refuser(Seance& seance, const Ordre& ordre) {
    auto interieur = decouper(ordre.suite);
    interieur.lignes = ordre.lignes;
    try {
        static_cast<void>(seance.executer(interieur));
    } catch (const OrdreFaux&) {
        throw;
    } catch (const Refus&) {
        return;
    }
    throw OrdreFaux("l'ordre a été exécuté : " + ordre.suite);
}

}  // namespace

Seance::Seance(const std::filesystem::path& dossier, const Fabrique& fabrique,
               const FabriquePilote& fabriquepilote, common::Appels& appels)
    : plateforme(dossier, appels),
      pilote(fabriquepilote(plateforme)),
      programme(fabrique(plateforme)) {}

std::string Seance::executer(const Ordre& ordre) {
    if (!ordre.defaut.empty())
        throw OrdreFaux(ordre.defaut);
    if (ordre.nom == "refus") {
        refuser(*this, ordre);
        return {};
    }
    const auto* commande = chercher(ordre.nom);
    if (commande == nullptr)
        throw OrdreFaux("ordre inconnu : " + ordre.nom);
    if (plateforme.fini() && !commande->apreslafin)
        throw Refus("le programme est terminé");
    auto valeur = commande->faire(*this, ordre);
    verifier();
    return valeur;
}

/// The order went through, but not without trouble.
void Seance::verifier() {
    const auto ecran = pilote->poser();
    const auto incident = plateforme.incident();
    if (!ecran.empty() || !incident.empty())
        throw OrdreFaux(incident.empty() ? ecran : incident);
}

std::string Seance::repondre(const Ordre& ordre) {
    const bool dejafini = plateforme.fini();
    std::string reponse = "ok";
    try {
        const auto valeur = executer(ordre);
        if (!valeur.empty())
            reponse = valeur;
    } catch (const OrdreFaux& ennui) {
        return "erreur: " + enligne(ennui.what());
    } catch (const Refus& ennui) {
        reponse = "erreur: " + enligne(ennui.what());
    } catch (const common::Faute& ennui) {  // of the bench's own reading or writing of files
        reponse = "erreur: " + enligne(ennui.what());
    } catch (const std::filesystem::filesystem_error& ennui) {
        reponse = "erreur: " + enligne(ennui.what());
    }
    if (dejafini || !plateforme.fini())
        return reponse;
    const auto fin = "fin " + std::to_string(plateforme.statut());
    const auto& rapport = plateforme.rapport();
    return rapport ? "faute " + enligne(*rapport) + " " + fin : fin;
}

}  // namespace banc
