#include <array>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "reference.h"

namespace test_reference {
namespace {

using series::Lignesdemots;
using series::Note;
using series::Recherche;
using testing::AllOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

using Mots = std::vector<std::string>;

const auto regle = [](const auto& cas) { return cas.param.regle; };

struct Demande {
    const char* regle;
    Mots mots;
    std::string octets;
    std::vector<std::size_t> rangs;
};

class Rangs : public testing::TestWithParam<Demande> {};

TEST_P(Rangs, des_mots_egaux) {
    EXPECT_THAT(Recherche(GetParam().mots).rangs(GetParam().octets),
                ElementsAreArray(GetParam().rangs));
}

INSTANTIATE_TEST_SUITE_P(
    Recherche, Rangs,
    testing::Values(
        Demande{"un", {"A", "B"}, "B", {1}}, Demande{"aucun", {"A", "B"}, "C", {}},
        Demande{"le_meme_deux_fois", {"A", "B", "A"}, "A", {0, 2}},
        Demande{"vide_jamais", {"", "A"}, "", {}}, Demande{"sans_mot", {}, "A", {}},
        Demande{"casse_exacte", {"a"}, "A", {}}, Demande{"debut_d_un_mot", {"ABC"}, "AB", {}},
        Demande{"meme_longueur_et_memes_reperes", {"ABAB"}, "ACAB", {}},
        Demande{"en_octets_de_la_page_de_codes", {"ÉTÉ", "œ"}, "\x9C", {1}},
        Demande{"accent", {"ÉTÉ"}, "\xC9T\xC9", {0}},
        Demande{"hors_de_la_page_de_codes_jamais", {"Ω"}, "\xCE\xA9", {}},
        Demande{"long", {std::string(40, 'A'), std::string(50, 'A')}, std::string(50, 'A'), {1}}),
    regle);

/// A reference file of these bytes.
class Fichier : public testing::Test {
  protected:
    [[nodiscard]] std::vector<bool> liste(const std::string& octets, const Mots& mots,
                                          std::size_t limite = 5001) {
        dossier.ecrire("liste.txt", octets);
        return series::chercherliste(disque, "liste.txt", limite, Recherche(mots), mots.size());
    }
    [[nodiscard]] std::vector<Note> notes(const std::string& octets, const Mots& mots,
                                          Lignesdemots lignes, std::size_t limite = 500001) {
        dossier.ecrire("notes.txt", octets);
        return series::cherchernotes(disque, "notes.txt", limite, lignes, Recherche(mots));
    }

    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
};

struct Contenu {
    const char* regle;
    std::string octets;
    std::vector<bool> trouves;  ///< of A, B, A, É
};

class Liste : public Fichier, public testing::WithParamInterface<Contenu> {};

TEST_P(Liste, dit_quels_mots_elle_contient) {
    EXPECT_EQ(liste(GetParam().octets, {"A", "B", "A", "É"}), GetParam().trouves);
}

INSTANTIATE_TEST_SUITE_P(
    Reference, Liste,
    testing::Values(
        Contenu{"vide", "", {false, false, false, false}},
        Contenu{"un_mot_la_ou_il_est", "X\r\nB\r\n", {false, true, false, false}},
        Contenu{"le_meme_mot_de_deux_boites", "A\r\n", {true, false, true, false}},
        Contenu{"un_mot_deux_fois_dans_le_fichier", "B\r\nB\r\n", {false, true, false, false}},
        Contenu{"par_items_virgules_et_blancs", "X,  B,A", {true, true, true, false}},
        Contenu{"entre_guillemets", "\"B\"\r\n", {false, true, false, false}},
        Contenu{"un_item_vide_cache_la_suite", "A\r\n\r\nB\r\n", {true, false, true, false}},
        Contenu{"une_virgule_de_trop_cache_la_suite", "A,,B\r\n", {true, false, true, false}},
        Contenu{"mot_accentue", "\xC9\r\n", {false, false, false, true}}),
    regle);

TEST_F(Fichier, d_une_liste_a_la_limite_se_lit) {
    EXPECT_EQ(liste("X\r\nY\r\nA\r\n", {"A"}, 3), std::vector{true});
}

TEST_F(Fichier, d_une_liste_au_dela_de_la_limite_est_une_faute) {
    EXPECT_THAT([this] { static_cast<void>(liste("A\r\nB\r\nC\r\n", {"A"}, 2)); },
                ThrowsMessage<common::Faute>(AllOf(HasSubstr("liste.txt"), HasSubstr("ligne 3 "),
                                                   HasSubstr("limite est de 2"))));
}

TEST_F(Fichier, d_une_liste_cache_compte_dans_la_limite) {
    EXPECT_THROW(static_cast<void>(liste("A\r\n\r\nC\r\n", {"A"}, 2)), common::Faute);
}

TEST_F(Fichier, absent_est_une_faute) {
    EXPECT_THAT(
        [this] {
            static_cast<void>(series::chercherliste(disque, "rien.txt", 1, Recherche(Mots{}), 0));
        },
        ThrowsMessage<common::Faute>(AllOf(HasSubstr("rien.txt"), HasSubstr("introuvable"))));
}

struct Annotation {
    const char* regle;
    std::string octets;
    Lignesdemots lignes;
    std::vector<Note> notes;  ///< of the words A and B
};

class Notes : public Fichier, public testing::WithParamInterface<Annotation> {};

TEST_P(Notes, des_mots) {
    EXPECT_THAT(notes(GetParam().octets, {"A", "B"}, GetParam().lignes),
                ElementsAreArray(GetParam().notes));
}

constexpr auto paires = Lignesdemots::Paires;
constexpr auto toutes = Lignesdemots::Toutes;

INSTANTIATE_TEST_SUITE_P(
    Reference, Notes,
    testing::Values(
        Annotation{"aucune", "X\r\nnote\r\n", paires, {}},
        Annotation{"la_ligne_suivante",
                   "A\r\nnote, avec virgule\r\n",
                   paires,
                   {{0, "note, avec virgule"}}},
        Annotation{"dans_l_ordre_du_fichier", "B\r\nb\r\nA\r\na\r\n", paires, {{1, "b"}, {0, "a"}}},
        Annotation{"un_mot_deux_fois_deux_notes",
                   "A\r\nun\r\nA\r\ndeux\r\n",
                   paires,
                   {{0, "un"}, {0, "deux"}}},
        Annotation{
            "paires_une_note_egale_au_mot_n_est_pas_un_mot", "X\r\nA\r\nY\r\nB\r\n", paires, {}},
        Annotation{
            "toutes_une_note_egale_au_mot_en_est_un", "X\r\nA\r\nY\r\nB\r\n", toutes, {{0, "Y"}}},
        Annotation{"toutes_une_note_peut_en_appeler_une_autre",
                   "A\r\nB\r\nnote\r\n",
                   toutes,
                   {{0, "B"}, {1, "note"}}},
        Annotation{"dernier_mot_sans_ligne_suivante", "X\r\nx\r\nA\r\n", paires, {}},
        Annotation{"toutes_derniere_note_sans_ligne_suivante", "X\r\nA\r\n", toutes, {}},
        Annotation{"mot_vide_finit_la_recherche", "X\r\nx\r\n\r\ny\r\nA\r\na\r\n", paires, {}},
        Annotation{"paires_note_vide_ne_finit_rien", "X\r\n\r\nA\r\na\r\n", paires, {{0, "a"}}},
        Annotation{"toutes_note_vide_finit_la_recherche", "X\r\n\r\nA\r\na\r\n", toutes, {}},
        Annotation{"une_note_vide_est_une_note", "A\r\n\r\n", paires, {{0, ""}}},
        Annotation{"toutes_une_note_vide_est_une_note", "A\r\n\r\nB\r\nb\r\n", toutes, {{0, ""}}},
        Annotation{"lignes_entieres", " A\r\nx\r\nA,\r\ny\r\n\"A\"\r\nz\r\n", paires, {}},
        Annotation{"note_accentuee", "A\r\nd\xE9j\xE0\r\n", paires, {{0, "déjà"}}},
        Annotation{"fichier_vide", "", toutes, {}}),
    regle);

TEST_F(Fichier, de_notes_a_la_limite_se_lit) {
    EXPECT_THAT(notes("X\r\nx\r\nA\r\na\r\n", {"A"}, paires, 4), ElementsAre(Note{0, "a"}));
}

TEST_F(Fichier, de_notes_au_dela_de_la_limite_est_une_faute) {
    EXPECT_THAT([this] { static_cast<void>(notes("A\r\na\r\nB\r\n", {"Z"}, toutes, 2)); },
                ThrowsMessage<common::Faute>(AllOf(HasSubstr("notes.txt"), HasSubstr("ligne 3 "),
                                                   HasSubstr("limite est de 2"))));
}

TEST_F(Fichier, de_notes_se_lit_jusqu_au_bout_meme_sans_mot_a_chercher) {
    EXPECT_THAT(notes("X\r\nx\r\n", {}, paires), IsEmpty());
    EXPECT_THROW(static_cast<void>(notes("X\r\nx\r\n", {}, paires, 1)), common::Faute);
}

}  // namespace
}  // namespace test_reference
