// What only Windows has: files that a program keeps all others from, names that are devices, paths
// of a limited length, files that cannot be replaced while they are read.

#include <windows.h>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "chemins_windows.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "erreurs_windows.h"
#include "remplacement_windows.h"

namespace test_disquereel_windows {
namespace {

class DisqueReelWindows : public testing::Test {
  protected:
    [[nodiscard]] void* ouvrir(const char* nom, DWORD partage, DWORD acces = GENERIC_READ) const {
        return ::CreateFileW((dossier.chemin() / nom).c_str(), acces, partage, nullptr,
                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    /// Whether this Windows gives the name of a file to another while somebody has the first open:
    /// Wine does not, nor do disks without the semantics of POSIX.
    [[nodiscard]] bool enposix() const {
        dossier.ecrire("essai", "a");
        dossier.ecrire("essai2", "b");
        const common::Poigneewindows lu(
            ouvrir("essai", FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
        const bool fait =
            ::MoveFileExW((dossier.chemin() / "essai2").c_str(),
                          (dossier.chemin() / "essai").c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
        return fait;
    }

    essais::DossierTemporaire dossier;
    essais::AppelsDessai appels;
    common::DisqueReel disque{dossier.chemin(), appels};
};

TEST_F(DisqueReelWindows, un_fichier_garde_pour_soi_est_attendu_puis_se_dit) {
    dossier.ecrire("f.txt", "A\r\n");
    common::Poigneewindows editeur(ouvrir("f.txt", 0));
    ASSERT_TRUE(editeur.ouverte());
    std::unique_ptr<common::Flux> flux;
    std::unique_ptr<common::Verrou> verrou;
    EXPECT_EQ(disque.ouvrir("f.txt", flux), common::Ennui::Retenu);
    EXPECT_EQ(appels.attendu, 5000);
    EXPECT_EQ(disque.ajouter("f.txt", "B\r\n"), common::Ennui::Retenu);
    EXPECT_EQ(disque.verrouiller("f.txt", verrou), common::Ennui::Retenu);
    EXPECT_EQ(appels.attendu, 15000);
    editeur.fermer();
    EXPECT_FALSE(disque.ajouter("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\n");
}

TEST_F(DisqueReelWindows, un_fichier_qui_ne_se_partage_pas_se_remplace_des_qu_il_est_rendu) {
    dossier.ecrire("f.txt", "A\r\n");
    common::Poigneewindows lecteur(ouvrir("f.txt", FILE_SHARE_READ));
    ASSERT_TRUE(lecteur.ouverte());
    EXPECT_EQ(disque.remplacer("f.txt", "B\r\n"), common::Ennui::Retenu);
    EXPECT_EQ(dossier.noms(), std::vector<std::string>{"f.txt"});
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    lecteur.fermer();
    EXPECT_FALSE(disque.remplacer("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "B\r\n");
}

TEST_F(DisqueReelWindows, un_fichier_que_nous_lisons_se_remplace_la_ou_le_systeme_le_peut) {
    dossier.ecrire("f.txt", "A\r\n");
    std::unique_ptr<common::Flux> flux;
    ASSERT_FALSE(disque.ouvrir("f.txt", flux));
    const auto attendu = enposix() ? std::error_code() : make_error_code(common::Ennui::Retenu);
    EXPECT_EQ(disque.remplacer("f.txt", "B\r\n"), attendu);
    EXPECT_EQ(dossier.lire("f.txt"), attendu ? "A\r\n" : "B\r\n");
}

TEST_F(DisqueReelWindows, un_fichier_que_nous_avons_verrouille_se_remplace_et_reste_verrouille) {
    dossier.ecrire("f.txt", "A\r\n");
    std::unique_ptr<common::Verrou> verrou;
    ASSERT_FALSE(disque.verrouiller("f.txt", verrou));
    EXPECT_FALSE(disque.remplacer("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "B\r\n");
    EXPECT_FALSE(disque.remplacer("f.txt", "C\r\n"));
    std::unique_ptr<common::Verrou> autre;
    const auto encore = disque.verrouiller("f.txt", autre);
    EXPECT_TRUE(encore == common::Ennui::Retenu || enposix());
    verrou.reset();
    autre.reset();
    EXPECT_FALSE(disque.ajouter("f.txt", "D\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "C\r\nD\r\n");
}

TEST_F(DisqueReelWindows, un_fichier_en_lecture_seule_ne_se_remplace_pas) {
    dossier.ecrire("f.txt", "A\r\n");
    const auto chemin = dossier.chemin() / "f.txt";
    ASSERT_NE(::SetFileAttributesW(chemin.c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_EQ(disque.remplacer("f.txt", "B\r\n"), std::errc::permission_denied);
    EXPECT_EQ(disque.ajouter("f.txt", "B\r\n"), std::errc::permission_denied);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    EXPECT_EQ(dossier.noms(), std::vector<std::string>{"f.txt"});
    ::SetFileAttributesW(chemin.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DisqueReelWindows, un_fichier_ne_prend_pas_la_place_d_un_dossier) {
    ASSERT_FALSE(disque.creerdossier("d"));
    ASSERT_FALSE(disque.creerdossier("e"));
    dossier.ecrire("f.txt", "A");
    EXPECT_EQ(disque.renommer("f.txt", "d"), std::errc::is_a_directory);
    EXPECT_EQ(disque.renommer("e", "d"), std::errc::directory_not_empty);
}

class Appareil : public DisqueReelWindows, public testing::WithParamInterface<const char*> {};
TEST_P(Appareil, n_est_jamais_ouvert) {
    std::unique_ptr<common::Flux> flux;
    for (const auto& nom : {std::string(GetParam()), "d\\" + std::string(GetParam()) + "\\f.txt"}) {
        EXPECT_EQ(disque.creerdossier(nom), common::Ennui::NomReserve);
        EXPECT_EQ(disque.ouvrir(nom, flux), common::Ennui::NomReserve);
        EXPECT_EQ(disque.ajouter(nom, "A\r\n"), common::Ennui::NomReserve);
        EXPECT_EQ(disque.remplacer(nom, "A\r\n"), common::Ennui::NomReserve);
        EXPECT_EQ(disque.deposer(nom, "A\r\n"), common::Ennui::NomReserve);
        EXPECT_EQ(disque.supprimer(nom), common::Ennui::NomReserve);
        EXPECT_FALSE(disque.existe(nom));
    }
    EXPECT_TRUE(dossier.noms().empty());
}
INSTANTIATE_TEST_SUITE_P(Table, Appareil,
                         testing::Values("CON", "nul", "Aux.txt", "COM1", "lpt9."));

TEST_F(DisqueReelWindows, un_flux_ou_une_fin_que_windows_ote_est_refuse) {
    for (const auto* nom : {"f.txt:cache", "Paul.", "Paul ", "a?b"})
        EXPECT_EQ(disque.remplacer(nom, "A"), common::Ennui::NomInterdit) << nom;
    EXPECT_TRUE(dossier.noms().empty());
}

TEST_F(DisqueReelWindows, un_long_chemin_se_lit_et_s_ecrit) {
    std::string chemin;
    for (int i = 0; i < 4; ++i) {
        chemin += (i == 0 ? "" : "\\") + std::string(100, static_cast<char>('a' + i));
        ASSERT_FALSE(disque.creerdossier(chemin));
    }
    chemin += "\\été.txt";
    EXPECT_FALSE(disque.ajouter(chemin, "A\r\n"));
    EXPECT_FALSE(disque.ajouter(chemin, "B\r\n"));
    EXPECT_FALSE(disque.renommer(chemin, chemin + "2"));
    std::unique_ptr<common::Flux> flux;
    ASSERT_FALSE(disque.ouvrir(chemin + "2", flux));
    std::string octets(10, '\0');
    std::size_t lus = 0;
    EXPECT_FALSE(flux->lire(octets, lus));
    EXPECT_EQ(octets.substr(0, lus), "A\r\nB\r\n");
    flux.reset();
    EXPECT_FALSE(disque.supprimer(chemin + "2"));
    EXPECT_FALSE(disque.existe(chemin + "2"));
    // What takes the temporary folder away knows no such paths.
    for (auto fin = chemin.rfind('\\'); fin != std::string::npos; fin = chemin.rfind('\\')) {
        chemin.resize(fin);
        EXPECT_FALSE(disque.supprimer(chemin));
    }
}

TEST_F(DisqueReelWindows, un_fichier_supprime_qu_on_lit_encore_n_est_plus_la) {
    dossier.ecrire("f.txt", "A");
    std::unique_ptr<common::Flux> flux;
    ASSERT_FALSE(disque.ouvrir("f.txt", flux));
    EXPECT_FALSE(disque.supprimer("f.txt"));
    if (disque.existe("f.txt"))
        GTEST_SKIP() << "Wine shows it until it is closed";
    std::unique_ptr<common::Flux> autre;
    EXPECT_EQ(disque.ouvrir("f.txt", autre), std::errc::no_such_file_or_directory);
    flux.reset();
    EXPECT_FALSE(disque.remplacer("f.txt", "B"));
    EXPECT_EQ(dossier.lire("f.txt"), "B");
}

TEST_F(DisqueReelWindows, un_tube_n_est_pas_un_fichier) {
    constexpr const wchar_t* nom = LR"(\\.\pipe\orvane-essai)";
    const common::Poigneewindows tube(
        ::CreateNamedPipeW(nom, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 1024, 1024, 0, nullptr));
    ASSERT_TRUE(tube.ouverte());
    common::DisqueReel sans;
    std::unique_ptr<common::Flux> flux;
    EXPECT_EQ(sans.ouvrir(R"(\\.\pipe\orvane-essai)", flux), common::Ennui::PasUnFichier);
}

struct Code {
    DWORD windows;
    std::error_code attendu;
};
class Codes : public testing::TestWithParam<Code> {};
TEST_P(Codes, se_traduisent) {
    EXPECT_EQ(common::erreurwindows(GetParam().windows), GetParam().attendu);
}
INSTANTIATE_TEST_SUITE_P(
    Table, Codes,
    testing::Values(Code{ERROR_SUCCESS, {}},
                    Code{ERROR_DISK_FULL, make_error_code(std::errc::no_space_on_device)},
                    Code{ERROR_HANDLE_DISK_FULL, make_error_code(std::errc::no_space_on_device)},
                    Code{1295, make_error_code(common::Ennui::PartPleine)},
                    Code{ERROR_ACCESS_DENIED, make_error_code(std::errc::permission_denied)},
                    Code{ERROR_WRITE_PROTECT, make_error_code(std::errc::read_only_file_system)},
                    Code{ERROR_SHARING_VIOLATION,
                         make_error_code(std::errc::operation_would_block)},
                    Code{ERROR_ALREADY_EXISTS, make_error_code(std::errc::file_exists)},
                    Code{ERROR_NOT_READY, make_error_code(std::errc::io_error)},
                    Code{ERROR_CRC, make_error_code(std::errc::io_error)}));

TEST(Cheminlarge, porte_la_marque_des_longs_chemins_au_besoin) {
    std::wstring large;
    EXPECT_FALSE(common::cheminlarge(R"(C:\a/b)", large));
    EXPECT_EQ(large, LR"(C:\a\b)");
    const std::wstring longue(230, L'n');
    EXPECT_FALSE(common::cheminlarge(L"C:\\abcdefgh\\" + longue, large));
    EXPECT_EQ(large, LR"(\\?\C:\abcdefgh\)" + longue);
    EXPECT_FALSE(common::cheminlarge(L"\\\\machine\\part\\" + longue, large));
    EXPECT_EQ(large, LR"(\\?\UNC\machine\part\)" + longue);
    EXPECT_FALSE(common::cheminlarge(large, large));
    EXPECT_EQ(large, LR"(\\?\UNC\machine\part\)" + longue);
}

}  // namespace
}  // namespace test_disquereel_windows
