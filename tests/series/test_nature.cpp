#include <gtest/gtest.h>

#include "catalogue.h"
#include "nature.h"

namespace test_nature {
namespace {

using series::Nature;

struct Cas {
    const char* regle;
    const char* typ;
    const char* nombase;
    Nature nature;
};

class Naturedelaliste : public testing::TestWithParam<Cas> {};

TEST_P(Naturedelaliste, vient_du_panneau_et_du_titre) {
    EXPECT_EQ(series::naturedelaliste(GetParam().typ, GetParam().nombase), GetParam().nature);
}

INSTANTIATE_TEST_SUITE_P(
    , Naturedelaliste,
    testing::Values(
        Cas{"une_liste_ordinaire", "", "Mots 7L", Nature::Simple},
        Cas{"sans_titre", "", "", Nature::Simple},
        Cas{"devant", "rallong", "Rallonges avant 7-8", Nature::Rallongesavant},
        Cas{"derriere", "rallong", "Rallonges arrière 7-8", Nature::Rallongesarriere},
        Cas{"devant_en_revision", "rallong", "Rallonges avant (révisions)", Nature::Rallongesavant},
        Cas{"un_titre_qui_ne_dit_pas_le_cote", "rallong", "Ma liste", Nature::Rallongesautres},
        Cas{"le_titre_se_lit_de_son_debut", "rallong", "Les Rallonges avant",
            Nature::Rallongesautres},
        Cas{"le_titre_hors_du_panneau_ne_fait_pas_de_rallonges", "", "Rallonges avant 7-8",
            Nature::Simple},
        Cas{"benjamins", "", "Benjamins uniques", Nature::Benjamins},
        Cas{"benjamins_en_revision", "", "Benjamins uniques (révisions)",
            Nature::Benjaminsenrevision},
        Cas{"benjamins_suivis_d_autre_chose", "", "Benjamins uniques 2", Nature::Simple},
        Cas{"le_panneau_passe_avant_le_titre", "rallong", "Benjamins uniques",
            Nature::Rallongesautres}),
    [](const auto& cas) { return cas.param.regle; });

Nature attendue(menu::Reponses reponses) {
    switch (reponses) {
        case menu::Reponses::devant:
            return Nature::Rallongesavant;
        case menu::Reponses::derriere:
            return Nature::Rallongesarriere;
        case menu::Reponses::benjamin:
            return Nature::Benjamins;
        case menu::Reponses::mots:
            break;
    }
    return Nature::Simple;
}

TEST(Naturesducatalogue, le_titre_de_chaque_liste_dit_ce_que_dit_sa_rangee) {
    for (const auto& panneau : menu::panneaux()) {
        for (const auto& rangee : panneau.rangees)
            EXPECT_EQ(series::naturedelaliste(panneau.typ, rangee.libelle),
                      attendue(rangee.reponses))
                << rangee.libelle;
    }
}

struct Effet {
    const char* regle;
    Nature nature;
    bool rallonges;
    bool lettresdutirage;
    bool avecnotes;
};

class Effetdelanature : public testing::TestWithParam<Effet> {};

TEST_P(Effetdelanature, est) {
    EXPECT_EQ(series::rallonges(GetParam().nature), GetParam().rallonges);
    EXPECT_EQ(series::lettresdutirage(GetParam().nature), GetParam().lettresdutirage);
    EXPECT_EQ(series::avecnotes(GetParam().nature), GetParam().avecnotes);
}

INSTANTIATE_TEST_SUITE_P(
    Nature, Effetdelanature,
    testing::Values(Effet{"simple", Nature::Simple, false, true, true},
                    Effet{"avant", Nature::Rallongesavant, true, false, true},
                    Effet{"arriere", Nature::Rallongesarriere, true, false, true},
                    Effet{"autres", Nature::Rallongesautres, true, false, true},
                    Effet{"benjamins", Nature::Benjamins, false, false, false},
                    Effet{"benjamins_en_revision", Nature::Benjaminsenrevision, false, true,
                          false}),
    [](const auto& cas) { return cas.param.regle; });

}  // namespace
}  // namespace test_nature
