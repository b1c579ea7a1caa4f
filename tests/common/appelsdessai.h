#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "appels.h"
#include "processus.h"

namespace essais {

/// What befalls a program at one of its calls.
enum class Panne : std::uint8_t {
    Aucune,
    Avant,      ///< killed right before a call that changes the disk
    Refus,      ///< any call answers with an error of the disk
    Dechirure,  ///< killed when half the bytes of a write are written
    Courte,     ///< half the bytes of a write are taken, and it goes on
    Coupure     ///< the power goes before a change: what is not synchronised is cut in half
};

/// The calls of the system, numbered from 1, one of which breaks. Closing and the clock are not
/// counted. Time goes by at the waits only. In a program that should have ended (`mort`) no call
/// does anything but closing, which the system would do for it.
class AppelsDessai : public common::Appels {
  public:
    /// Breaks the call of that number, among those that the breakdown is for.
    void prevoir(Panne panne, int rang) {
        panne_ = panne;
        rang_ = rang;
        compte_ = 0;
        atteinte_ = false;
    }
    [[nodiscard]] bool atteinte() const { return atteinte_; }

    std::vector<std::string> journal;  ///< names of the calls that were made
    std::int64_t horloge = 0;
    std::int64_t attendu = 0;  ///< milliseconds that were waited
    std::size_t bouchee = 0;   ///< most bytes that a write takes; 0: all

    std::error_code ouvrir(const Chemin& chemin, common::Ouverture mode,
                           common::Poignee& poignee) override {
        return faire(
            "ouvrir", [&] { return vrais_.ouvrir(chemin, mode, poignee); },
            mode == common::Ouverture::Creation);
    }
    void fermer(common::Poignee poignee) override {
        sales_.erase(poignee);
        vrais_.fermer(poignee);
    }
    std::error_code lire(common::Poignee poignee, std::span<char> tampon,
                         std::size_t& lus) override {
        const auto appel = [&] { return vrais_.lire(poignee, tampon, lus); };
        return faire("lire", appel, false);
    }
    std::error_code ecrire(common::Poignee poignee, std::string_view octets,
                           std::size_t& ecrits) override {
        const auto moitie = octets.substr(0, (octets.size() + 1) / 2);
        if (panne_ == Panne::Dechirure && compter()) {
            static_cast<void>(vrais_.ecrire(poignee, moitie, ecrits));
            mourir();
        }
        if (panne_ == Panne::Courte && compter())
            return vrais_.ecrire(poignee, moitie, ecrits);
        sales_.insert(poignee);
        return faire("ecrire", [&] {
            return vrais_.ecrire(poignee, bouchee == 0 ? octets : octets.substr(0, bouchee),
                                 ecrits);
        });
    }
    std::error_code placer(common::Poignee poignee, std::uint64_t place) override {
        const auto appel = [&] { return vrais_.placer(poignee, place); };
        return faire("placer", appel, false);
    }
    std::error_code couper(common::Poignee poignee, std::uint64_t taille) override {
        return faire("couper", [&] { return vrais_.couper(poignee, taille); });
    }
    std::error_code synchroniser(common::Poignee poignee) override {
        return faire("synchroniser", [&] {
            const auto erreur = vrais_.synchroniser(poignee);
            sales_.erase(poignee);
            return erreur;
        });
    }
    std::error_code synchroniserdossier(const Chemin& dossier) override {
        return faire("synchroniserdossier", [&] { return vrais_.synchroniserdossier(dossier); });
    }
    std::error_code etat(common::Poignee poignee, common::Etat& etat) override {
        const auto appel = [&] { return vrais_.etat(poignee, etat); };
        return faire("etat", appel, false);
    }
    std::error_code etat(const Chemin& chemin, common::Etat& etat) override {
        const auto appel = [&] { return vrais_.etat(chemin, etat); };
        return faire("etat", appel, false);
    }
    std::error_code lien(const Chemin& chemin, Chemin& cible) override {
        const auto appel = [&] { return vrais_.lien(chemin, cible); };
        return faire("lien", appel, false);
    }
    std::error_code leguer(const Chemin& modele, common::Poignee neuf) override {
        return faire("leguer", [&] { return vrais_.leguer(modele, neuf); });
    }
    std::error_code changerdroits(common::Poignee poignee, std::uint32_t droits) override {
        return faire("changerdroits", [&] { return vrais_.changerdroits(poignee, droits); });
    }
    std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) override {
        return faire("renommer", [&] { return vrais_.renommer(ancien, nouveau); });
    }
    std::error_code echanger(const Chemin& un, const Chemin& autre) override {
        return faire("echanger", [&] { return vrais_.echanger(un, autre); });
    }
    std::error_code nommer(const Chemin& ancien, const Chemin& nouveau) override {
        return faire("nommer", [&] { return vrais_.nommer(ancien, nouveau); });
    }
    std::error_code doubler(const Chemin& ancien, const Chemin& nouveau) override {
        return faire("doubler", [&] { return vrais_.doubler(ancien, nouveau); });
    }
    std::error_code supprimer(const Chemin& chemin) override {
        return faire("supprimer", [&] { return vrais_.supprimer(chemin); });
    }
    std::error_code creerdossier(const Chemin& chemin) override {
        return faire("creerdossier", [&] { return vrais_.creerdossier(chemin); });
    }
    std::error_code lister(const Chemin& dossier, std::vector<Chemin>& noms) override {
        const auto appel = [&] { return vrais_.lister(dossier, noms); };
        return faire("lister", appel, false);
    }
    std::error_code verrouiller(common::Poignee poignee, bool& pris) override {
        const auto appel = [&] { return vrais_.verrouiller(poignee, pris); };
        return faire("verrouiller", appel, false);
    }
    std::int64_t programme() override { return vrais_.programme(); }
    std::int64_t maintenant() override { return horloge; }
    void attendre(std::int64_t millisecondes) override {
        horloge += millisecondes;
        attendu += millisecondes;
    }

  private:
    bool compter() {
        if (++compte_ != rang_)
            return false;
        atteinte_ = true;
        return true;
    }

    template <class Appel>
    std::error_code faire(const char* nom, const Appel& appel, bool change = true) {
        journal.emplace_back(nom);
        if (mort())
            return std::make_error_code(std::errc::io_error);
        const bool decriture = panne_ == Panne::Dechirure || panne_ == Panne::Courte;
        const bool dechange = panne_ == Panne::Avant || panne_ == Panne::Coupure;
        if (panne_ == Panne::Aucune || decriture || (dechange && !change) || !compter())
            return appel();
        if (panne_ == Panne::Refus)
            return std::make_error_code(std::errc::io_error);
        if (panne_ == Panne::Coupure)
            couper();
        mourir();
        return std::make_error_code(std::errc::io_error);
    }

    void couper() {
        for (const auto poignee : sales_) {
            common::Etat etat;
            if (vrais_.etat(poignee, etat) || vrais_.couper(poignee, etat.taille / 2))
                mourir(1);
        }
    }

    common::Appels& vrais_ = common::appelsdusysteme();
    std::set<common::Poignee> sales_;  ///< open files whose bytes are not synchronised
    Panne panne_ = Panne::Aucune;
    int rang_ = 0;
    int compte_ = 0;
    bool atteinte_ = false;
};

/// The calls of the system, on a clock that stands still: locks are waited for as long as it takes.
class AppelsPatients : public AppelsDessai {
  public:
    void attendre(std::int64_t millisecondes) override {
        common::appelsdusysteme().attendre(millisecondes);
    }
};

}  // namespace essais
