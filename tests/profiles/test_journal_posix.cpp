#include <sys/stat.h>

#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "journal.h"

namespace test_journal_posix {
namespace {

using namespace profiles;

TEST(Fichierjournalposix, un_tube_ne_fait_pas_attendre_le_jeu) {
    const essais::DossierTemporaire dossier;
    essais::AppelsDessai appels;
    common::DisqueReel disque(dossier.chemin(), appels);
    ASSERT_FALSE(disque.creerdossier("Zoé"));
    ASSERT_EQ(::mkfifo((dossier.chemin() / u8"Zoé" / "journal.txt").c_str(), 0600), 0);
    std::string attente;
    const std::vector<Tiragejuge> juges{{"A", {"X"}, {"X"}}};
    journaliser(disque, "Zoé", {{2019, 8, 24, 14, 35, 10}, "3lc.txt", "T"}, juges, attente);
    EXPECT_EQ(attente, "24/08/2019 - 14:35:10;3lc.txt;T;A;X;1;X\r\n");
}

}  // namespace
}  // namespace test_journal_posix
