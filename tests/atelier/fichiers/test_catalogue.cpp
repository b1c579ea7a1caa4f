#include <set>
#include <string>

#include <gmock/gmock.h>

#include "catalogue.h"
#include "faute.h"
#include "regles.h"

namespace test_catalogue {
namespace {

using menu::Ecran;
using menu::Insigne;

struct Ligne {
    const char* panneau;
    std::size_t rangee;
    const char* libelle;
    const char* fichier;
    const char* parties;
    const char* insigne;
    Ecran ecran = Ecran::form1;
};

const Ligne lignes[] = {
    {"bt", 0, "Lettre Chère 3L", "3lc.txt", "", "JKQ"},
    {"bt", 1, "Mots 3L", "3lt.txt", "", ""},
    {"bt", 2, "Verbes 4-5L", "vb45.txt", "", "Vb"},
    {"bt", 3, "Verbes 6L", "vb6.txt", "abc", "Vb"},
    {"bt", 4, "Lettre Chère 4L", "4lc.txt", "", "JKQ"},
    {"bt", 5, "Lettre Chère 5L", "5lc.txt", "abc", "JKQ"},
    {"ta", 0, "Lettre chère 6L", "6lc.txt", "abcd", "JKQ"},
    {"ta", 1, "Verbes 7L", "vb7.txt", "abcd", "Vb"},
    {"ta", 2, "Verbes 8L", "vb8.txt", "abcd", "Vb"},
    {"ta", 3, "Verbes 9L", "vb9.txt", "abcd", "Vb"},
    {"ta", 4, "Mots 4L", "4lt.txt", "ab", ""},
    {"ta", 5, "Mots 5L", "5lt.txt", "abcd", ""},
    {"conja", 0, "Défectifs 7-8L", "78d.txt", "", "Vb"},
    {"conja", 1, "Atypiques 7L", "7at.txt", "", "Vb"},
    {"conja", 2, "Atypiques 8L", "8at.txt", "ab", "Vb"},
    {"conja", 3, "Uniques 7L", "conj7u.txt", "", "Vb"},
    {"conja", 4, "Uniques 8L", "conj8u.txt", "", "Vb"},
    {"conja", 5, "1 nonconj 7L", "z7.txt", "", ""},
    {"conja", 6, "1 nonconj 8L", "z8.txt", "", ""},
    {"conja", 7, "1 nonconj sél.", "z78_sel.txt", "", ""},
    {"78lca", 0, "7et8L poids 7", "78v7.txt", "", "JKQ"},
    {"78lca", 1, "7et8L poids 8", "78v8.txt", "", "JKQ"},
    {"78lca", 2, "7L poids 9", "7v9.txt", "", "JKQ"},
    {"78lca", 3, "8L poids 9", "8v9.txt", "", "JKQ"},
    {"78lca", 4, "7L poids 10", "7vd.txt", "", "JKQ"},
    {"78lca", 5, "8L poids 10", "8vd.txt", "", "JKQ"},
    {"78lca", 6, "7L poids 11", "7vo.txt", "", "JKQ"},
    {"78lca", 7, "8L poids 11", "8vo.txt", "", "JKQ"},
    {"78lcb", 0, "7L poids 12", "7vu.txt", "", "JKQ"},
    {"78lcb", 1, "8L poids 12", "8vu.txt", "", "JKQ"},
    {"78lcb", 2, "7et8L poids 13", "78v13.txt", "", "JKQ"},
    {"78lcb", 3, "7et8L poids 14-15", "78v145.txt", "", "JKQ"},
    {"78lcb", 4, "7et8L poids >15", "78vup.txt", "", "JKQ"},
    {"78lcb", 5, "7et8L tout", "78tout.txt", "", "JKQ"},
    {"78lcb", 6, "7et8L sél-durs", "ch78rev.txt", "", "JKQ"},
    {"78lcb", 7, "7et8L ODS 5-6-7", "78ods5-6-7.txt", "", "JKQ"},
    {"trios", 0, "Trios 7L purs", "7l_trios_purs.txt", "abcd", "", Ecran::multi},
    {"trios", 1, "Trios 7L impurs", "7l_trios_impurs.txt", "abc", "", Ecran::multi},
    {"trios", 2, "Trios 8L purs", "8l_trios_purs.txt", "abcd", "", Ecran::multi},
    {"trios", 3, "Trios 8L impurs", "8l_trios_impurs.txt", "abc", "", Ecran::multi},
    {"quatquin", 0, "Quatuors 7L purs", "7l_quatuors_purs.txt", "ab", "", Ecran::multi},
    {"quatquin", 1, "Quatuors 7L impurs", "7l_quatuors_impurs.txt", "", "", Ecran::multi},
    {"quatquin", 2, "Quatuors 8L purs", "8l_quatuors_purs.txt", "", "", Ecran::multi},
    {"quatquin", 3, "Quatuors 8L impurs", "8l_quatuors_impurs.txt", "", "", Ecran::multi},
    {"quatquin", 4, "Quintets 7L purs", "7l_quintets_purs.txt", "", "", Ecran::multi},
    {"quatquin", 5, "Quintets 7L impurs", "7l_quintets_impurs.txt", "", "", Ecran::multi},
    {"quatquin", 6, "Quintets 8L", "8l_quintets.txt", "", "", Ecran::multi},
    {"conjm", 0, "Duos conjugués 7L", "conj7_duos.txt", "", "", Ecran::multi},
    {"conjm", 1, "Duos conjugués 8L", "conj8_duos.txt", "", "", Ecran::multi},
    {"conjm", 2, "Trios conjugués 7L", "conj7_trios.txt", "", "", Ecran::multi},
    {"conjm", 3, "Trios conjugués 8L", "conj8_trios.txt", "", "", Ecran::multi},
    {"conjm", 4, "Quatuors conj. 7L", "conj7_quatuors.txt", "", "", Ecran::multi},
    {"conjm", 5, "Quatuors conj. 8L", "conj8_quatuors.txt", "", "", Ecran::multi},
    {"conjm", 6, "Quintets conj. 7-8l", "conj78_quintets.txt", "", "", Ecran::multi},
    {"formdif", 0, "Courants 6L", "courant_6L.txt", "", ""},
    {"formdif", 1, "Courants 7L", "courant_7L.txt", "", ""},
    {"formdif", 2, "Courants 8L", "courant_8L.txt", "", ""},
    {"formdif", 3, "Courants 9L", "courant_9L.txt", "", ""},
    {"formdif", 4, "Formations atyp. 6L", "durs_kvd_6L.txt", "", ""},
    {"formdif", 5, "Formations atyp. 7L", "durs_kvd_7L.txt", "", ""},
    {"formdif", 6, "Formations atyp. 8L", "durs_kvd_8L.txt", "", ""},
    {"formdif", 7, "Formations atyp. 9L", "durs_kvd_9L.txt", "", ""},
    {"rallong", 0, "Rallonges avant 7-8", "rallonge_av_7a8L.txt", "", ""},
    {"rallong", 1, "Rallonges arrière 7-8", "rallonge_ar_7a8L.txt", "", ""},
    {"rallong", 2, "Rallonges avant 8-9", "rallonge_av_8a9L.txt", "", ""},
    {"rallong", 3, "Rallonges arrière 8-9", "rallonge_ar_8a9L.txt", "", ""},
    {"rallong", 4, "Rallonges avant 6-7", "rallonge_av_6a7L.txt", "", ""},
    {"rallong", 5, "Rallonges arrière 6-7", "rallonge_ar_6a7L.txt", "", ""},
    {"rallong", 6, "Rallonges avant 5-6", "rallonge_av_5a6L.txt", "", ""},
    {"rallong", 7, "Rallonges arrière 5-6", "rallonge_ar_5a6L.txt", "", ""},
    {"autres", 0, "Mots invariables", "invar.txt", "", ""},
    {"autres", 1, "Déséquilibre C-V", "deseq_cons_voy.txt", "", ""},
    {"autres", 2, "Anaverbes", "anaverbes.txt", "", "Vb", Ecran::multi},
    {"autres", 3, "Fausses transitivités", "transifausses.txt", "", ""},
    {"autres", 4, "S final obligatoire", "s_final.txt", "", ""},
    {"autres", 5, "Benjamins uniques", "benj_uni.txt", "", ""},
    {"autres", 6, "Verbe+1=Verbe", "vbavb.txt", "", "Vb"},
    {"6", 0, "6L poids >6", "6up.txt", "", ""},
    {"6", 1, "6L poids 6", "6v6.txt", "", ""},
    {"6", 2, "6L poids 0", "6v0.txt", "", ""},
    {"6", 3, "6L poids 5", "6v5.txt", "", ""},
    {"6", 4, "6L poids 1", "6v1.txt", "", ""},
    {"6", 5, "6L poids 4", "6v4.txt", "", ""},
    {"6", 6, "6L poids 2", "6v2.txt", "ab", ""},
    {"6", 7, "6L poids 3", "6v3.txt", "ab", ""},
    {"7", 0, "7L poids >6", "7up.txt", "", ""},
    {"7", 1, "7L poids 6", "7v6.txt", "", ""},
    {"7", 2, "7L poids 0", "7v0.txt", "", ""},
    {"7", 3, "7L poids 5", "7v5.txt", "ab", ""},
    {"7", 4, "7L poids 1", "7v1.txt", "ab", ""},
    {"7", 5, "7L poids 4", "7v4.txt", "abc", ""},
    {"7", 6, "7L poids 2", "7v2.txt", "abcd", ""},
    {"7", 7, "7L poids 3", "7v3.txt", "abcd", ""},
    {"8", 0, "8L poids >6", "8up.txt", "ab", ""},
    {"8", 1, "8L poids 6", "8v6.txt", "ab", ""},
    {"8", 2, "8L poids 0", "8v0.txt", "ab", ""},
    {"8", 3, "8L poids 5", "8v5.txt", "abc", ""},
    {"8", 4, "8L poids 1", "8v1.txt", "abc", ""},
    {"8", 5, "8L poids 4", "8v4.txt", "abcd", ""},
    {"8", 6, "8L poids 2", "8v2.txt", "abcd", ""},
    {"8", 7, "8L poids 3", "8v3.txt", "abcd", ""},
    {"duos7", 0, "Duos 7L purs", "7l_duos_purs.txt", "", "", Ecran::multi},
    {"duos7", 1, "Duos 7L impurs", "7l_duos_impurs.txt", "abcd", "", Ecran::multi},
    {"duos7", 2, "Duos 7L purs sél", "7l_duos_purs_sel.txt", "", "", Ecran::multi},
    {"duos7", 3, "Duos 7L purs p567", "7l_duos_purs567.txt", "abc", "", Ecran::multi},
    {"duos7", 4, "Duos 7L purs p014", "7l_duos_purs014.txt", "abcd", "", Ecran::multi},
    {"duos7", 5, "Duos 7L purs p23", "7l_duos_purs23.txt", "abcd", "", Ecran::multi},
    {"duos7", 6, "Duos 7L sans tirage", "7l_duos_sanstirage.txt", "", ""},
    {"duos8", 0, "Duos 8L purs", "8l_duos_purs.txt", "", "", Ecran::multi},
    {"duos8", 1, "Duos 8L impurs", "8l_duos_impurs.txt", "abcd", "", Ecran::multi},
    {"duos8", 2, "Duos 8L purs sél", "8l_duos_purs_sel.txt", "", "", Ecran::multi},
    {"duos8", 3, "Duos 8L purs p567", "8l_duos_purs567.txt", "abc", "", Ecran::multi},
    {"duos8", 4, "Duos 8L purs p014", "8l_duos_purs014.txt", "abcd", "", Ecran::multi},
    {"duos8", 5, "Duos 8L purs p23", "8l_duos_purs23.txt", "abcd", "", Ecran::multi},
    {"duos8", 6, "Duos 8L sans tirage", "8l_duos_sanstirage.txt", "", ""},
};

std::string insigne(Insigne insigne) {
    return insigne == Insigne::verbe ? "Vb" : insigne == Insigne::chere ? "JKQ" : "";
}

TEST(Catalogue, chaque_rangee_a_son_libelle_son_fichier_ses_parties_et_son_insigne) {
    for (const auto& ligne : lignes) {
        SCOPED_TRACE(ligne.fichier);
        const auto* panneau = menu::panneau(ligne.panneau);
        ASSERT_NE(panneau, nullptr);
        ASSERT_LT(ligne.rangee, panneau->rangees.size());
        const auto& rangee = panneau->rangees[ligne.rangee];
        EXPECT_EQ(rangee.libelle, ligne.libelle);
        EXPECT_EQ(rangee.fichier, ligne.fichier);
        EXPECT_EQ(rangee.parties, std::string_view(ligne.parties).size());
        EXPECT_EQ(insigne(rangee.insigne), ligne.insigne);
        EXPECT_EQ(rangee.ecran(), ligne.ecran);
    }
}

TEST(Catalogue, a_16_panneaux_116_rangees_avec_celle_du_joueur_119_parties_et_234_fichiers) {
    std::size_t rangees = 0;
    std::size_t parties = 0;
    for (const auto& panneau : menu::panneaux()) {
        rangees += panneau.rangees.size();
        for (const auto& rangee : panneau.rangees)
            parties += rangee.parties;
    }
    EXPECT_EQ(menu::panneaux().size(), 16U);
    EXPECT_EQ(rangees, std::size(lignes));
    EXPECT_EQ(rangees + 1, 116U);
    EXPECT_EQ(parties, 119U);
    const auto fichiers = menu::fichiersfixes();
    EXPECT_EQ(fichiers.size(), 234U);
    EXPECT_EQ(std::set(fichiers.begin(), fichiers.end()).size(), 234U);
}

TEST(Catalogue, dix_panneaux_montrent_un_total) {
    std::set<std::string_view> avec;
    for (const auto& panneau : menu::panneaux()) {
        if (panneau.total)
            avec.insert(panneau.cle);
    }
    EXPECT_THAT(avec, testing::UnorderedElementsAre("6", "7", "8", "78lca", "78lcb", "duos7",
                                                    "duos8", "trios", "quatquin", "conjm"));
}

TEST(Catalogue, une_partie_porte_sa_lettre_devant_l_extension) {
    EXPECT_EQ(menu::fichierdepartie("vb6.txt", 0), "vb6_a.txt");
    EXPECT_EQ(menu::fichierdepartie("7l_duos_purs23.txt", 3), "7l_duos_purs23_d.txt");
}

TEST(Catalogue, un_panneau_inconnu_n_est_pas_trouve) {
    EXPECT_EQ(menu::panneau("lc78"), nullptr);
    EXPECT_EQ(menu::panneau(""), nullptr);
}

TEST(Catalogue, chaque_rangee_a_sa_recette_et_chaque_recette_sa_rangee) {
    std::multiset<std::string> fichiers;
    for (const auto& panneau : menu::panneaux()) {
        for (const auto& rangee : panneau.rangees)
            fichiers.emplace(rangee.fichier);
    }
    std::multiset<std::string> recettes;
    for (const auto& recette : atelier::toutesrecettes()) {
        recettes.insert(recette.fichier);
        EXPECT_FALSE(recette.description.empty());
        EXPECT_EQ(recette.description.back(), '.');
    }
    EXPECT_EQ(recettes, fichiers);
}

TEST(Catalogue, une_recette_se_trouve_par_le_fichier_de_sa_liste) {
    EXPECT_EQ(atelier::recette("vb6.txt").description,
              "Les infinitifs de 6 lettres, sans les plus courants : 779 au plus.");
    EXPECT_TRUE(atelier::recette("7at.txt").verbeadire);
    EXPECT_THROW(static_cast<void>(atelier::recette("vb66.txt")), common::Faute);
}

}  // namespace
}  // namespace test_catalogue
