#pragma once

#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace essai {

/// The name of a test that stands in a table: its row's own.
template <class Ligne>
std::string nommer(const testing::TestParamInfo<Ligne>& cas) {
    return cas.param.nom;
}

/// What a fault reports; a failure of the test if there is none.
template <class Action>
std::string faute(const Action& action) {
    try {
        action();
    } catch (const std::exception& e) {
        return e.what();
    }
    ADD_FAILURE() << "a fault was due";
    return {};
}

}  // namespace essai
