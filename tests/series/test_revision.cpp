#include <array>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "listes.h"
#include "revision.h"

namespace test_revision {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::ThrowsMessage;

const auto regle = [](const auto& cas) { return cas.param.regle; };

struct Nom {
    const char* regle;
    const char* fich;
    const char* toue;
    const char* util;
    const char* attendu;
};

class Fichierderevision : public testing::TestWithParam<Nom> {};

TEST_P(Fichierderevision, a_pour_nom) {
    const auto& [nom, fich, toue, util, attendu] = GetParam();
    EXPECT_EQ(series::nomfichierderevision(fich, toue, util), attendu);
}

INSTANTIATE_TEST_SUITE_P(
    Revision, Fichierderevision,
    testing::Values(
        Nom{"liste_entiere", "listes\\7v5.txt", "T", "Léa", "Léa\\rev-7v5.txt"},
        Nom{"echantillon", "listes\\7v5.txt", "E", "Léa", "Léa\\rev-7v5.txt"},
        Nom{"partie_a", "listes\\vb6_a.txt", "", "Léa", "Léa\\rev-vb6.txt"},
        Nom{"tout_caractere_fait_une_partie", "listes\\duos_1.txt", "T", "Léa",
            "Léa\\rev-duos.txt"},
        Nom{"deux_caracteres_n_en_font_pas", "listes\\vb_ab.txt", "T", "L", "L\\rev-vb_ab.txt"},
        Nom{"souligne_juste_devant_l_extension", "listes\\vb_.txt", "T", "L", "L\\rev-vb_.txt"},
        Nom{"revision_d_elle_meme", "Léa\\rev-7v5.txt", "R", "Léa", "Léa\\rev-7v5.txt"},
        Nom{"revision_d_un_nom_de_partie", "Léa\\rev-x_1.txt", "R", "Léa", "Léa\\rev-x.txt"},
        Nom{"utilisateur_accentue_en_caracteres", "listes\\é_é.txt", "", "É", "É\\rev-é.txt"}),
    regle);

struct Suffixe {
    const char* regle;
    const char* chemin;
    const char* attendu;
};

class Partie : public testing::TestWithParam<Suffixe> {};

TEST_P(Partie, se_retranche) {
    EXPECT_EQ(common::sanspartie(GetParam().chemin), GetParam().attendu);
}

INSTANTIATE_TEST_SUITE_P(Revision, Partie,
                         testing::Values(Suffixe{"a", "x_a.txt", "x.txt"},
                                         Suffixe{"sans", "xa.txt", "xa.txt"},
                                         Suffixe{"nom_trop_court", ".txt", ".txt"},
                                         Suffixe{"seule", "_a.txt", ".txt"},
                                         Suffixe{"une_seule_fois", "x_a_b.txt", "x_a.txt"},
                                         Suffixe{"caractere_accentue", "x_é.txt", "x.txt"}),
                         regle);

/// The revision file "Léa/rev-x.txt".
class Revision : public testing::Test {
  protected:
    Revision() { std::filesystem::create_directory(dossier.chemin() / u8"Léa"); }
    void ecrire(const std::string& octets) { dossier.ecrire("Léa/rev-x.txt", octets); }
    [[nodiscard]] std::string lire() const { return dossier.lire("Léa/rev-x.txt"); }
    [[nodiscard]] std::vector<bool> presents(const std::vector<std::string>& lignes) {
        return series::presentsenrevision(disque, chemin, lignes);
    }

