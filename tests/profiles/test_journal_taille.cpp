// A journal of 100 MB: every kind of it is read in the memory of one line.

#include <algorithm>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include <gtest/gtest.h>

#include "disquereel.h"
#include "journal.h"
#include "processus.h"

namespace test_journal_taille {
namespace {

using namespace profiles;

/// A journal that is never written anywhere: these bytes, again and again, up to a size.
class Disquesansfin : public common::DisqueReel {
  public:
    Disquesansfin(std::string motif, std::size_t taille)
        : DisqueReel(std::filesystem::temp_directory_path()),
          motif_(std::move(motif)),
          taille_(taille) {}
    [[nodiscard]] std::error_code ouvrir(std::string_view /*chemin*/,
                                         std::unique_ptr<common::Flux>& flux) override {
        flux = std::make_unique<Fluxsansfin>(motif_, taille_);
        return {};
    }

  private:
    class Fluxsansfin : public common::Flux {
      public:
        Fluxsansfin(const std::string& motif, std::size_t taille) : motif_(motif), reste_(taille) {}
        [[nodiscard]] std::error_code lire(std::span<char> tampon, std::size_t& lus) override {
            lus = std::min(tampon.size(), reste_);
            for (std::size_t fait = 0; fait < lus;) {
                const auto pris = std::min(motif_.size() - place_, lus - fait);
                motif_.copy(tampon.data() + fait, pris, place_);
                place_ = (place_ + pris) % motif_.size();
                fait += pris;
            }
            reste_ -= lus;
            return {};
        }

      private:
        const std::string& motif_;
        std::size_t place_ = 0;
        std::size_t reste_;
    };

    std::string motif_;
    std::size_t taille_;
};

struct Cent {
    const char* nom;
    std::string motif;
    std::size_t lues;
    std::size_t sautees;
};
void PrintTo(const Cent& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
class Centmegaoctets : public testing::TestWithParam<Cent> {};

constexpr std::size_t mega = 1024UL * 1024;
constexpr std::size_t cent = 100 * mega;

/// A line of 1024 bytes, its line end included.
std::string kilo(const std::string& debut) {
    constexpr std::size_t taille = 1022;
    auto ligne = debut;
    ligne.resize(taille, 'B');
    return ligne + "\r\n";
}
const std::string bonne = kilo("24/08/2019 - 14:35:10;a;T;A;B;0;");
const std::string mauvaise = kilo("24/08/2019 - 14:35:10;a;T;A;B;5;");

const Cent cents[] = {{"de_bonnes_lignes", bonne, cent / 1024, 0},
                      {"une_mauvaise_sur_deux", bonne + mauvaise, cent / 2048, cent / 2048},
                      {"une_seule_ligne", std::string(mega, 'B'), 0, 1},
                      {"de_sauts_de_ligne", std::string(mega, '\n'), 0, cent}};

/// Reads the journal of a row of the table; what of it was not as it should be, or 0.
int lirecent(const essais::Mots& mots) {
    constexpr std::size_t uneligne = 8 * limitelignejournal;  // its buffer grows by steps
    const auto& cas = *std::find_if(std::begin(cents), std::end(cents),
                                    [&](const Cent& c) { return c.nom == mots[0]; });
    Disquesansfin disque(cas.motif, cent);
    const auto avant = essais::memoire();
    Lecturejournal lecture;
    const auto passer = [](const Lignejournal&) {};
    if (parcourirjournal(disque, "journal.txt", passer, lecture))
        return 1;
    if (lecture.lues != cas.lues || lecture.sautees != cas.sautees)
        return 2;
    return essais::memoire() - avant > uneligne ? 3 : 0;
}

TEST_P(Centmegaoctets, se_lisent_dans_la_memoire_d_une_ligne) {
    EXPECT_EQ(essais::enfant(lirecent, {GetParam().nom}), 0);
}
INSTANTIATE_TEST_SUITE_P(Journal, Centmegaoctets, testing::ValuesIn(cents),
                         [](const auto& cas) { return cas.param.nom; });

}  // namespace
}  // namespace test_journal_taille
