// banc [--qt] [--dossier D] [FICHIER...]: runs the program under the orders of each FICHIER, or of
// standard input.

#include <fstream>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <QApplication>
#include <QCryptographicHash>

#include "pilotemodele.h"
#include "piloteqt.h"
#include "programmereel.h"
#include "scenario.h"

namespace {

constexpr int mauvaisappel = 2;

struct Appel {
    bool qt = false;
    bool bon = true;
    banc::Reglages reglages;
    std::vector<std::string> fichiers;
};

Appel analyser(std::span<char*> arguments) {
    Appel appel;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--qt")
            appel.qt = true;
        else if (argument == "--dossier" && i + 1 < arguments.size())
            appel.reglages.dossier = std::filesystem::absolute(arguments[++i]);
        else if (argument.starts_with("--"))
            appel.bon = false;
        else
            appel.fichiers.emplace_back(argument);
    }
    return appel;
}

std::string sha256(std::string_view octets) {
    const QByteArrayView vue(octets.data(), static_cast<qsizetype>(octets.size()));
    return QCryptographicHash::hash(vue.toByteArray(), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

void jouerfichier(const std::string& nom, const banc::Reglages& reglages, banc::Bilan& bilan) {
    std::ifstream flux(nom);
    if (!flux) {
        std::cout << "erreur: fichier illisible (" << nom << ")" << std::endl;
        ++bilan.echoues;
        return;
    }
    banc::jouer(flux, nom, reglages, std::cout, bilan);
}

}  // namespace

int main(int argc, char** argv) {
    auto appel = analyser({argv, static_cast<std::size_t>(argc)});
    if (!appel.bon) {
        std::cerr << "banc [--qt] [--dossier D] [FICHIER...]\n";
        return mauvaisappel;
    }
    auto& reglages = appel.reglages;
    reglages.jeu = ORVANE_JEU;
    reglages.programme = [](ui::Plateforme& plateforme) {
        return std::make_unique<banc::ProgrammeReel>(plateforme);
    };
    reglages.fabriquepilote = [](banc::PlateformeSimulee& plateforme) {
        plateforme.somme = sha256;
        return std::make_unique<banc::PiloteModele>(plateforme);
    };
    std::unique_ptr<QApplication> qt;
    if (appel.qt) {
        qt = banc::preparerqt(argc, argv);
        reglages.pilote = banc::Destination::Qt;
        reglages.fabriquepilote = [](banc::PlateformeSimulee& plateforme) {
            plateforme.somme = sha256;
            return std::make_unique<banc::PiloteQt>(plateforme, plateforme.disque().systeme(""));
        };
    }
    banc::Bilan bilan;
    for (const auto& fichier : appel.fichiers)
        jouerfichier(fichier, reglages, bilan);
    if (appel.fichiers.empty())
        banc::jouer(std::cin, "entrée", reglages, std::cout, bilan);
    std::cout << bilan.reussis << " passed, " << bilan.echoues << " failed" << std::endl;
    return bilan.echoues == 0 ? 0 : 1;
}