    static constexpr const char* chemin = "Léa\\rev-x.txt";
    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
};

TEST_F(Revision, dit_quelles_rangees_il_contient) {
    ecrire("AB;BA\r\nCD;DC\r\n");
    EXPECT_EQ(presents({"CD;DC", "EF;FE", "AB;BA"}), (std::vector{true, false, true}));
}

TEST_F(Revision, une_rangee_avec_virgule_fait_deux_items_et_n_y_est_jamais) {
    ecrire("A,B;BA\r\n");
    EXPECT_EQ(presents({"A,B;BA", "A"}), (std::vector{false, true}));
}

TEST_F(Revision, un_item_vide_ne_cache_rien) {
    ecrire("\r\nAB;BA\r\n");
    EXPECT_EQ(presents({"AB;BA"}), std::vector{true});
}

TEST_F(Revision, d_une_partie_est_celui_de_la_liste) {
    ecrire("AB;BA\r\n");
    EXPECT_EQ(
        series::presentsenrevision(disque, "Léa\\rev-x_a.txt", std::vector<std::string>{"AB;BA"}),
        std::vector{true});
}

TEST_F(Revision, absent_est_une_faute) {
    EXPECT_THAT([this] { static_cast<void>(presents({"AB;BA"})); },
                ThrowsMessage<common::Faute>(AllOf(HasSubstr(chemin), HasSubstr("introuvable"))));
}

TEST_F(Revision, gagne_des_lignes_a_sa_fin) {
    ecrire("AB;BA\r\n");
    series::ajouterenrevision(disque, chemin, std::array<std::string, 2>{"CD;DC", "ÉF;FÉ"});
    EXPECT_EQ(lire(),
              "AB;BA\r\nCD;DC\r\n\xC9"
              "F;F\xC9\r\n");
}

TEST_F(Revision, sans_ligne_a_ajouter_n_est_pas_cree) {
    series::ajouterenrevision(disque, chemin, std::vector<std::string>{});
    EXPECT_FALSE(disque.existe(chemin));
}

struct Retrait {
    const char* regle;
    const char* avant;
    const char* apres;
};

class Retirer : public Revision, public testing::WithParamInterface<Retrait> {};

TEST_P(Retirer, la_rangee_AB_BA) {
    ecrire(GetParam().avant);
    series::retirerderevision(disque, chemin, "AB;BA");
    EXPECT_EQ(lire(), GetParam().apres);
}

INSTANTIATE_TEST_SUITE_P(
    Revision, Retirer,
    testing::Values(Retrait{"garde_l_ordre", "CD;DC\r\nAB;BA\r\nEF;FE\r\n", "CD;DC\r\nEF;FE\r\n"},
                    Retrait{"partout_ou_elle_est", "AB;BA\r\nCD;DC\r\nAB;BA\r\n", "CD;DC\r\n"},
                    Retrait{"la_derniere_laisse_le_fichier_vide", "AB;BA\r\n", ""},
                    Retrait{"absente_rien_ne_change", "CD;DC\r\n", "CD;DC\r\n"},
                    Retrait{"les_lignes_vides_s_en_vont", "\r\nCD;DC\r\n\r\n", "CD;DC\r\n"},
                    Retrait{"sans_fin_de_ligne", "AB;BA\r\nCD;DC", "CD;DC\r\n"},
                    Retrait{"une_rangee_plus_longue_reste", "AB;BA;\r\nAB;BA\r\n", "AB;BA;\r\n"}),
    regle);

std::string lignes(std::size_t nombre) {
    std::string octets;
    for (std::size_t i = 0; i < nombre; ++i)
        octets += "CD;DC\r\n";
    return octets;
}

TEST_F(Revision, de_5001_rangees_en_perd_une) {
    ecrire("AB;BA\r\n" + lignes(series::limiterevision - 1));
    series::retirerderevision(disque, chemin, "AB;BA");
    EXPECT_EQ(lire(), lignes(5000));
}

TEST_F(Revision, de_5002_rangees_est_une_faute_qui_le_laisse_intact) {
    const auto octets = "AB;BA\r\n" + lignes(series::limiterevision);
    ecrire(octets);
    EXPECT_THAT([this] { series::retirerderevision(disque, chemin, "AB;BA"); },
                ThrowsMessage<common::Faute>(AllOf(HasSubstr(chemin), HasSubstr("ligne 5002 "),
                                                   HasSubstr("limite est de 5001"))));
    EXPECT_EQ(lire(), octets);
}

}  // namespace
}  // namespace test_revision
