#include "dossier.h"

#include <array>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "catalogue.h"
#include "chemin.h"
#include "dossierneuf.h"

namespace banc {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 6> references{"ods5.txt", "ods6.txt",    "ods7.txt",
                                                "vbi.txt",  "vbt4-10.txt", "inv.txt"};
const std::string dossierlistes = "listes/";
constexpr const char* notes = "infosouris.txt";
constexpr const char* son = "APP05.WAV";
constexpr std::string_view rangeesimple = "AB;BA\r\n";
constexpr std::string_view rangeemultiple = "ABC;BAC;CAB\r\n";

}  // namespace

Dossier::Dossier() : chemin_(essais::dossierneuf("orvane été ")), provisoire_(true) {}

Dossier::~Dossier() {
    std::error_code oubli;
    if (provisoire_)
        fs::remove_all(chemin_, oubli);
}

void Fourniture::poser(const fs::path& but) const {
    if (!source.empty()) {
        std::error_code impossible;
        fs::create_hard_link(source, but, impossible);
        if (impossible)
            fs::copy_file(source, but);
        return;
    }
    std::ofstream flux(but, std::ios::binary);
    if (!(flux << octets).flush())
        throw fs::filesystem_error("écriture", but, std::make_error_code(std::errc::io_error));
}

std::map<std::string, Fourniture> fournitures(const fs::path& jeu) {
    std::map<std::string, Fourniture> toutes{{notes, {}}};
    for (const auto* nom : references)
        toutes[dossierlistes + nom] = {};
    for (const auto& panneau : menu::panneaux()) {
        for (const auto& rangee : panneau.rangees) {
            const auto octets =
                rangee.ecran() == menu::Ecran::multi ? rangeemultiple : rangeesimple;
            toutes[dossierlistes + std::string(rangee.fichier)] = {octets, {}};
            for (std::size_t partie = 0; partie < rangee.parties; ++partie)
                toutes[dossierlistes + menu::fichierdepartie(rangee.fichier, partie)] = {octets,
                                                                                         {}};
        }
    }
    if (fs::exists(jeu / son))
        toutes[son] = {{}, jeu / son};
    if (fs::exists(jeu / "images")) {
        for (const auto& image : fs::directory_iterator(jeu / "images"))
            toutes["images/" + image.path().filename().string()] = {{}, image.path()};
    }
    return toutes;
}

void garnir(const fs::path& dossier, const fs::path& jeu) {
    for (const auto& [nom, fourniture] : fournitures(jeu)) {
        const auto place = dossier / common::chemin(nom);
        fs::create_directories(place.parent_path());
        fourniture.poser(place);
    }
}

}  // namespace banc
