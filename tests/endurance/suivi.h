#pragma once

// The witness of a series form: follows a list from its launch to its end by what is on screen and
// on disk, and says where they part from the rules.

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "constats.h"
#include "ecran.h"
#include "horloge.h"
#include "lecture.h"
#include "liste.h"
#include "partage.h"

namespace endurance {

/// What the menu hands to a series.
struct Lancement {
    std::string fich;      ///< path of the list
    std::string revision;  ///< path of its revision file
    std::string nom;       ///< of the list in the history
    bool multi = false;
    bool app = false;
};

/// What a series may change on disk.
struct Fichiers {
    std::vector<std::string> revision;
    std::vector<std::string> hist;
};

/// One order: what was seen before and after it.
struct Moment {
    const banc::Ordre& ordre;
    const Ecran& avant;
    const Ecran& apres;
    const Fichiers& fichiersavant;
    const Fichiers& fichiersapres;
    common::Instant debut;
    common::Instant fin;
    std::string message;  ///< the last message box of the order

    /// Seconds that the order lets pass.
    [[nodiscard]] int secondes() const;
    [[nodiscard]] bool tape() const { return ordre.nom == "taper"; }
    [[nodiscard]] bool touche(std::string_view nom) const {
        return ordre.nom == "touche" && ordre.suite == nom;
    }
};

class Suivi {
  public:
    Suivi(bool multi, const common::VariablesForm3& menu, const common::VariablesDialog2& options);

    /// A list has just been launched and its first series drawn.
    void commencer(const Lancement& lancement, const std::vector<std::string>& lignes,
                   const Moment& moment, Constats& constats);
    /// An order was carried out while the form was shown, before and after.
    void suivre(const Moment& moment, Constats& constats);
    /// An order was carried out while the form was hidden, or has hidden it.
    void cacher(const Moment& moment);

    [[nodiscard]] const Lancement& lancement() const { return lancement_; }
    /// The row at a rack place; null for none.
    [[nodiscard]] const Rangee* rangee(int place) const;
    [[nodiscard]] int places() const { return static_cast<int>(tirees_.size()); }
    [[nodiscard]] int placede(int boite) const { return boite % nbtirages_; }
    [[nodiscard]] int boites() const;
    [[nodiscard]] bool assistee() const;
    /// Seconds on the total clock.
    [[nodiscard]] int total() const { return total_; }

  private:
    // suivi.cpp: the list and the draw.
    void tirer(const Moment& moment, Constats& constats);
    void tirerracks(const Moment& moment, Constats& constats);
    [[nodiscard]] bool jugeeautirage(int place, const Moment& moment) const;
    [[nodiscard]] bool montree(const Rangee& rangee, int place, const Moment& moment) const;
    void compter(const Ecran& ecran, Constats& constats);
    void avancer(const Moment& moment, Constats& constats);
    void battre(int secondes);

    // suivi_ecran.cpp: what holds of every screen, and from one to the next.
    void verifierecran(const Ecran& ecran, Constats& constats) const;
    void verifieretat(const Ecran& ecran, Constats& constats) const;
    void verifiercouleurs(const Ecran& ecran, Constats& constats) const;
    void verifierouverte(const Moment& moment, Constats& constats) const;
    void verifierlettres(const Moment& moment, Constats& constats) const;
    static void verifierfigee(const Moment& moment, Constats& constats);

    // suivi_correction.cpp: the judgement of a series, the end of a list.
    void corriger(const Moment& moment, Constats& constats);
    int corrigerform1(const Moment& moment, Constats& constats);
    void corrigerfaute(int place, const Moment& moment, Constats& constats);
    int corrigermulti(const Moment& moment, Constats& constats);
    void eliminer(const Rangee& rangee, const Ecran& ecran);
    void verifiercompteurs(int justes, const Moment& moment, Constats& constats);
    void finir(const Moment& moment, Constats& constats);
    [[nodiscard]] std::string record(const std::string& pourcent) const;

    // suivi_fichiers.cpp
    /// What is missed goes to the revision file.
    [[nodiscard]] bool garde() const {
        return menu_.toue != common::modes::revision && !lancement_.app;
    }
    void verifierfichiers(const Moment& moment, Constats& constats) const;
    void verifierrevision(const Moment& moment, Constats& constats) const;
    void verifierratees(const Moment& moment, Constats& constats) const;
    void verifiermenu(const Moment& moment, Constats& constats) const;
    /// The rows added to the revision file are those that a correction, or a judgement, sends
    /// there.
    [[nodiscard]] bool parlacorrection(const std::vector<std::string>& ajoutees,
                                       const Moment& moment) const;

    bool multi_;
    const common::VariablesForm3& menu_;
    const common::VariablesDialog2& options_;
    int nbtirages_;
    Lancement lancement_;

    std::vector<Rangee> rangees_;           ///< of the file
    std::map<std::string, int> restantes_;  ///< rows that may still come, by line, how many
    bool distinctes_ = true;
    std::size_t nbsolutions_ = 1;
    int base_ = 0;   ///< rows at the start
    int moins_ = 0;  ///< fewest and most rows that can be left
    int plus_ = 0;
    std::map<std::string, int> succes_;
    std::set<std::string> fautes_;
    bool fautessures_ = true;
    int series_ = 0;  ///< corrected in this visit

    std::vector<Rangee> tirees_;  ///< rows of the series, by place
    int restant_ = 0;             ///< seconds on the series clock
    int total_ = 0;
    std::string textetotal_ = "0:00:00";
    /// Every line that may stand in a revision file, by its path.
    std::map<std::string, std::set<std::string>> admises_;
};

}  // namespace endurance
