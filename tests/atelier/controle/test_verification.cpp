#include <string>

#include <gmock/gmock.h>

#include "chemin.h"
#include "dossiertemporaire.h"
#include "verification.h"

namespace test_verification {
namespace {

using atelier::Constat;
using atelier::Gravite;
using essais::DossierTemporaire;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<Constat> verifier(const std::string& nom, const std::string& octets) {
    const DossierTemporaire dossier;
    dossier.ecrire(nom, octets);
    return atelier::verifierfichier((dossier.chemin() / common::chemin(nom)).string());
}

struct Bonne {
    const char* nom;
    const char* fichier;
    std::string octets;
};
void PrintTo(const Bonne& b, std::ostream* os) {
    *os << b.nom;
}
class Bonnes : public testing::TestWithParam<Bonne> {};
TEST_P(Bonnes, n_ont_rien_a_se_reprocher) {
    EXPECT_THAT(verifier(GetParam().fichier, GetParam().octets), IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(
    Verification, Bonnes,
    testing::Values(Bonne{"vide", "perso.txt", ""},
                    Bonne{"perso_simple", "perso.txt", "ACHT;CHAT\r\n"},
                    Bonne{"perso_multiple", "perso.txt", "ENZ;NEZ;ZEN\r\nACHT;CHAT\r\n"},
                    Bonne{"indice", "3lc.txt", "(N)EZ;NEZ\r\n(Z)EN;ZEN\r\n"},
                    Bonne{"verbe_plus_un", "vbavb.txt", "ERRE+S;SERRE\r\n"},
                    Bonne{"chiffres_et_moins", "perso.txt", "1A2CH-T;CHAT\r\n"},
                    Bonne{"rallonge", "rallonge_ar_7a8L.txt", "CELEBRE;T\r\n"},
                    Bonne{"rallonges", "rallonge_av_5a6L.txt", "?AILER;BD\r\n"},
                    Bonne{"rallonges_arriere", "rallonge_ar_5a6L.txt", "AMIRA?;LT\r\n"},
                    Bonne{"benjamin", "benj_uni.txt", "ABATS;SUR\r\n"},
                    Bonne{"duo", "7l_duos_purs.txt", "ENZ;NEZ;ZEN\r\n"},
                    Bonne{"partie", "7l_duos_impurs_b.txt", "ENZ;NEZ;ZEN\r\n"},
                    Bonne{"reference", "vbi.txt", "AGIR\r\nAGI\r\n"},
                    Bonne{"notes", "infosouris.txt", "CHAT\r\n= matou\r\n"}),
    [](const auto& rangee) { return rangee.param.nom; });

struct Fautive {
    const char* nom;
    const char* fichier;
    std::string octets;
    std::size_t ligne;
    const char* ennui;
};
void PrintTo(const Fautive& f, std::ostream* os) {
    *os << f.nom;
}
class Fautives : public testing::TestWithParam<Fautive> {};
TEST_P(Fautives, sont_dites_avec_leur_ligne) {
    const auto constats = verifier(GetParam().fichier, GetParam().octets);
    ASSERT_EQ(constats.size(), 1U);
    EXPECT_EQ(constats[0].gravite, Gravite::faute);
    EXPECT_EQ(constats[0].ligne, GetParam().ligne);
    EXPECT_THAT(constats[0].texte(), HasSubstr(GetParam().fichier));
    EXPECT_THAT(constats[0].ennui, HasSubstr(GetParam().ennui));
}
INSTANTIATE_TEST_SUITE_P(
    Verification, Fautives,
    testing::Values(
        Fautive{"ligne_vide", "perso.txt", "ACHT;CHAT\r\n\r\n", 2, "ligne vide"},
        Fautive{"sans_separateur", "perso.txt", "CHAT\r\n", 1, "il manque le « ; »"},
        Fautive{"pas_anagramme", "perso.txt", "ACHT;CHAS\r\n", 1, "n'est pas fait des lettres"},
        Fautive{"minuscules", "perso.txt", "ACHT;chat\r\n", 1, "autre chose que des lettres"},
        Fautive{"tirage_accentue", "perso.txt", "\xC9T\xC9;ETE\r\n", 1,
                "autre chose que des lettres"},
        Fautive{"virgule", "perso.txt", "ACHT;CHAT,\r\n", 1, "une virgule"},
        Fautive{"doublon", "perso.txt", "ACHT;CHAT\r\nOS;OS\r\nACHT;CHAT\r\n", 3, "à la ligne 1"},
        Fautive{"deux_fois", "7l_duos_purs.txt", "ENZ;NEZ;NEZ\r\n", 1, "y est deux fois"},
        Fautive{"une_solution", "7l_duos_purs.txt", "ENZ;NEZ\r\n", 1, "de 2 à 5"},
        Fautive{"six_solutions", "perso.txt", "AB;AB;BA;AB;BA;AB;BA\r\n", 1, "de 1 à 5"},
        Fautive{"deux_solutions", "7v5.txt", "ENZ;NEZ;ZEN\r\n", 1, "on en attend 1"},
        Fautive{"solution_vide", "perso.txt", "ACHT;\r\n", 1, "autre chose que des lettres"},
        Fautive{"trop_long", "perso.txt",
                std::string(16, 'A') + ";" + std::string(16, 'A') + "\r\n", 1,
                "la limite est de 15"},
        Fautive{"rallonge_desordre", "rallonge_av_5a6L.txt", "?AILER;DB\r\n", 1, "alphabétique"},
        Fautive{"benjamin_court", "benj_uni.txt", "ABATS;SU\r\n", 1, "trois lettres"},
        Fautive{"reference_minuscule", "inv.txt", "ici\r\n", 1, "en capitales"},
        Fautive{"reference_doublon", "inv.txt", "ICI\r\nICI\r\n", 2, "déjà dans la liste"},
        Fautive{"reference_vide", "inv.txt", "\r\nICI\r\n", 1, "en capitales"},
        Fautive{"note_qui_est_un_mot", "infosouris.txt", "CHAT\r\nMATOU\r\n", 2, "passerait pour"},
        Fautive{"note_vide", "infosouris.txt", "CHAT\r\n\r\n", 2, "ligne vide"},
        Fautive{"note_manquante", "infosouris.txt", "CHAT\r\n", 1, "il manque la note"},
        Fautive{"note_sans_mot", "infosouris.txt", "chat\r\n= matou\r\n", 1, "en capitales"}),
    [](const auto& rangee) { return rangee.param.nom; });

struct Remarque {
    const char* nom;
    std::string octets;
    const char* ennui;
};
void PrintTo(const Remarque& r, std::ostream* os) {
    *os << r.nom;
}
class Remarques : public testing::TestWithParam<Remarque> {};
TEST_P(Remarques, ne_sont_pas_des_fautes) {
    const auto constats = verifier("perso.txt", GetParam().octets);
    ASSERT_EQ(constats.size(), 1U);
    EXPECT_EQ(constats[0].gravite, Gravite::remarque);
    EXPECT_THAT(constats[0].texte(), HasSubstr("remarque : "));
    EXPECT_THAT(constats[0].ennui, HasSubstr(GetParam().ennui));
}
INSTANTIATE_TEST_SUITE_P(
    Verification, Remarques,
    testing::Values(Remarque{"lf_seul", "ACHT;CHAT\r\nOS;OS\n", "LF sans CR"},
                    Remarque{"derniere_non_finie", "ACHT;CHAT", "n'est pas finie"},
                    Remarque{"dernier_tirage_court", "ABCDEFGHI;ABCDEFGHI\r\nOS;OS\r\n",
                             "n'est pas le plus long"}),
    [](const auto& rangee) { return rangee.param.nom; });

/// So many rows of this many solutions, all different.
std::string lignes(std::size_t nombre, std::size_t solutions) {
    std::string texte;
    for (std::size_t i = 0; i < nombre; ++i) {
        std::string mot = "AAAAA";
        auto reste = i;
        for (auto& lettre : mot) {
            lettre = static_cast<char>('A' + reste % 26);
            reste /= 26;
        }
        mot += "XYZ";
        texte += mot;
        for (std::size_t s = 0; s < solutions; ++s) {
            texte += ';' + mot;
            std::next_permutation(mot.begin() + 5, mot.end());
        }
        texte += "\r\n";
    }
    return texte;
}

TEST(Verification, une_liste_tient_dans_sa_forme) {
    EXPECT_THAT(verifier("perso.txt", lignes(15000, 1)), IsEmpty());
    EXPECT_THAT(verifier("perso.txt", lignes(15001, 1)).at(0).ennui,
                HasSubstr("la limite est de 15000"));
    EXPECT_THAT(verifier("perso.txt", lignes(8001, 4)), IsEmpty());
    EXPECT_THAT(verifier("perso.txt", lignes(8002, 2)).at(0).ennui,
                HasSubstr("la limite est de 8001"));
    EXPECT_THAT(verifier("perso.txt", lignes(6553, 5)), IsEmpty());
    EXPECT_THAT(verifier("perso.txt", lignes(6554, 5)).at(0).ennui,
                HasSubstr("la limite est de 32767"));
}

TEST(Verification, une_reference_tient_dans_sa_table) {
    std::string mots;
    for (const char a : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ"))
        for (const char b : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ"))
            for (const char c : std::string("AB"))
                mots += std::string{a, b, c} + "\r\n";
    EXPECT_THAT(verifier("inv.txt", mots).at(0).ennui, HasSubstr("la limite est de 1001"));
    EXPECT_THAT(verifier("vbi.txt", mots), IsEmpty());
}

TEST(Verification, un_fichier_absent_est_une_faute) {
    const DossierTemporaire dossier;
    const auto constats = atelier::verifierfichier((dossier.chemin() / "rien.txt").string());
    ASSERT_EQ(constats.size(), 1U);
    EXPECT_THAT(constats[0].texte(), HasSubstr("fichier introuvable"));
}

TEST(Verification, un_dossier_vide_manque_de_tout) {
    const DossierTemporaire dossier;
    // 115 lists, the first part of each of the 37 in parts, six reference lists.
    EXPECT_EQ(atelier::verifierdossier(dossier.chemin().string()).size(), 115U + 37U + 6U);
}

}  // namespace
}  // namespace test_verification
