// What makes a download one that can be trusted.

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "confiance.h"

namespace test_confiance {
namespace {

struct Adresse {
    const char* nom;
    const char* adresse;
    bool sure;
};

void PrintTo(const Adresse& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Adresses : public testing::TestWithParam<Adresse> {};

TEST_P(Adresses, sure_ou_non) {
    EXPECT_EQ(ui::adressesure(GetParam().adresse), GetParam().sure) << GetParam().adresse;
}

INSTANTIATE_TEST_SUITE_P(
    Confiance, Adresses,
    testing::Values(
        Adresse{"chiffree", "https://ailleurs.example/orvane_setup.exe", true},
        Adresse{"chiffree_en_majuscules", "HTTPS://ailleurs.example/", true},
        Adresse{"blancs_devant", " \thttps://ailleurs.example/", true},
        Adresse{"en_clair", "http://ailleurs.example/orvane_setup.exe", false},
        Adresse{"en_clair_de_cette_machine", "http://127.0.0.1/orvane_setup.exe", true},
        Adresse{"en_clair_de_cette_machine_et_d_un_port", "http://127.0.0.1:8080/a", true},
        Adresse{"cette_machine_sans_chemin", "http://127.0.0.1", true},
        Adresse{"cette_machine_par_son_nom", "http://localhost/orvane_setup.exe", false},
        Adresse{"nom_qui_commence_comme_cette_machine", "http://127.0.0.1.example/a", false},
        Adresse{"usager_qui_ressemble_a_cette_machine", "http://127.0.0.1@example/a", false},
        Adresse{"mot_de_passe_qui_ressemble_a_un_port", "http://127.0.0.1:80@example/a", false},
        Adresse{"autre_numero", "http://127.0.0.10/a", false},
        Adresse{"fichier", "file:///tmp/orvane_setup.exe", false},
        Adresse{"sans_protocole", "ailleurs.example", false}, Adresse{"vide", "", false},
        Adresse{"blancs_seuls", "  ", false}),
    [](const auto& cas) { return std::string(cas.param.nom); });

struct Somme {
    const char* nom;
    const char* publiee;
    const char* trouvee;
    bool meme;
};

void PrintTo(const Somme& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Sommes : public testing::TestWithParam<Somme> {};

TEST_P(Sommes, meme_ou_non) {
    EXPECT_EQ(ui::memesomme(GetParam().publiee, GetParam().trouvee), GetParam().meme);
}

INSTANTIATE_TEST_SUITE_P(
    Confiance, Sommes,
    testing::Values(Somme{"pareille", "0a1b", "0a1b", true},
                    Somme{"en_majuscules", "0A1B", "0a1b", true},
                    Somme{"entre_des_blancs", " 0a1b\t", "0a1b", true},
                    Somme{"autre", "0a1c", "0a1b", false}, Somme{"coupee", "0a1", "0a1b", false},
                    Somme{"suivie_d_un_nom", "0a1b  orvane_setup.exe", "0a1b", false},
                    Somme{"vide", "", "0a1b", false}, Somme{"blancs_seuls", " ", "0a1b", false},
                    Somme{"que_personne_n_a_calculee", "", "", false}),
    [](const auto& cas) { return std::string(cas.param.nom); });

}  // namespace
}  // namespace test_confiance
