#include "essai.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "chemin.h"
#include "faute.h"
#include "mutation.h"

namespace fuzz {
namespace {

namespace fs = std::filesystem;

const fs::path dossier = ORVANE_CORPUS;

/// A seed of its own for each reader, from its name.
std::uint64_t graine(std::string_view nom) {
    std::uint64_t somme = 1469598103934665603U;
    for (const char c : nom)
        somme = (somme ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return somme;
}

/// False if the run ended in a fault.
bool essayerune(const Lecteur& lecteur, Essai& essai) {
    try {
        lecteur.lire(essai);
        return true;
    } catch (const common::Faute& faute) {
        EXPECT_STRNE(faute.what(), "");
    } catch (const std::exception& imprevu) {
        ADD_FAILURE() << "exception imprévue : " << imprevu.what();
    }
    return false;
}

}  // namespace

int facteur() {
    const char* voulu = std::getenv("ORVANE_FUZZ_FACTEUR");
    return voulu == nullptr ? 1 : std::max(1, std::atoi(voulu));
}

void PrintTo(const Lecteur& lecteur, std::ostream* sortie) {
    *sortie << lecteur.nom;
}

std::string corpus(const std::string& nom) {
    std::ifstream flux(dossier / common::chemin(nom), std::ios::binary);
    EXPECT_TRUE(flux) << nom;
    return {std::istreambuf_iterator<char>(flux), {}};
}

std::vector<std::string> corpusentier() {
    std::vector<std::string> noms;
    for (const auto& fichier : fs::directory_iterator(dossier))
        noms.push_back(fichier.path().filename().string());
    std::sort(noms.begin(), noms.end());  // the system's order is anything
    std::vector<std::string> tous;
    tous.reserve(noms.size());
    for (const auto& nom : noms)
        tous.push_back(corpus(nom));
    return tous;
}

std::string ordreoctets(std::string_view octets) {
    constexpr std::string_view chiffres = "0123456789ABCDEF";
    constexpr std::size_t montres = 4000;
    std::string ordre = "octets " + std::string(chemin) + " ";
    for (const char octet : octets.substr(0, montres)) {
        const auto code = static_cast<unsigned char>(octet);
        ordre += chiffres[code >> 4U];
        ordre += chiffres[code & 0xFU];
    }
    if (octets.size() > montres)
        ordre += " (et " + std::to_string(octets.size() - montres) + " octets de plus)";
    return ordre;
}

void Lecture::essayer(const Lecteur& lecteur) {
    constexpr std::size_t pannes = 2;  // in a hundred
    constexpr int reussitesmin = 20;   // so that the checks of a success count for something
    int reussites = 0;
    const auto autres = corpusentier();
    std::vector<std::string> sains;
    for (const auto* nom : lecteur.corpus)
        sains.push_back(corpus(nom));
    const int essais = lecteur.essais * facteur();
    for (int numero = 0; numero < essais && !HasFailure(); ++numero) {
        Alea alea(graine(lecteur.nom) + static_cast<std::uint64_t>(numero));
        const auto octets = muter(alea.choisir(sains), autres, alea);
        DisqueMemoire disque(alea);
        disque.fichiers.emplace(chemin, octets);
        disque.panne = alea.surcent(pannes);
        Essai essai{octets, disque, alea};
        reussites += essayerune(lecteur, essai) ? 1 : 0;
        if (HasFailure())
            ADD_FAILURE() << "essai n° " << numero << " :\n" << ordreoctets(octets);
    }
    EXPECT_GE(reussites, reussitesmin);
}

std::string nommer(const testing::TestParamInfo<Lecteur>& info) {
    return info.param.nom;
}

}  // namespace fuzz
