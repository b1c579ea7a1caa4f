// Orders that read the program, and say what it should be like.

#include <algorithm>
#include <array>
#include <fstream>

#include "chemin.h"
#include "cible.h"
#include "ordres.h"
#include "proprietes.h"
#include "textes.h"

namespace banc {
namespace {

void accorder(const std::string& desaccord, const std::string& nom) {
    if (!desaccord.empty())
        throw Refus("l'écran et le modèle diffèrent : " + nom + " : " + desaccord);
}

constexpr std::array formulaires{"Dialog", "Dialog1", "Dialog2", "Form1",
                                 "Form2",  "Form3",   "Multi"};

/// The form is one of the program's, not made yet or gone.
bool dechargee(const Seance& seance, std::string_view nom) {
    return std::find(formulaires.begin(), formulaires.end(), nom) != formulaires.end() &&
           seance.plateforme.bureau.trouver(nom) == nullptr;
}

/// The value of "Form1.solution(3).texte" or "Form1.focus".
std::string valeur(Seance& seance, const std::string& nom) {
    const auto point = nom.rfind('.');
    if (point == std::string::npos)
        throw OrdreFaux("propriété attendue : " + nom);
    const auto objet = std::string_view(nom).substr(0, point);
    const auto propriete = std::string_view(nom).substr(point + 1);
    if (propriete == "visible" && dechargee(seance, objet))
        return "non";
    const auto cible = trouver(seance, objet);
    std::optional<std::string> lu;
    if (cible.controle != nullptr) {
        if (cible.controle->genre() == ui::Genre::Entree && !proposee(*cible.controle))
            throw Refus("le menu de cette entrée n'est pas ouvert : " + nom);
        lu = lire(*cible.controle, propriete);
        accorder(seance.pilote->desaccord(*cible.controle), nom);
    } else if (cible.minuterie != nullptr) {
        lu = lire(*cible.minuterie, propriete);
    } else {
        lu = lire(*cible.formulaire, propriete);
        accorder(seance.pilote->desaccord(*cible.formulaire), nom);
    }
    if (!lu)
        throw OrdreFaux("propriété inconnue : " + nom);
    return enligne(*lu);
}

/// The forms in the order of their names.
std::string ecriremodele(Seance& seance, const Ordre& ordre) {
    std::ofstream flux(common::chemin(ordre.suite), std::ios::binary);
    for (const auto* nom : formulaires) {
        if (const auto* formulaire = seance.plateforme.bureau.trouver(nom))
            flux << modele(*formulaire);
    }
    flux.close();
    if (!flux)
        throw Refus("le modèle ne peut pas être écrit : " + ordre.suite);
    return {};
}

[[noreturn]] void ecart(std::string_view lu, std::string_view attendu) {
    throw Refus("attendu « " + std::string(attendu) + " », lu « " + std::string(lu) + " »");
}

std::string ordrelire(Seance& seance, const Ordre& ordre) {
    return "= " + valeur(seance, ordre.suite);
}

std::string attendre(Seance& seance, const Ordre& ordre) {
    const auto attendu = decouper(ordre.suite);
    const auto lu = valeur(seance, attendu.nom);
    if (!concorde(lu, attendu.suite))
        ecart(lu, attendu.suite);
    return {};
}

/// A list of the journal is the one expected; it is empty from then on.
std::string attendreliste(std::vector<std::string>& liste, const Ordre& ordre) {
    const auto lu = enligne(joindre(std::exchange(liste, {})));
    if (!concordepartie(lu, ordre.suite))
        ecart(lu, ordre.suite);
    return {};
}

std::string attendremessages(Seance& seance, const Ordre& ordre) {
    return attendreliste(seance.plateforme.journal.messages, ordre);
}

std::string attendresons(Seance& seance, const Ordre& ordre) {
    return attendreliste(seance.plateforme.journal.sons, ordre);
}

std::string attendreouvertures(Seance& seance, const Ordre& ordre) {
    return attendreliste(seance.plateforme.journal.ouvertures, ordre);
}

std::string attendrebips(Seance& seance, const Ordre& ordre) {
    const auto lu = std::to_string(std::exchange(seance.plateforme.journal.bips, 0));
    if (!concorde(lu, ordre.suite))
        ecart(lu, ordre.suite);
    return {};
}

std::string attendremenu(Seance& seance, const Ordre& ordre) {
    if (ordre.suite != "oui" && ordre.suite != "non")
        throw OrdreFaux("attendremenu : oui ou non");
    bool ouvert = false;
    for (const auto* formulaire : seance.plateforme.bureau.formulaires())
        ouvert = ouvert || formulaire->menuouvert() != nullptr;
    if (ouvert != (ordre.suite == "oui"))
        throw Refus(ouvert ? "un menu est ouvert" : "aucun menu n'est ouvert");
    return {};
}

std::string attendrefin(Seance& seance, const Ordre& ordre) {
    const auto attendu = decouper(ordre.suite);
    const auto& plateforme = seance.plateforme;
    if (!plateforme.fini())
        throw Refus("le programme n'est pas terminé");
    const auto rapport = enligne(plateforme.rapport().value_or(std::string()));
    const auto statut = std::to_string(plateforme.statut());
    if (statut != attendu.nom)
        ecart(statut + " " + rapport, attendu.nom);
    const auto texte = sansguillemets(attendu.suite);
    if (rapport.find(texte) == std::string::npos)
        ecart(rapport, texte);
    return {};
}

constexpr std::array commandesattentes{
    Commande{"lire", ordrelire},
    Commande{"attendre", attendre},
    Commande{"attendremessages", attendremessages},
    Commande{"attendresons", attendresons},
    Commande{"attendreouvertures", attendreouvertures},
    Commande{"attendrebips", attendrebips},
    Commande{"attendremenu", attendremenu},
    Commande{"attendrefin", attendrefin, true},
    Commande{"modele", ecriremodele},
};

}  // namespace

std::span<const Commande> ordresdattente() {
    return commandesattentes;
}

}  // namespace banc
