#pragma once

// Names of players that one system makes folders of and another does not.

#include <ostream>
#include <string>
#include <vector>

namespace essai {

struct Nom {
    const char* nom;
    std::string utilisateur;
};
inline void PrintTo(const Nom& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

[[nodiscard]] std::vector<Nom> nomsadmis();
[[nodiscard]] std::vector<Nom> nomsrefuses();

}  // namespace essai
