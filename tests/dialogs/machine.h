#pragma once

// A machine in memory that writes down what a dialog asks of it.

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "journal.h"
#include "plateforme.h"

namespace essai {

/// Files in memory; some of them refuse to be read, written or deleted.
class Disque : public common::Disque {
  public:
    std::map<std::string, std::string, std::less<>> fichiers;
    std::set<std::string, std::less<>> refuses;
    std::set<std::string, std::less<>> indestructibles;  ///< refuse to be deleted only

    std::error_code ouvrir(std::string_view chemin, std::unique_ptr<common::Flux>& flux) override {
        const auto place = fichiers.find(chemin);
        if (place == fichiers.end())
            return std::make_error_code(std::errc::no_such_file_or_directory);
        if (refuses.contains(chemin))
            return std::make_error_code(std::errc::permission_denied);
        flux = std::make_unique<Lecture>(place->second);
        return {};
    }
    std::error_code ajouter(std::string_view chemin, std::string_view octets) override {
        if (refuses.contains(chemin))
            return std::make_error_code(std::errc::no_space_on_device);
        fichiers[std::string(chemin)] += octets;
        return {};
    }
    std::error_code remplacer(std::string_view chemin, std::string_view octets) override {
        if (refuses.contains(chemin))
            return std::make_error_code(std::errc::no_space_on_device);
        fichiers[std::string(chemin)] = octets;
        return {};
    }
    std::error_code creerdossier(std::string_view /*chemin*/) override { return {}; }
    std::error_code supprimer(std::string_view chemin) override {
        if (refuses.contains(chemin) || indestructibles.contains(chemin))
            return std::make_error_code(std::errc::permission_denied);
        return fichiers.erase(std::string(chemin)) > 0
                   ? std::error_code()
                   : std::make_error_code(std::errc::no_such_file_or_directory);
    }
    std::error_code renommer(std::string_view ancien, std::string_view nouveau) override {
        auto noeud = fichiers.extract(std::string(ancien));
        if (noeud.empty())
            return std::make_error_code(std::errc::no_such_file_or_directory);
        noeud.key() = std::string(nouveau);
        fichiers.insert(std::move(noeud));
        return {};
    }
    bool existe(std::string_view chemin) override { return fichiers.contains(chemin); }
    bool estdossier(std::string_view /*chemin*/) override { return false; }

  private:
    class Lecture : public common::Flux {
      public:
        explicit Lecture(std::string octets) : octets_(std::move(octets)) {}
        std::error_code lire(std::span<char> tampon, std::size_t& lus) override {
            // Few bytes at a time, as a slow disk may give them.
            lus = std::min({tampon.size(), octets_.size() - place_, std::size_t{7}});
            std::memcpy(tampon.data(), octets_.data() + place_, lus);
            place_ += lus;
            return {};
        }

      private:
        std::string octets_;
        std::size_t place_ = 0;
    };
};

class Plateforme : public ui::Plateforme {
  public:
    Journal journal;
    Disque lesfichiers;
    std::map<std::string, std::string, std::less<>> reseau;      ///< address to content
    std::map<std::string, ui::Exigence, std::less<>> exigences;  ///< by file, of its download
    ui::Reponse reponse = ui::Reponse::Oui;
    std::string dossier;
    std::string rapport;

    common::Disque& disque() override { return lesfichiers; }
    common::Hasard& hasard() override { return hasard_; }
    common::Instant maintenant() override { return {}; }
    void ouvrir(std::string_view cible) override { noter("ouvrir ", cible); }
    bool telecharger(std::string_view adresse, std::string_view chemin,
                     const ui::Exigence& exigence) override {
        noter("telecharger ", std::string(adresse) + " > " + std::string(chemin));
        exigences[std::string(chemin)] = exigence;
        const auto page = reseau.find(adresse);
        if (page == reseau.end())
            return false;
        lesfichiers.fichiers[std::string(chemin)] = page->second;
        return true;
    }
    std::string dossierprogramme() override { return dossier; }
    void accueillir(ui::Formulaire& /*formulaire*/) override {}
    void noter(std::string_view quoi, std::string_view valeur) {
        essai::noter(journal, quoi, valeur);
    }

  protected:
    void sonner() override { journal.emplace_back("bip"); }
    ui::Reponse demander(std::string_view texte, ui::Icone icone, bool ouinon) override {
        noter(genre(icone), texte);
        return ouinon ? reponse : ui::Reponse::Ok;
    }
    void jouer(std::string_view fichier) override { noter("jouer ", fichier); }
    void pomper() override { journal.emplace_back("laisser courir"); }
    void rapporter(std::string_view texte) override { rapport = texte; }
    void arreter(int statut) override { noter("fin ", std::to_string(statut)); }

  private:
    common::HasardReel hasard_;
};

}  // namespace essai
