// A play folder that is brought up to date by a program that is killed, refused or not alone.

#include <deque>
#include <optional>

#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "faute.h"
#include "installe.h"
#include "preparation.h"
#include "rafraichissement.h"

namespace test_coupures {
namespace {

using essais::Panne;
using Contenu = essais::Installe::Contenu;

const Contenu ancienne{{"listes/7v5.txt", "ancien 7"},
                       {"listes/8v5.txt", "ancien 8"},
                       {"listes/dictionnaire.dat", "libre"},
                       {"APP05.WAV", "ancien son"}};
const Contenu nouvelle{{"listes/7v5.txt", "nouveau 7"},
                       {"listes/8v5.txt", "nouveau 8"},
                       {"listes/dictionnaire.dat", "libre, autrement"},
                       {"listes/9v5.txt", "nouveau 9"},
                       {"APP05.WAV", "ancien son"}};
constexpr int rangs = 400;  // more than the calls of one update

struct Cas {
    const char* nom;
    Panne panne;
    bool premiere;  ///< the folder is not there yet
};
class Coupure : public testing::TestWithParam<Cas> {};

/// What the player has whatever happens.
Contenu ajouterjoueur(Contenu contenu) {
    contenu["listes/8v5.txt"] = "changé par le joueur";
    contenu["listes/perso.txt"] = "AB;BA";
    return contenu;
}

void preparerjeu(const essais::Installe& installe, bool premiere) {
    if (!premiere) {
        essais::AppelsDessai appels;
        installe.installer(ancienne);
        static_cast<void>(installation::preparer(appels, installe.environs()));
        installe.jouer("listes/8v5.txt", "changé par le joueur");
        installe.jouer("listes/perso.txt", "AB;BA");
    }
    installe.installer(nouvelle);
}

/// The start of a program at whose call of that rank it breaks; nothing if it came to its end.
std::optional<int> demarrer(const essais::Installe& installe, Panne panne, int rang) {
    const int statut = essais::encopie([&] {
        essais::AppelsDessai appels;
        appels.prevoir(panne, rang);
        try {
            static_cast<void>(installation::preparer(appels, installe.environs()));
        } catch (const common::Faute&) {
            return 1;
        }
        return appels.atteinte() ? 1 : 0;
    });
    return statut == 0 ? std::nullopt : std::optional(statut);
}

/// Whole files only, and the old version as long as the folder says so.
void verifiercoupe(const essais::Installe& installe, const Contenu& avant, const Contenu& apres) {
    common::DisqueReel jeu(installe.jeu());
    const auto lus = installe.contenu();
    if (!installation::versionrecue(jeu).empty() && lus != apres) {
        EXPECT_EQ(lus, avant);
    }
    for (const auto& [nom, octets] : lus) {
        const bool deavant = avant.contains(nom) && avant.at(nom) == octets;
        const bool deapres = apres.contains(nom) && apres.at(nom) == octets;
        EXPECT_TRUE(deavant || deapres) << nom << " : " << octets;
    }
    for (const auto& [nom, octets] : avant)
        EXPECT_TRUE(lus.contains(nom)) << nom;
}

TEST_P(Coupure, se_reprend_au_demarrage_suivant) {
    const auto avant = GetParam().premiere ? Contenu() : ajouterjoueur(ancienne);
    const auto apres = GetParam().premiere ? nouvelle : ajouterjoueur(nouvelle);
    int rang = 1;
    for (; rang < rangs; ++rang) {
        const essais::Installe installe;
        preparerjeu(installe, GetParam().premiere);
        const auto statut = demarrer(installe, GetParam().panne, rang);
        verifiercoupe(installe, avant, apres);
        EXPECT_FALSE(demarrer(installe, Panne::Aucune, 0)) << "call " << rang;
        EXPECT_EQ(installe.contenu(), apres) << "call " << rang;
        if (!statut || HasFailure())
            break;
    }
    EXPECT_GT(rang, GetParam().panne == Panne::Dechirure ? 4 : 20) << "too few calls were broken";
    EXPECT_LT(rang, rangs);
}

INSTANTIATE_TEST_SUITE_P(Coupures, Coupure,
                         testing::Values(Cas{"tue_a_la_premiere", Panne::Avant, true},
                                         Cas{"tue", Panne::Avant, false},
                                         Cas{"dechire_a_la_premiere", Panne::Dechirure, true},
                                         Cas{"dechire", Panne::Dechirure, false},
                                         Cas{"courant_a_la_premiere", Panne::Coupure, true},
                                         Cas{"courant", Panne::Coupure, false}),
                         [](const auto& rangee) { return rangee.param.nom; });

class Refus : public testing::TestWithParam<Cas> {};

/// A call that a disk refuses may not matter, or ends the start with a report; nothing is half
/// done.
TEST_P(Refus, ne_laisse_rien_d_a_moitie_fait) {
    const auto avant = GetParam().premiere ? Contenu() : ajouterjoueur(ancienne);
    const auto apres = GetParam().premiere ? nouvelle : ajouterjoueur(nouvelle);
    int fautes = 0;
    for (int rang = 1; rang < rangs; ++rang) {
        const essais::Installe installe;
        preparerjeu(installe, GetParam().premiere);
        essais::AppelsDessai appels;
        appels.prevoir(Panne::Refus, rang);
        try {
            static_cast<void>(installation::preparer(appels, installe.environs()));
        } catch (const common::Faute&) {
            ++fautes;
        }
        verifiercoupe(installe, avant, apres);
        EXPECT_FALSE(demarrer(installe, Panne::Aucune, 0)) << "call " << rang;
        if (!appels.atteinte() || HasFailure())
            break;
    }
    EXPECT_GT(fautes, 15);
}

INSTANTIATE_TEST_SUITE_P(Coupures, Refus,
                         testing::Values(Cas{"a_la_premiere", Panne::Refus, true},
                                         Cas{"ensuite", Panne::Refus, false}),
                         [](const auto& rangee) { return rangee.param.nom; });

int demarreraufeu(const essais::Mots& mots) {
    const auto racine = common::chemin(mots[0]);
    essais::attendrefichier(racine / "feu");
    essais::AppelsPatients appels;
    try {
        static_cast<void>(installation::preparer(
            appels, {racine / "usr/games", racine / "maison/joueur/orvane"}));
    } catch (const common::Faute&) {
        return 1;
    }
    return 0;
}

/// All start at the same moment; whoever comes second waits and finds the work done.
TEST(Ensemble, plusieurs_programmes_apportent_une_seule_fois) {
    constexpr int nbprogrammes = 4;
    for (const bool premiere : {true, false}) {
        const essais::Installe installe;
        preparerjeu(installe, premiere);
        std::deque<essais::Enfant> programmes;
        for (int i = 0; i < nbprogrammes; ++i)
            programmes.emplace_back(demarreraufeu, essais::Mots{installe.racine().string()});
        installe.allumer();
        for (auto& programme : programmes)
            EXPECT_EQ(programme.attendre(), 0);
        EXPECT_EQ(installe.contenu(), premiere ? nouvelle : ajouterjoueur(nouvelle));
        EXPECT_FALSE(std::filesystem::exists(installe.jeu() / installation::dossierattente));
    }
}

int mouriraurang(const essais::Mots& mots) {
    const auto racine = common::chemin(mots[0]);
    essais::AppelsDessai appels;
    appels.prevoir(Panne::Avant, std::stoi(mots[1]));
    static_cast<void>(
        installation::preparer(appels, {racine / "usr/games", racine / "maison/joueur/orvane"}));
    return 0;
}

/// The same as of the sweep above, by programs that do end, whatever the system.
TEST(Tue, pour_de_bon_il_se_reprend_au_demarrage_suivant) {
    for (const int rang : {1, 5, 15, 25}) {
        const essais::Installe installe;
        preparerjeu(installe, false);
        EXPECT_EQ(essais::enfant(mouriraurang, {installe.racine().string(), std::to_string(rang)}),
                  essais::tue);
        verifiercoupe(installe, ajouterjoueur(ancienne), ajouterjoueur(nouvelle));
        EXPECT_FALSE(demarrer(installe, Panne::Aucune, 0));
        EXPECT_EQ(installe.contenu(), ajouterjoueur(nouvelle));
    }
}

}  // namespace
}  // namespace test_coupures
