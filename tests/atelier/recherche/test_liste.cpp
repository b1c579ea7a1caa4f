#include <algorithm>
#include <filesystem>
#include <numeric>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "petitglossaire.h"
#include "verification.h"

namespace test_liste {
namespace {

using namespace recherche;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const Glossaire& glossaire() {
    static const auto g = essais::glossaire(essais::vocabulaire(
        essais::seuls({"art", "rat", "tra", "nez", "zen", "su", "us", "quart", "bel", "lianes",
                       "salien", "alines", "enlias", "sialne", "nilase", "aneils"})));
    return g;
}

std::variant<Liste, Refus> faire(std::string_view criteres) {
    const essais::Listes aucune;
    const auto contexte = essais::contexte(glossaire(), aucune);
    const auto lue = liredemande(criteres, contexte);
    return enliste(glossaire(), chercher(glossaire(), std::get<Demande>(lue), 1));
}

std::vector<std::string> rangees(std::string_view criteres) {
    return std::get<Liste>(faire(criteres)).rangees;
}

TEST(Liste, un_mot_seul_sur_ses_lettres_a_un_tirage_nu_et_un_autre_un_indice) {
    EXPECT_THAT(rangees("debut=QU"), ElementsAre("AQRTU;QUART"));
    EXPECT_THAT(rangees("debut=N fin=Z"), ElementsAre("(N)EZ;NEZ"));
    EXPECT_THAT(rangees("debut=TR"), ElementsAre("(T)AR;TRA"));
    EXPECT_THAT(rangees("debut=SU"), ElementsAre("(S)U;SU"));
}

TEST(Liste, les_rangees_vont_par_taille_par_lettres_puis_par_solutions) {
    EXPECT_THAT(rangees("motif=[AQ]*T ordre=poids"), ElementsAre("(A)RT;ART", "AQRTU;QUART"));
    EXPECT_THAT(rangees("longueur=2-3 par=2-5"),
                ElementsAre("SU;SU;US", "ART;ART;RAT;TRA", "ENZ;NEZ;ZEN"));
}

TEST(Liste, un_melange_est_refuse) {
    const auto faite = faire("longueur=3");
    ASSERT_TRUE(std::holds_alternative<Refus>(faite));
    EXPECT_THAT(std::get<Refus>(faite).texte(), HasSubstr("par : ces mots mêlent"));
}

TEST(Liste, sur_le_papier_tous_les_tirages_vont_ensemble) {
    const essais::Listes aucune;
    const auto contexte = essais::contexte(glossaire(), aucune);
    const auto places = [&](std::string_view criteres) {
        const auto lue = liredemande(criteres, contexte);
        return chercher(glossaire(), std::get<Demande>(lue), 1);
    };
    const auto melee = surpapier(glossaire(), places("longueur=2-3"));
    EXPECT_THAT(melee.rangees,
                ElementsAre("SU;SU;US", "ART;ART;RAT;TRA", "BEL;BEL", "ENZ;NEZ;ZEN"));
    EXPECT_THAT(melee.laisses, IsEmpty());
    EXPECT_THAT(surpapier(glossaire(), places("longueur=6")).laisses,
                ElementsAre(HasSubstr("1 tirage laissé de côté")));
}

TEST(Liste, un_tirage_de_plus_de_cinq_mots_est_laisse_et_compte) {
    for (const auto* criteres : {"longueur=6", "longueur=6 par=2-5", "longueur=6 par=1"}) {
        const auto liste = std::get<Liste>(faire(criteres));
        EXPECT_THAT(liste.rangees, IsEmpty()) << criteres;
        EXPECT_THAT(liste.laisses, ElementsAre(HasSubstr("1 tirage laissé de côté"))) << criteres;
    }
    EXPECT_THAT(rangees("longueur=6 max=5"),
                ElementsAre("AEILNS;ALINES;ANEILS;ENLIAS;LIANES;NILASE"));
}

/// Words on racks of their own: four letters in base 20, and two that tell them apart.
std::string nombreux(std::size_t nombre, bool doubles) {
    std::string lignes;
    for (std::size_t i = 0; lignes.size() < nombre * 16 && i < 456976; ++i) {
        std::string mot;
        for (std::size_t reste = i, k = 0; k < 4; ++k, reste /= 26)
            mot += static_cast<char>('a' + reste % 26);
        if (!std::is_sorted(mot.begin(), mot.end()))
            continue;
        lignes += mot + (doubles ? "xy po:adv\n" : "z po:adv\n");
        if (doubles)
            lignes += mot + "yx po:adv\n";
    }
    return lignes;
}

TEST(Liste, tient_les_bornes_d_une_forme_et_dit_ce_qu_elle_laisse) {
    const auto lignes = nombreux(23000, false);
    const auto g = essais::glossaire(essais::vocabulaire(lignes));
    ASSERT_GT(g.fiches().size(), 15000U);
    std::vector<std::uint32_t> places(g.fiches().size());
    std::iota(places.rbegin(), places.rend(), 0U);
    const auto liste = std::get<Liste>(enliste(g, places));
    EXPECT_EQ(liste.rangees.size(), 15000U);
    EXPECT_THAT(liste.laisses,
                ElementsAre(HasSubstr(std::to_string(places.size() - 15000) + " tirages")));
    // The order of the words decides, not that of the rows.
    const auto derniere = std::string(g.fiches().back().texte());
    EXPECT_THAT(liste.rangees, testing::Contains(HasSubstr(";" + derniere)));
}

TEST(Liste, passe_la_verification_des_listes) {
    const essais::DossierTemporaire dossier;
    std::string octets;
    for (const auto& rangee : rangees("par=2-5"))
        octets += rangee + "\r\n";
    dossier.ecrire("mienne.txt", octets);
    EXPECT_THAT(atelier::verifierfichier((dossier.chemin() / "mienne.txt").string()), IsEmpty());
}

class Listeslues : public testing::Test {
  protected:
    Listeslues() { std::filesystem::create_directories(dossier.chemin() / "listes"); }
    std::vector<std::string> mots(const char* fichier, const char* octets) {
        dossier.ecrire(std::string("listes/") + fichier, octets);
        return std::get<std::vector<std::string>>(motsdeliste(disque, fichier));
    }
    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
};

TEST_F(Listeslues, les_solutions_sont_les_mots) {
    EXPECT_THAT(mots("mienne.txt", "(N)EZ;NEZ\r\nART;ART;RAT\r\n\r\nrien\r\n"),
                ElementsAre("NEZ", "ART", "RAT"));
    EXPECT_THAT(mots("ods7.txt", "NEZ\r\nZEN"), ElementsAre("NEZ", "ZEN"));
}

TEST_F(Listeslues, les_rallonges_et_les_benjamins_sont_les_mots_entiers) {
    EXPECT_THAT(mots("rallonge_av_5a6L.txt", "?ACHES;BV\r\n"), ElementsAre("BACHES", "VACHES"));
    EXPECT_THAT(mots("rallonge_ar_6a7L.txt", "CELEBRE;T\r\n"), ElementsAre("CELEBRET"));
    EXPECT_THAT(mots("benj_uni.txt", "SAUTE;RES\r\n"), ElementsAre("RESSAUTE"));
}

TEST_F(Listeslues, ce_qui_ne_se_lit_pas_est_dit) {
    EXPECT_THAT(std::get<std::string>(motsdeliste(disque, "absente.txt")),
                HasSubstr("listes\\absente.txt ne peut être lu"));
    EXPECT_THAT(std::get<std::string>(motsdeliste(disque, "../users.dat")),
                HasSubstr("un fichier du dossier listes"));
}

}  // namespace
}  // namespace test_liste
