// Everything that a player does and that touches the disk, on the whole program: killed before each
// change, refused at each call, torn in each write, or cut by a power failure.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "chemin.h"
#include "dossier.h"
#include "lecture.h"
#include "pilotemodele.h"
#include "programmereel.h"
#include "seance.h"

namespace test_coupures {
namespace {

namespace fs = std::filesystem;
using essais::Panne;
using Fichiers = std::map<std::string, std::string>;

constexpr int perdu = 3;  ///< exit status of a program that has not written all and says nothing

struct Operation {
    const char* nom;
    std::string preparation;
    std::string ordres;
    Fichiers entre{};     ///< files that are whole in the midst of it, and neither before nor after
    bool muette = false;  ///< a failure is no fault: it ends the operation without a report
};
void PrintTo(const Operation& operation, std::ostream* sortie) {
    *sortie << operation.nom;
}

// Orders of the bench: who plays, what there is, and the list that the menu launches.
const std::string joueurs = R"(fichier users.dat
| Paul
| Léa
fichier Léa\settings.dat
| 95
| 80
| 8
| 5
| 1
| Gris
| 1
fichier Léa\hist.dat
| 01/01/2020 - 10:00 - 50% - T - autre.txt
)";
const std::string menu = joueurs + R"(fichier listes\3lc.txt
| AB;BA
| CD;DC
hasard 0
connexion Léa
panneau bt
)";
const std::string revision = R"(fichier Léa\rev-3lc.txt
| EF;FE
| CD;DC
)";
const std::string serie = "clic Form3.Command14(0)\nattendre Form1.visible oui\n";
const std::string menudumot = menu + revision + serie + "taper ba\ntouche F12\n";
const std::string serveur = R"(fichier serveur\version
| 2.7
reseau /Orvane/version.txt serveur\version
fichier serveur\lien
| https://ailleurs.example/installeur
reseau /Orvane/downloadlink.txt serveur\lien
fichier serveur\installeur
| un programme
reseau /installeur serveur\installeur
)";

const Operation operations[] = {
    {"nouveau_joueur", joueurs + "demarrer\n", "connexion Zoé\n"},
    {"connexion", joueurs + "demarrer\n", "connexion Paul\n"},
    {"correction_sans_revision", menu, serie + "touche F12\n", {{"Léa/rev-3lc.txt", ""}}},
    {"correction_avec_revision", menu + revision, serie + "touche F12\n"},
    {"ajout", menudumot, "doubleclic Form1.solution(0)\nmenu Form1.addrevmenu\n"},
    {"retrait", menudumot, "doubleclic Form1.solution(1)\nmenu Form1.supprevmenu\n"},
    {"fin_de_liste", menu + serie + "taper ba\ntouche Entree\ntaper dc\n", "touche F12\n"},
    {"options", menu + "clic Form3.Command12\nchoisir Dialog2.Combo1 Vert\n",
     "clic Dialog2.OKButton\n"},
    {"mise_a_jour",
     menu + serveur,
     "clic Form3.Command17\n",
     {{"version_en_ligne.txt", "2.7\r\n"},
      {"downloadlink.txt", "https://ailleurs.example/installeur\r\n"}},
     true},
};

/// What a program leaves while it makes something, and the next one takes away.
bool provisoire(const std::string& nom) {
    return nom.find(".tmp") != std::string::npos;
}

class Coupures : public testing::TestWithParam<Operation> {
  protected:
    Coupures() {
        banc::garnir(dossier_.chemin(), ORVANE_JEU);
        preparer();
        avant_ = fichiers();
        EXPECT_EQ(essais::encopie([&] { return jouer(GetParam().ordres) ? 0 : 1; }), 0);
        apres_ = fichiers();
        EXPECT_NE(avant_, apres_);
    }

    /// Starts the program and brings it to where the operation begins.
    void preparer() {
        seance_ = std::make_unique<banc::Seance>(
            dossier_.chemin(),
            [](ui::Plateforme& p) { return std::make_unique<banc::ProgrammeReel>(p); },
            [](banc::PlateformeSimulee& p) { return std::make_unique<banc::PiloteModele>(p); },
            appels_);
        EXPECT_TRUE(jouer(GetParam().preparation)) << *seance_->plateforme.rapport();
    }

    /// The program may carry out the operation, on a disk that holds these files.
    void disposer(const Fichiers& disque) {
        if (!essais::copiable())
            preparer();  // the one that is there has carried it out
        remettre(disque);
    }

    /// Gives the orders until the program ends; false if a fault ended it.
    bool jouer(const std::string& ordres) {
        std::istringstream flux(ordres);
        banc::Lecteur lecteur(flux);
        for (banc::Ordre ordre; !seance_->plateforme.fini() && lecteur.suivant(ordre);)
            seance_->executer(ordre);
        return !seance_->plateforme.rapport();
    }

