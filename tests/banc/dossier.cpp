#include "dossier.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "catalogue.h"

namespace banc {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 6> references{"ods5.txt", "ods6.txt",    "ods7.txt",
                                                     "vbi.txt",  "vbt4-10.txt", "inv.txt"};
constexpr std::string_view notes = "infosouris.txt";
constexpr std::string_view rangeesimple = "AB;BA\r\n";
constexpr std::string_view rangeemultiple = "ABC;BAC;CAB\r\n";

void ecrire(const fs::path& fichier, std::string_view octets) {
    std::ofstream flux(fichier, std::ios::binary);
    if (!(flux << octets).flush())
        throw fs::filesystem_error("écriture", fichier, std::make_error_code(std::errc::io_error));
}

/// Gives a file, or the files of a folder, a second name: nothing writes to them. Copies them where
/// that cannot be.
void lier(const fs::path& source, const fs::path& but) {
    if (fs::is_directory(source)) {
        fs::create_directories(but);
        for (const auto& fichier : fs::directory_iterator(source))
            lier(fichier.path(), but / fichier.path().filename());
        return;
    }
    std::error_code impossible;
    fs::create_hard_link(source, but, impossible);
    if (impossible)
        fs::copy_file(source, but);
}

}  // namespace

Dossier::Dossier() : provisoire_(true) {
    auto modele = (fs::temp_directory_path() / "orvane été XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr)
        throw std::system_error(errno, std::generic_category(), modele);
    chemin_ = modele;
}

Dossier::~Dossier() {
    std::error_code oubli;
    if (provisoire_)
        fs::remove_all(chemin_, oubli);
}

void garnir(const fs::path& dossier, const fs::path& jeu) {
    const auto listes = dossier / "listes";
    fs::create_directories(listes);
    for (const auto& panneau : menu::panneaux()) {
        for (const auto& rangee : panneau.rangees) {
            const auto octets =
                rangee.ecran() == menu::Ecran::multi ? rangeemultiple : rangeesimple;
            ecrire(listes / rangee.fichier, octets);
            for (std::size_t partie = 0; partie < rangee.parties; ++partie)
                ecrire(listes / menu::fichierdepartie(rangee.fichier, partie), octets);
        }
    }
    for (const auto nom : references)
        ecrire(listes / nom, {});
    ecrire(dossier / notes, {});
    for (const auto* nom : {"images", "APP05.WAV"}) {
        if (fs::exists(jeu / nom))
            lier(jeu / nom, dossier / nom);
    }
}

}  // namespace banc
