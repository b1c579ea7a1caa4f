#pragma once

// What the menu is due to show and do, panel by panel and row by row, told a second time and
// apart from the program's own tables.

#include <cstddef>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace essai {

struct Rangee {
    std::string_view panneau;
    std::size_t rang;
    std::string_view libelle;
    std::string_view fichier;
    std::string_view parties;      ///< letters
    std::string_view insigne;      ///< "Vb", "JKQ" or empty
    std::string_view ecran;        ///< "Form1" or "Multi"
    std::string_view aidetout;     ///< hover text of "Tout"; empty: none
    std::string_view aidelibelle;  ///< hover text of the name; empty: none
};

struct Panneau {
    std::string_view cle;
    std::string_view chemin;   ///< buttons to click, in order, from the bare menu
    std::string_view boutons;  ///< second-level buttons on show
    bool total;
    std::string_view aide;  ///< what the opening writes in the help box; empty: nothing
};

/// Every row with a fixed file, in the order of the panels.
[[nodiscard]] std::span<const Rangee> lesrangees();
[[nodiscard]] std::span<const Panneau> lespanneaux();
[[nodiscard]] std::vector<Rangee> rangeesde(std::string_view panneau);

void PrintTo(const Rangee& rangee, std::ostream* sortie);
void PrintTo(const Panneau& panneau, std::ostream* sortie);
[[nodiscard]] std::string nomderangee(const testing::TestParamInfo<Rangee>& cas);
[[nodiscard]] std::string nomdepanneau(const testing::TestParamInfo<Panneau>& cas);

}  // namespace essai
