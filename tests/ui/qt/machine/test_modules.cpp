// The parts of the program that are loaded at their first use.

#include <gtest/gtest.h>

#include "modules.h"
#include "reseau.h"
#include "son.h"

namespace test_modules {
namespace {

TEST(Modules, le_son_et_le_reseau_se_trouvent) {
    EXPECT_NE(qobject_cast<ui::qt::Son*>(ui::qt::module(ui::qt::moduleson)), nullptr);
    EXPECT_NE(qobject_cast<ui::qt::Reseau*>(ui::qt::module(ui::qt::modulereseau)), nullptr);
}

TEST(Modules, un_module_qui_manque_n_est_pas_une_faute) {
    EXPECT_EQ(ui::qt::module("orvane-absent"), nullptr);
}

}  // namespace
}  // namespace test_modules