    /// The files that a player changes, by name. The journal of racks is none of them: it may be
    /// torn, and tests of its own say what is left of it.
    [[nodiscard]] Fichiers fichiers() const {
        Fichiers lus;
        for (fs::recursive_directory_iterator i(dossier_.chemin()), fin; i != fin; ++i) {
            const auto nom = i->path().lexically_relative(dossier_.chemin()).generic_string();
            if (nom == "listes" || nom == "images")
                i.disable_recursion_pending();
            else if (i->is_regular_file() && nom != "APP05.WAV" && !nom.ends_with("journal.txt"))
                lus[nom] = contenu(i->path());
            else if (i->is_directory())
                lus[nom] = "dossier";
        }
        return lus;
    }

    /// Puts the disk back as it was.
    void remettre(const Fichiers& disque) const {
        for (const auto& [nom, octets] : fichiers()) {
            if (!disque.contains(nom))
                fs::remove_all(dossier_.chemin() / common::chemin(nom));
        }
        for (const auto& [nom, octets] : disque) {
            const auto chemin = dossier_.chemin() / common::chemin(nom);
            if (octets == "dossier")
                fs::create_directories(chemin);
            else if (contenu(chemin) != octets)
                std::ofstream(chemin, std::ios::binary) << octets;
        }
    }

    /// Runs the operation with a breakdown at a call; false if there is no such call.
    bool casser(Panne panne, int rang) {
        disposer(avant_);
        const auto statut = essais::encopie([&] {
            appels_.prevoir(panne, rang);
            const bool tu = jouer(GetParam().ordres) && !GetParam().muette;
            if (!appels_.atteinte())
                return 0;
            return tu && fichiers() != apres_ ? perdu : 1;
        });
        appels_.prevoir(Panne::Aucune, 0);
        const bool meurt = panne != Panne::Refus && panne != Panne::Courte;
        EXPECT_TRUE(statut == 0 || statut == (meurt ? essais::tue : 1)) << statut;
        return statut != 0;
    }

    /// Each file is as it was before the operation, or as it is after it.
    void comparer() const {
        auto noms = fichiers();
        noms.insert(avant_.begin(), avant_.end());
        const auto lus = fichiers();
        for (const auto& [nom, octets] : noms) {
            const bool tenu = memes(nom, lus, avant_) || memes(nom, lus, apres_) ||
                              (GetParam().entre.contains(nom) && memes(nom, lus, GetParam().entre));
            EXPECT_TRUE(tenu || provisoire(nom)) << nom;
        }
    }

    /// The next time the operation goes through, and nothing is left of the breakdown.
    void rejouer() {
        disposer(fichiers());
        EXPECT_EQ(essais::encopie([&] { return jouer(GetParam().ordres) ? 0 : 1; }), 0);
        for (const auto& [nom, octets] : fichiers())
            EXPECT_FALSE(provisoire(nom)) << nom;
    }

    [[nodiscard]] const Fichiers& apres() const { return apres_; }

  private:
    [[nodiscard]] static bool memes(const std::string& nom, const Fichiers& a, const Fichiers& b) {
        const auto dansa = a.find(nom);
        const auto dansb = b.find(nom);
        if (dansa == a.end() || dansb == b.end())
            return dansa == a.end() && dansb == b.end();
        return dansa->second == dansb->second;
    }
    [[nodiscard]] static std::string contenu(const fs::path& chemin) {
        std::ifstream flux(chemin, std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }

    essais::AppelsDessai appels_;
    banc::Dossier dossier_;
    std::unique_ptr<banc::Seance> seance_;
    Fichiers avant_;
    Fichiers apres_;
};

TEST_P(Coupures, tue_dechire_ou_prive_de_courant_il_laisse_l_avant_ou_l_apres) {
    for (const auto panne : {Panne::Avant, Panne::Dechirure, Panne::Coupure}) {
        int rang = 1;
        for (; casser(panne, rang); ++rang) {
            SCOPED_TRACE(testing::Message()
                         << "panne " << static_cast<int>(panne) << " à " << rang);
            comparer();
            rejouer();
        }
        EXPECT_GT(rang, 1);
    }
}

TEST_P(Coupures, un_refus_laisse_l_avant_ou_l_apres) {
    int rang = 1;
    for (; casser(Panne::Refus, rang); ++rang) {
        SCOPED_TRACE(rang);
        comparer();
    }
    EXPECT_GT(rang, 10);
}

TEST_P(Coupures, une_ecriture_courte_ne_change_rien) {
    int rang = 1;
    for (; casser(Panne::Courte, rang); ++rang)
        EXPECT_EQ(fichiers(), apres()) << rang;
    EXPECT_GT(rang, 1);
}

INSTANTIATE_TEST_SUITE_P(Operations, Coupures, testing::ValuesIn(operations),
                         [](const auto& cas) { return std::string(cas.param.nom); });

}  // namespace
}  // namespace test_coupures
