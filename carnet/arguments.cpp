#include "arguments.h"

#include <algorithm>
#include <array>

#include "chemin.h"
#include "reponses.h"

namespace carnet {
namespace {

/// One answer is given at a time.
void demander(Options& o, Action action, const std::string& util) {
    if (o.action != Action::fenetre)
        throw MauvaisUsage("Une seule demande à la fois.");
    o.action = action;
    o.util = util;
}

void prendrejour(Options& o, const std::string& valeur) {
    o.jour = lirejour(valeur);
    if (!o.jour)
        throw MauvaisUsage("--jour attend une date AAAA-MM-JJ ; « " + valeur +
                           " » n'en est pas une.");
}

void prendreplafond(Options& o, const std::string& valeur) {
    o.plafond = lireplafond(valeur);
    if (!o.plafond)
        throw MauvaisUsage("--plafond attend un nombre de " + std::to_string(plafondminimum) +
                           " à " + std::to_string(plafondmaximum) + " ; « " + valeur +
                           " » n'en est pas un.");
}

/// An option that takes a value.
struct Option {
    std::string_view nom;
    void (*prendre)(Options& options, const std::string& valeur);
};

constexpr std::array lesoptions{
    Option{"--dossier", [](Options& o, const std::string& v) { o.dossier = common::chemin(v); }},
    Option{"--echeances",
           [](Options& o, const std::string& v) { demander(o, Action::echeances, v); }},
    Option{"--progres", [](Options& o, const std::string& v) { demander(o, Action::progres, v); }},
    Option{"--jour", prendrejour},
    Option{"--plafond", prendreplafond},
    Option{"--lexique", [](Options& o, const std::string& v) { o.chemins.lexique = v; }},
    Option{"--affixes", [](Options& o, const std::string& v) { o.chemins.affixes = v; }},
    Option{"--thesaurus", [](Options& o, const std::string& v) { o.chemins.thesaurus = v; }},
};

}  // namespace

Options lireoptions(std::span<const std::string> arguments) {
    Options options;
    for (; !arguments.empty(); arguments = arguments.subspan(1)) {
        const auto& nom = arguments.front();
        if (nom == "--help" || nom == "--version") {
            options.action = nom == "--help" ? Action::aide : Action::version;
            continue;
        }
        if (nom == "--sans-ajouts") {
            options.chemins.ajouts = false;
            continue;
        }
        const auto* option = std::find_if(lesoptions.begin(), lesoptions.end(),
                                          [&](const Option& o) { return o.nom == nom; });
        if (option == lesoptions.end())
            throw MauvaisUsage("Option inconnue : " + nom + ".");
        if (arguments.size() < 2 || arguments[1].empty() || arguments[1].starts_with("--"))
            throw MauvaisUsage("L'option " + nom + " attend une valeur.");
        arguments = arguments.subspan(1);
        option->prendre(options, arguments.front());
    }
    if ((options.jour || options.plafond) && options.action != Action::echeances &&
        options.action != Action::aide && options.action != Action::version)
        throw MauvaisUsage("--jour et --plafond vont avec --echeances.");
    return options;
}

std::string aide() {
    return "orvane-carnet : le carnet d'Orvane, listes par recherche et dictionnaire du joueur.\n"
           "\n"
           "  orvane-carnet [--dossier JEU]   ouvre le carnet du dossier de jeu\n"
           "  orvane-carnet [--dossier JEU] --echeances UTILISATEUR\n"
           "                [--jour AAAA-MM-JJ] [--plafond N]\n"
           "                                  les tirages à revoir ce jour (aujourd'hui), un par\n"
           "                                  ligne : jour dû;palier;tirage;solutions\n"
           "  orvane-carnet [--dossier JEU] --progres UTILISATEUR\n"
           "                                  les résultats, une liste par ligne : "
           "liste;passages;\n"
           "                                  dernier;meilleur pourcentage;date du dernier\n"
           "  orvane-carnet --help | --version\n"
           "\n"
           "Options :\n"
           "  --dossier JEU                   par défaut celui du joueur, ou, sans\n"
           "                                  installation, le dossier de travail\n"
           "  --lexique DIC, --affixes AFF, --thesaurus DAT\n"
           "                                  sources du lexique libre\n"
           "  --sans-ajouts                   n'ajoute rien au lexique\n"
           "\n"
           "État de sortie : 0 tout va bien, 1 une faute ou un refus, 2 un mauvais usage.\n";
}

}  // namespace carnet
