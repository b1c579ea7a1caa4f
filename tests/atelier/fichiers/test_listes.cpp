// The lists of the whole lexicon.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "catalogue.h"
#include "verification.h"

namespace test_listes {
namespace {

std::string lire(const std::string& nom) {
    std::ifstream flux(std::string(ORVANE_LISTES_ESSAI) + "/" + nom, std::ios::binary);
    EXPECT_TRUE(flux) << nom;
    return {std::istreambuf_iterator<char>(flux), {}};
}

std::vector<std::string> lignes(const std::string& nom) {
    std::vector<std::string> liste;
    const auto octets = lire(nom);
    for (std::size_t debut = 0; debut < octets.size();) {
        const auto fin = octets.find("\r\n", debut);
        if (fin == std::string::npos) {
            ADD_FAILURE() << nom << " : ligne sans fin";
            break;
        }
        liste.push_back(octets.substr(debut, fin - debut));
        debut = fin + 2;
    }
    return liste;
}

struct Compte {
    const char* fichier;
    std::size_t lignes;
};

/// Made from the lexicon in its version 7.0.
const Compte comptes[] = {
    {"3lc.txt", 118},
    {"3lt.txt", 480},
    {"vb45.txt", 238},
    {"vb6.txt", 779},
    {"4lc.txt", 432},
    {"5lc.txt", 1130},
    {"6lc.txt", 1902},
    {"vb7.txt", 1215},
    {"vb8.txt", 1467},
    {"vb9.txt", 1300},
    {"4lt.txt", 1568},
    {"5lt.txt", 3676},
    {"78d.txt", 91},
    {"7at.txt", 203},
    {"8at.txt", 324},
    {"conj7u.txt", 6809},
    {"conj8u.txt", 12722},
    {"z7.txt", 416},
    {"z8.txt", 657},
    {"z78_sel.txt", 548},
    {"6up.txt", 107},
    {"6v6.txt", 111},
    {"6v0.txt", 184},
    {"6v5.txt", 230},
    {"6v1.txt", 276},
    {"6v4.txt", 315},
    {"6v2.txt", 458},
    {"6v3.txt", 460},
    {"7up.txt", 236},
    {"7v6.txt", 226},
    {"7v0.txt", 242},
    {"7v5.txt", 437},
    {"7v1.txt", 407},
    {"7v4.txt", 621},
    {"7v2.txt", 698},
    {"7v3.txt", 740},
    {"8up.txt", 441},
    {"8v6.txt", 414},
    {"8v0.txt", 271},
    {"8v5.txt", 660},
    {"8v1.txt", 518},
    {"8v4.txt", 933},
    {"8v2.txt", 908},
    {"8v3.txt", 1034},
    {"78v7.txt", 742},
    {"78v8.txt", 539},
    {"7v9.txt", 866},
    {"8v9.txt", 1206},
    {"7vd.txt", 695},
    {"8vd.txt", 1116},
    {"7vo.txt", 847},
    {"8vo.txt", 1342},
    {"7vu.txt", 298},
    {"8vu.txt", 420},
    {"78v13.txt", 410},
    {"78v145.txt", 429},
    {"78vup.txt", 638},
    {"78tout.txt", 3091},
    {"ch78rev.txt", 500},
    {"78ods5-6-7.txt", 0},
    {"7l_duos_purs.txt", 1362},
    {"7l_duos_impurs.txt", 442},
    {"7l_duos_purs_sel.txt", 800},
    {"7l_duos_purs567.txt", 115},
    {"7l_duos_purs014.txt", 259},
    {"7l_duos_purs23.txt", 358},
    {"7l_duos_sanstirage.txt", 1804},
    {"8l_duos_purs.txt", 1137},
    {"8l_duos_impurs.txt", 460},
    {"8l_duos_purs_sel.txt", 854},
    {"8l_duos_purs567.txt", 142},
    {"8l_duos_purs014.txt", 298},
    {"8l_duos_purs23.txt", 327},
    {"8l_duos_sanstirage.txt", 1597},
    {"7l_trios_purs.txt", 343},
    {"7l_trios_impurs.txt", 169},
    {"8l_trios_purs.txt", 252},
    {"8l_trios_impurs.txt", 138},
    {"7l_quatuors_purs.txt", 111},
    {"7l_quatuors_impurs.txt", 57},
    {"8l_quatuors_purs.txt", 59},
    {"8l_quatuors_impurs.txt", 61},
    {"7l_quintets_purs.txt", 44},
    {"7l_quintets_impurs.txt", 31},
    {"8l_quintets.txt", 32},
    {"conj7_duos.txt", 940},
    {"conj8_duos.txt", 1799},
    {"conj7_trios.txt", 208},
    {"conj8_trios.txt", 446},
    {"conj7_quatuors.txt", 59},
    {"conj8_quatuors.txt", 103},
    {"conj78_quintets.txt", 64},
    {"courant_6L.txt", 400},
    {"courant_7L.txt", 400},
    {"courant_8L.txt", 402},
    {"courant_9L.txt", 400},
    {"durs_kvd_6L.txt", 400},
    {"durs_kvd_7L.txt", 400},
    {"durs_kvd_8L.txt", 400},
    {"durs_kvd_9L.txt", 400},
    {"rallonge_av_7a8L.txt", 496},
    {"rallonge_ar_7a8L.txt", 212},
    {"rallonge_av_8a9L.txt", 334},
    {"rallonge_ar_8a9L.txt", 121},
    {"rallonge_av_6a7L.txt", 538},
    {"rallonge_ar_6a7L.txt", 330},
    {"rallonge_av_5a6L.txt", 484},
    {"rallonge_ar_5a6L.txt", 392},
    {"invar.txt", 419},
    {"deseq_cons_voy.txt", 410},
    {"anaverbes.txt", 326},
    {"transifausses.txt", 261},
    {"s_final.txt", 464},
    {"benj_uni.txt", 1150},
    {"vbavb.txt", 1910},
    {"ods5.txt", 0},
    {"ods6.txt", 0},
    {"ods7.txt", 0},
    {"vbi.txt", 1664},
    {"vbt4-10.txt", 5512},
    {"inv.txt", 1001},
    {"7l_6anagrammes.txt", 41},
    {"8l_6anagrammes.txt", 20},
};

TEST(Listes, ont_leur_nombre_de_lignes) {
    for (const auto& compte : comptes) {
        EXPECT_EQ(lignes("listes/" + std::string(compte.fichier)).size(), compte.lignes)
            << compte.fichier;
    }
}

TEST(Listes, toutes_sont_comptees) {
    std::set<std::string> nommees;
    for (const auto& compte : comptes)
        nommees.insert(compte.fichier);
    for (const auto& panneau : menu::panneaux()) {
        for (const auto& rangee : panneau.rangees)
            EXPECT_TRUE(nommees.contains(std::string(rangee.fichier))) << rangee.fichier;
    }
}

TEST(Listes, n_ont_ni_faute_ni_remarque) {
    for (const auto& constat : atelier::verifierdossier(ORVANE_LISTES_ESSAI))
        ADD_FAILURE() << constat.texte();
}

TEST(Listes, sont_dans_l_ordre_du_nombre_de_lettres) {
    for (const auto& panneau : menu::panneaux()) {
        for (const auto& rangee : panneau.rangees) {
            std::size_t avant = 0;
            for (const auto& ligne : lignes("listes/" + std::string(rangee.fichier))) {
                const auto tirage = ligne.substr(0, ligne.find(';'));
                const auto lettres = static_cast<std::size_t>(std::count_if(
                    tirage.begin(), tirage.end(), [](char c) { return c >= 'A' && c <= 'Z'; }));
                EXPECT_LE(avant, lettres) << rangee.fichier << " : " << ligne;
                avant = lettres;
            }
        }
    }
}

struct Ligne {
    const char* fichier;
    const char* ligne;
    bool presente;
};
const Ligne exemples[] = {
    {"rallonge_ar_7a8L.txt", "CELEBRE;T", true},
    {"rallonge_av_5a6L.txt", "?ACHAT;BCFGHLMRT", true},
    {"transifausses.txt", "ACEENOT;ACETONE", true},
    {"courant_8L.txt", "AAAINOPR;PARANOIA", true},
    {"courant_8L.txt", "AEGIOTUZ;ZIGOTEAU", true},
    {"courant_8L.txt", "CEIINOPT;OPTICIEN", true},
    {"3lc.txt", "(N)EZ;NEZ", true},
    {"3lc.txt", "(Z)EN;ZEN", true},
    {"6v2.txt", "ACINSU;ACINUS", false},
    {"7l_6anagrammes.txt",
     "AEINRST;RATINES;RIANTES;SATINER;SERIANT;TANISER;TARSIEN;TISANER;TRAINES;TRANSIE;TSARINE",
     true},
    {"vbi.txt", "DORMIR", true},
    {"vbi.txt", "PECHER", false},
    {"vbt4-10.txt", "AIMER", true},
    {"vbt4-10.txt", "NAITRE", false},
    {"inv.txt", "BIENTOT", true},
    {"infosouris.txt", "p. p. de LOBER", true},
    {"infosouris.txt", "p. p. de LOBER ; = tromper", false},
    {"infosouris.txt", "p. p. de CUVER", true},
    {"infosouris.txt", "p. p. de LOVER ; = gl\xE9ner, enrouler, torsader", true},
    {"infosouris.txt",
     "verbe d\xE9"
     "fectif CONCERNER",
     false},
    {"infosouris.txt", "= chanvre, ch\xE8nevi\xE8re, filasse", true},
};
TEST(Listes, ont_les_lignes_que_l_aide_cite) {
    for (const auto& exemple : exemples) {
        const auto nom = std::string(exemple.fichier);
        const auto toutes = lignes(nom == "infosouris.txt" ? nom : "listes/" + nom);
        EXPECT_EQ(std::find(toutes.begin(), toutes.end(), exemple.ligne) != toutes.end(),
                  exemple.presente)
            << exemple.ligne;
    }
}

TEST(Listes, nulle_ne_demande_un_mot_injurieux) {
    const std::set<std::string> injurieux{"BOCHE",    "BICOT", "NEGRES", "NEGRESSE",
                                          "YOUPINES", "PEDE",  "GOUINE", "METEQUE"};
    for (const auto& nom : menu::fichiersfixes()) {
        for (auto ligne : lignes("listes/" + nom)) {
            while (!ligne.empty()) {
                const auto fin = ligne.find(';');
                EXPECT_FALSE(injurieux.contains(ligne.substr(0, fin))) << nom << " : " << ligne;
                ligne.erase(0, fin == std::string::npos ? fin : fin + 1);
            }
        }
    }
}

TEST(Listes, les_notes_sont_au_plus_10000_et_en_ordre) {
    const auto notes = lignes("infosouris.txt");
    EXPECT_EQ(notes.size(), 20000U);
    for (std::size_t i = 2; i < notes.size(); i += 2)
        EXPECT_LT(notes[i - 2], notes[i]);
}

}  // namespace
}  // namespace test_listes
