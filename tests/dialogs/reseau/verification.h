#pragma once

// The update check against a web server on 127.0.0.1.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include <QApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "chemin.h"
#include "journal.h"
#include "lignes.h"
#include "miseajour.h"
#include "plateformeqt.h"
#include "serveur.h"
#include "textesmiseajour.h"
#include "voisinage.h"

namespace essai {

namespace fs = std::filesystem;

inline constexpr const char* cheminversion = "/Orvane/version.txt";
inline constexpr const char* cheminlien = "/Orvane/downloadlink.txt";
inline constexpr const char* chemininstalleur = "/orvane_setup.exe";
inline constexpr const char* page = "https://www.orvane.example/orvane.php#telechargement";
inline const std::string ouvrirpage = std::string("ouvrir ") + page;

/// The player's machine, its message boxes answered and its browser noted down.
class Machine : public ui::qt::PlateformeQt {
  public:
    Machine() : PlateformeQt({.silence = 200, .duree = 600}) {}
    /// The program runs from its own folder.
    std::string dossierprogramme() override { return {}; }

    Journal journal;
    ui::Reponse reponse = ui::Reponse::Oui;

    void ouvrir(std::string_view cible) override { noter(journal, "ouvrir ", cible); }

  protected:
    ui::Reponse demander(std::string_view texte, ui::Icone icone, bool ouinon) override {
        noter(journal, genre(icone), texte);
        return ouinon ? reponse : ui::Reponse::Ok;
    }
    void rapporter(std::string_view rapport) override { noter(journal, "faute ", rapport); }
    void arreter(int statut) override { noter(journal, "fin ", std::to_string(statut)); }
};

inline std::optional<std::string> contenu(const char* fichier) {
    std::ifstream flux(fichier, std::ios::binary);
    if (!flux)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(flux), {});
}

class Reseau : public testing::Test {
  protected:
    QTemporaryDir dossier{QDir::tempPath() + QStringLiteral("/mise à jour XXXXXX")};
    fs::path ancien = fs::current_path();
    Serveur serveur;
    VoisinageSur<Machine> v;

    void SetUp() override { fs::current_path(common::chemin(dossier.path().toStdString())); }
    void TearDown() override { fs::current_path(ancien); }

    Journal verifier() { return verifier(serveur); }
    Journal verifier(const Serveur& ou) {
        dialogs::MiseAJour verification(v.plateforme, v.form3, v.menu,
                                        {ou.adresse(cheminversion), ou.adresse(cheminlien), page});
        v.plateforme.executer([&] { verification.verifier(); });
        return v.relever();
    }
    void publier(const QByteArray& version) { serveur.pages[cheminversion] = {version}; }
    void toutpublier() {
        publier("2.7\r\n");
        serveur.pages[cheminlien] = {QByteArray::fromStdString(serveur.adresse(chemininstalleur)) +
                                     "\r\n"};
        serveur.pages[chemininstalleur] = {"MZ\0programme"};
    }
    /// The journal of a check that has asked for the link, and then `suite`.
    static Journal telechargement(const Journal& suite) {
        Journal tout{proposer("2.7"), debuttelechargement, "menu pointeur attente",
                     "aide Téléchargement en cours"};
        tout.insert(tout.end(), suite.begin(), suite.end());
        return tout;
    }
    static Journal echecdelinstalleur() {
        return telechargement({"menu pointeur normal", echecinstalleur, ouvrirpage});
    }
};

}  // namespace essai
