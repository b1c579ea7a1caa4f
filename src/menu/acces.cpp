#include "acces.h"

#include <vector>

namespace menu {
namespace {

// Twips. The first-level buttons make one line; under it each group has a line of narrower ones.
constexpr int marge = 150;
constexpr int ecart = 90;
constexpr int largeurgroupe = 2628;
constexpr int hautgroupes = 660;
constexpr int hauteurgroupe = 600;
constexpr int hautseconds = 1410;
constexpr int hauteurseconds = 510;

/// Places the buttons of a group from left to right, then those of the group inside it.
class Rang {
  public:
    explicit Rang(std::vector<Acces>& acces) : acces_(acces) {}

    void placer(Groupe groupe) {
        for (const auto& panneau : panneaux()) {
            if (panneau.bouton.groupe == groupe)
                ajouter(panneau.bouton, &panneau, groupe);
        }
        for (const auto& autre : boutonsdegroupe()) {
            if (autre.bouton.groupe != groupe)
                continue;
            ajouter(autre.bouton, nullptr, autre.montre);
            if (groupe != Groupe::aucun)
                placer(autre.montre);
        }
    }

  private:
    void ajouter(const Bouton& bouton, const Panneau* panneau, Groupe montre) {
        const bool premier = bouton.groupe == Groupe::aucun;
        const int largeur = premier ? largeurgroupe : bouton.largeur;
        acces_.push_back({&bouton,
                          panneau,
                          montre,
                          {gauche_, premier ? hautgroupes : hautseconds, largeur,
                           premier ? hauteurgroupe : hauteurseconds}});
        gauche_ += largeur + ecart;
    }

    std::vector<Acces>& acces_;
    int gauche_ = marge;
};

std::vector<Acces> faire() {
    std::vector<Acces> acces;
    Rang(acces).placer(Groupe::aucun);
    for (const auto& groupe : boutonsdegroupe()) {
        if (groupe.bouton.groupe == Groupe::aucun)
            Rang(acces).placer(groupe.montre);
    }
    return acces;
}

}  // namespace

std::span<const Acces> lesacces() {
    static const auto tous = faire();
    return tous;
}

bool danslegroupe(const Acces& acces, Groupe groupe) {
    if (groupe == Groupe::aucun)
        return false;
    return acces.bouton->groupe == groupe ||
           (acces.panneau == nullptr && !acces.permanent() && acces.montre == groupe);
}

}  // namespace menu
