// The whole program on one damaged file: whatever stands in it, the program goes on, or ends with a
// report that names the trouble.

#include <fstream>

#include "essai.h"
#include "machine.h"
#include "mutation.h"

namespace test_programme {
namespace {

namespace fs = std::filesystem;

constexpr int essais = 40;

/// A file of the program, and orders that make the program read it.
struct Lecture {
    const char* nom;
    const char* corpus;
    std::vector<const char*> fichiers;  ///< take the damaged bytes
    std::vector<const char*> ordres;
};
void PrintTo(const Lecture& lecture, std::ostream* sortie) {
    *sortie << lecture.nom;
}

class Programme : public testing::TestWithParam<Lecture> {
  protected:
    Programme() { banc::garnir(dossier_.chemin(), ORVANE_JEU); }

    /// The folder as it was, with these bytes in the files.
    void preparer(const std::string& octets) const {
        for (const auto* reste : {"Essai", "users.dat", "serveur", "version_en_ligne.txt",
                                  "downloadlink.txt", "orvane_setup.exe"})
            fs::remove_all(dossier_.chemin() / reste);
        for (const auto* fichier : GetParam().fichiers) {
            const auto chemin = dossier_.chemin() / fichier;
            fs::create_directories(chemin.parent_path());
            std::ofstream(chemin, std::ios::binary) << octets;
        }
        completer("Essai/settings.dat", "settings.dat");
        completer("Essai/hist.dat", "hist.dat");
    }

    [[nodiscard]] const fs::path& dossier() const { return dossier_.chemin(); }

  private:
    /// Once its folder is there, a user's files are expected.
    void completer(const fs::path& fichier, const std::string& sain) const {
        const auto chemin = dossier_.chemin() / fichier;
        if (fs::exists(chemin))
            return;
        fs::create_directories(chemin.parent_path());
        std::ofstream(chemin, std::ios::binary) << fuzz::corpus(sain);
    }

    banc::Dossier dossier_;
};

TEST_P(Programme, continue_ou_dit_pourquoi_il_s_arrete) {
    const auto sain = fuzz::corpus(GetParam().corpus);
    const auto autres = fuzz::corpusentier();
    int allesaubout = 0;
    for (int numero = 0; numero < essais * fuzz::facteur() && !HasFailure(); ++numero) {
        fuzz::Alea alea(static_cast<std::uint64_t>(numero));
        const auto octets = fuzz::muter(sain, autres, alea);
        preparer(octets);
        fuzz::Programme programme(dossier());
        for (const auto* ordre : GetParam().ordres)
            static_cast<void>(programme.repondre(banc::decouper(ordre)));  // some may be refused
        const auto& plateforme = programme.plateforme;
        allesaubout += plateforme.rapport() ? 0 : 1;
        const auto rapport = plateforme.rapport().value_or("aucun");
        EXPECT_NE(rapport, "");
        EXPECT_FALSE(rapport.starts_with("Erreur imprévue")) << rapport;
        if (HasFailure())
            ADD_FAILURE() << "essai n° " << numero << " :\n" << fuzz::ordreoctets(octets);
    }
    EXPECT_GT(allesaubout, 0);
}

const std::vector<const char*> unelisteform1{"connexion Essai",
                                             "panneau bt",
                                             "clic Form3.Command14(0)",
                                             "taper CABA",
                                             "touche Entree",
                                             "taper abc",
                                             "clic Form1.Command4",
                                             "touche Bas",
                                             "avancer 3",
                                             "touche F12",
                                             "doubleclic Form1.tirage(0)",
                                             "menu Form1.addrevmenu",
                                             "menu Form1.supprevmenu",
                                             "touche F8",
                                             "avancer 300",
                                             "touche Entree",
                                             "clic Form1.quitter",
                                             "clic Form3.Command22(0)",
                                             "touche F12",
                                             "touche F8"};

const std::vector<const char*> unelistemulti{"connexion Essai",
                                             "clic Form3.app",
                                             "panneau trios",
                                             "clic Form3.Command14(0)",
                                             "taper RATINES",
                                             "touche Entree",
                                             "taper ABC",
                                             "clic Multi.Command4",
                                             "touche Bas",
                                             "touche F12",
                                             "doubleclic Multi.tirage(0)",
                                             "menu Multi.addrevmenu",
                                             "touche F8",
                                             "avancer 600",
                                             "doubleclic Multi.solution(0)",
                                             "menu Multi.supprevmenu",
                                             "clic Multi.quitter",
                                             "clic Form3.Command22(0)",
                                             "touche F12",
                                             "touche F8"};

const Lecture lectures[] = {
    {"liste_de_form1", "form1.txt", {"listes/3lc.txt"}, unelisteform1},
    {"liste_de_multi", "multi.txt", {"listes/7l_trios_purs.txt"}, unelistemulti},
    {"revision_de_form1", "revision.txt", {"Essai/rev-3lc.txt"}, unelisteform1},
    {"revision_de_multi", "revision.txt", {"Essai/rev-7l_trios_purs.txt"}, unelistemulti},
    {"references",
     "reference.txt",
     {"listes/ods5.txt", "listes/ods6.txt", "listes/ods7.txt", "listes/vbi.txt",
      "listes/vbt4-10.txt", "listes/inv.txt"},
     unelisteform1},
    {"notes_de_form1", "infosouris.txt", {"infosouris.txt"}, unelisteform1},
    {"notes_de_multi", "infosouris.txt", {"infosouris.txt"}, unelistemulti},
    {"historique",
     "hist.dat",
     {"Essai/hist.dat"},
     {"connexion Essai", "panneau bt", "clic Form3.Label6(0)", "clic Form3.Label6(3)", "panneau 7",
      "clic Form3.Label6(3)"}},
    {"reglages",
     "settings.dat",
     {"Essai/settings.dat", "users.dat"},
     {"connexion Essai", "clic Form3.Command12", "clic Dialog2.OKButton", "clic Dialog2.Command1",
      "panneau bt", "clic Form3.Command6(0)", "clic Form3.Command14(0)", "avancer 5",
      "touche F12"}},
    {"utilisateurs",
     "users.dat",
     {"users.dat"},
     {"demarrer", "clic Form2.Command1", "panneau bt", "clic Form3.Command14(0)"}},
    {"liste_personnelle",
     "multi.txt",
     {"listes/perso.txt"},
     {"connexion Essai", "panneau autres", "clic Form3.Command16", "clic Form3.Command14(7)",
      "taper AB", "touche F12", "clic Form1.quitter", "clic Multi.quitter",
      "clic Form3.Command6(7)", "clic Form3.Label6(7)"}},
    {"version_publiee",
     "version.txt",
     {"serveur/version.txt"},
     {"connexion Essai", "reseau /Orvane/version.txt serveur\\version.txt",
      "clic Form3.Command17"}},
    {"lien_publie",
     "lien.txt",
     {"serveur/version.txt", "serveur/lien.txt"},
     {"connexion Essai", "reseau /Orvane/version.txt serveur\\version.txt",
      "reseau /Orvane/downloadlink.txt serveur\\lien.txt", "reseau .exe serveur\\lien.txt",
      "clic Form3.Command17"}},
};

INSTANTIATE_TEST_SUITE_P(, Programme, testing::ValuesIn(lectures),
                         [](const auto& cas) { return std::string(cas.param.nom); });

}  // namespace
}  // namespace test_programme
