#pragma once

#include <string>

#include <gtest/gtest.h>

namespace essai {

/// The name of a test that stands in a table: its row's own.
template <class Ligne>
std::string nommer(const testing::TestParamInfo<Ligne>& cas) {
    return cas.param.nom;
}

}  // namespace essai
