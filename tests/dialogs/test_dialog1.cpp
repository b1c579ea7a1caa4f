#include <gtest/gtest.h>

#include "adresses.h"
#include "dialog1.h"
#include "voisinage.h"

namespace test_dialog1 {
namespace {

using namespace std::string_literals;

/// The head of a BMP file: 26 bytes, sides in four bytes, lowest first.
std::string bmp(int largeur, int hauteur) {
    std::string tete = "BM" + std::string(24, '\0');
    const auto ecrire = [&tete](std::size_t place, int cote) {
        for (int i = 0; i < 4; ++i)
            tete[place + static_cast<std::size_t>(i)] =
                static_cast<char>(static_cast<unsigned>(cote) >> (8U * static_cast<unsigned>(i)));
    };
    ecrire(18, largeur);
    ecrire(22, hauteur);
    return tete;
}

class Dialog1 : public testing::Test {
  protected:
    essai::Voisinage v;
    dialogs::Dialog1 form{v.plateforme, v.form3};

    [[nodiscard]] ui::Controle& controle(const char* nom) const { return form.controle(nom); }
    [[nodiscard]] bool visible(const char* nom) const { return controle(nom).visible(); }
    void poser(const char* nom, int largeur, int hauteur) {
        v.plateforme.lesfichiers.fichiers[controle(nom).image()] = bmp(largeur, hauteur);
    }
};

TEST_F(Dialog1, montre_le_texte_sur_le_programme) {
    form.montrertexte();
    EXPECT_TRUE(form.visible());
    EXPECT_EQ(form.texte(), "A propos de Orvane");
    const std::string attendu =
        "Orvane - version 2.68 du 24/08/2019\n"
        "\n"
        "A propos de l'auteur :\n"
        "\n" +
        std::string(common::adresses::auteur) + "\n" + std::string(common::adresses::contact) +
        "\n"
        "\n"
        "Toutes vos remarques, questions, bugs, etc. sont les bienvenus.\n"
        "\n"
        "Merci de m'envoyer un courriel quand vous utilisez ou faites passer le logiciel.\n"
        "Logiciel distribué gratuitement mais messages et dons de remerciements appréciés :-)\n" +
        std::string(common::adresses::page) + "\n";
    EXPECT_EQ(controle("Text1").texte(), attendu);
    EXPECT_EQ(form.focus(), &controle("Text2")) << "no caret may stand in the text";
    EXPECT_TRUE(visible("Text1"));
    EXPECT_FALSE(visible("Image1"));
    EXPECT_FALSE(visible("Image2"));
}

TEST_F(Dialog1, echap_le_cache_et_une_autre_touche_non) {
    form.montrertexte();
    form.enfoncer({ui::touches::entree});
    EXPECT_TRUE(form.visible());
    form.enfoncer({ui::touches::echap});
    EXPECT_FALSE(form.visible());
    form.montrerimage(1);
    form.enfoncer({ui::touches::echap});
    EXPECT_FALSE(form.visible());
}

TEST_F(Dialog1, un_deuxieme_clic_recommence_le_texte) {
    form.montrertexte();
    const auto texte = controle("Text1").texte();
    form.montrertexte();
    EXPECT_EQ(controle("Text1").texte(), texte);
    EXPECT_EQ(form.texte(), "A propos de Orvane");
}

TEST_F(Dialog1, les_images_portent_le_nom_de_leurs_listes) {
    EXPECT_EQ(controle("Image1").image(), R"(images\7l_6anagrammes.png)");
    EXPECT_EQ(controle("Image2").image(), R"(images\8l_6anagrammes.png)");
}

TEST_F(Dialog1, l_index_1_montre_les_7_lettres_a_la_taille_de_l_image) {
    poser("Image1", 400, 300);
    form.montrerimage(1);
    EXPECT_EQ(form.texte(), "Tirages 7 et 8 lettres avec 6 anagrammes et plus");
    EXPECT_TRUE(form.visible());
    EXPECT_TRUE(visible("Image1"));
    EXPECT_FALSE(visible("Image2"));
    EXPECT_FALSE(visible("Text1"));
    EXPECT_FALSE(visible("Text2"));
    EXPECT_EQ(form.largeur(), 400 * 15);
    EXPECT_EQ(form.hauteur(), 300 * 15);
    EXPECT_EQ(controle("Image1").largeur(), form.largeur());
    EXPECT_EQ(controle("Image1").hauteur(), form.hauteur());
}

TEST_F(Dialog1, tout_autre_index_montre_les_8_lettres) {
    poser("Image1", 400, 300);
    poser("Image2", 500, 200);
    for (const int index : {0, 2, -1}) {
        form.montrerimage(1);
        form.montrerimage(index);
        EXPECT_TRUE(visible("Image2"));
        EXPECT_FALSE(visible("Image1"));
        EXPECT_EQ(form.largeur(), 500 * 15);
        EXPECT_EQ(form.hauteur(), 200 * 15);
    }
}

TEST_F(Dialog1, les_deux_vues_se_suivent_sur_la_meme_fenetre) {
    form.montrertexte();
    const auto largeur = form.largeur();
    const auto hauteur = form.hauteur();
    poser("Image2", 500, 200);
    form.montrerimage(0);
    EXPECT_EQ(form.focus(), nullptr);
    form.montrertexte();
    EXPECT_EQ(form.texte(), "A propos de Orvane");
    EXPECT_EQ(form.largeur(), largeur);
    EXPECT_EQ(form.hauteur(), hauteur);
    EXPECT_TRUE(visible("Text1"));
    EXPECT_TRUE(visible("Text2"));
    EXPECT_FALSE(visible("Image2"));
    EXPECT_EQ(form.focus(), &controle("Text2"));
}

TEST_F(Dialog1, une_image_illisible_laisse_la_taille_du_texte) {
    form.montrertexte();
    const auto largeur = form.largeur();
    poser("Image1", 400, 300);
    form.montrerimage(1);
    form.montrerimage(0);
    EXPECT_EQ(form.largeur(), largeur);
    EXPECT_TRUE(visible("Image2"));
}

TEST_F(Dialog1, la_case_de_fermeture_le_cache_sans_le_perdre) {
    form.montrertexte();
    form.fermer();
    EXPECT_FALSE(form.visible());
    form.montrertexte();
    EXPECT_TRUE(form.visible());
}

TEST_F(Dialog1, la_tabulation_va_du_texte_a_la_petite_boite) {
    form.montrertexte();
    form.enfoncer({ui::touches::tab});
    EXPECT_EQ(form.focus(), &controle("Text1"));
    form.enfoncer({ui::touches::tab});
    EXPECT_EQ(form.focus(), &controle("Text2"));
}

}  // namespace
}  // namespace test_dialog1
