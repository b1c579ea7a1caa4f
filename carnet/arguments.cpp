#include "arguments.h"

#include <algorithm>
#include <array>

namespace carnet {
namespace {

/// An option that takes a value.
struct Option {
    std::string_view nom;
    void (*prendre)(Options& options, const std::string& valeur);
};

constexpr std::array lesoptions{
    Option{"--dossier", [](Options& o, const std::string& v) { o.dossier = v; }},
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
    return options;
}

std::string aide() {
    return "orvane-carnet : le carnet d'Orvane, listes par recherche et dictionnaire du joueur.\n"
           "\n"
           "  orvane-carnet [--dossier JEU]   ouvre le carnet du dossier de jeu\n"
           "  orvane-carnet --help | --version\n"
           "\n"
           "Options :\n"
           "  --dossier JEU                   par défaut celui du joueur, ou, sans\n"
           "                                  installation, le dossier de travail\n"
           "  --lexique DIC, --affixes AFF, --thesaurus DAT\n"
           "                                  sources du lexique libre\n"
           "  --sans-ajouts                   n'ajoute rien au lexique\n"
           "\n"
           "État de sortie : 0 tout va bien, 1 une faute, 2 un mauvais usage.\n";
}

}  // namespace carnet
