#include <ostream>

#include <gtest/gtest.h>

#include "terminaisons.h"

namespace test_terminaisons {
namespace {

struct Cas {
    const char* nom;
    const char* forme;
    const char* verbe;
    char groupe;
    bool ordinaire;
};
void PrintTo(const Cas& c, std::ostream* os) {
    *os << c.nom;
}
class Terminaison : public testing::TestWithParam<Cas> {};
TEST_P(Terminaison, est_ordinaire_ou_non) {
    const auto& cas = GetParam();
    EXPECT_EQ(atelier::ordinaire(cas.forme, cas.verbe, cas.groupe), cas.ordinaire);
}
INSTANTIATE_TEST_SUITE_P(
    Terminaisons, Terminaison,
    testing::Values(Cas{"er", "CHANTERAIENT", "CHANTER", '1', true},
                    Cas{"er_participe", "CHANTEES", "CHANTER", '1', true},
                    Cas{"er_radical_seul", "CHANT", "CHANTER", '1', false},
                    Cas{"er_autre_radical", "ENVERRAI", "ENVOYER", '1', false},
                    Cas{"er_fin_du_troisieme_groupe", "CHANTUT", "CHANTER", '1', false},
                    Cas{"g_adouci", "MANGEONS", "MANGER", '1', true},
                    Cas{"e_derriere_une_autre_lettre", "CHANTEONS", "CHANTER", '1', false},
                    Cas{"y_en_i", "ESSUIES", "ESSUYER", '1', true},
                    Cas{"y_garde", "PAYES", "PAYER", '1', true},
                    Cas{"i_pour_une_autre_lettre", "CHANIE", "CHANTER", '1', false},
                    Cas{"consonne_doublee", "JETTES", "JETER", '1', true},
                    Cas{"autre_consonne_doublee", "JETNES", "JETER", '1', false},
                    Cas{"groupe_2", "FINISSIONS", "FINIR", '2', true},
                    Cas{"groupe_2_autre_radical", "FLORISSE", "FLEURIR", '2', false},
                    Cas{"groupe_2_fin_du_troisieme", "FINTES", "FINIR", '2', false},
                    Cas{"groupe_3_fin_propre", "VENDRAI", "VENDRE", '3', true},
                    Cas{"groupe_3_radical_seul", "VEND", "VENDRE", '3', true},
                    Cas{"groupe_3_fin_des_verbes_en_er", "VENDONS", "VENDRE", '3', true},
                    Cas{"groupe_3_fin_du_deuxieme", "VENDISSIEZ", "VENDRE", '3', true},
                    Cas{"oir_est_ote_en_entier", "RECEVRAI", "RECEVOIR", '3', true},
                    Cas{"oir_autre_radical", "RECOIVES", "RECEVOIR", '3', false},
                    Cas{"groupe_3_autre_radical", "GISAIS", "GESIR", '3', false}),
    [](const auto& cas) { return std::string(cas.param.nom); });

}  // namespace
}  // namespace test_terminaisons
