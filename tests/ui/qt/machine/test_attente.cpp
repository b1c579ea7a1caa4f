// Waiting in the middle of an event.

#include <functional>

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

#include "attente.h"
#include "minuteur.h"

namespace test_attente {
namespace {

class Attentes : public testing::Test {
  protected:
    static constexpr int jamais = 60'000;  ///< milliseconds, that no test waits for

    ~Attentes() override {
        // A program that has ended would leave the next test without event loops.
        QTimer::singleShot(0, &QCoreApplication::quit);
        QCoreApplication::exec();
    }
    bool attendre(int limite, const std::function<void(std::function<void()>)>& lancer) {
        return ui::qt::attendre(minuteur, limite, lancer);
    }

    ui::qt::Minuteur minuteur{[](const auto& evenement) { evenement(); }};
};

TEST_F(Attentes, ce_qui_vient_la_finit) {
    EXPECT_TRUE(attendre(jamais, [](const auto& finir) { QTimer::singleShot(0, finir); }));
}

TEST_F(Attentes, ce_qui_est_la_d_avance_n_attend_pas) {
    EXPECT_TRUE(attendre(jamais, [](const auto& finir) { finir(); }));
}

TEST_F(Attentes, la_limite_la_finit_sans_succes) {
    EXPECT_FALSE(attendre(1, [](const auto& /*finir*/) {}));
}

TEST_F(Attentes, ce_qui_vient_apres_elle_ne_touche_plus_a_rien) {
    std::function<void()> tard;
    EXPECT_FALSE(attendre(1, [&](const auto& finir) { tard = finir; }));
    tard();
    EXPECT_FALSE(attendre(1, [](const auto& /*finir*/) {}));
}

/// By the exit status of a program that ends while something is awaited.
class FinDuProgramme : public Attentes, public testing::WithParamInterface<int> {};

TEST_P(FinDuProgramme, n_est_pas_un_succes) {
    EXPECT_FALSE(attendre(jamais, [](const auto& /*finir*/) {
        QTimer::singleShot(0, [] { QCoreApplication::exit(GetParam()); });
    }));
}

INSTANTIATE_TEST_SUITE_P(Attentes, FinDuProgramme, testing::Values(0, 1));

}  // namespace
}  // namespace test_attente
