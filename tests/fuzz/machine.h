#pragma once

#include <filesystem>
#include <memory>

#include "dossier.h"
#include "pilotemodele.h"
#include "programmereel.h"
#include "seance.h"

namespace fuzz {

/// The program on the bench's machine, with `dossier` as its working folder.
struct Programme : banc::Seance {
    explicit Programme(const std::filesystem::path& dossier)
        : Seance(
              dossier, [](ui::Plateforme& p) { return std::make_unique<banc::ProgrammeReel>(p); },
              [](banc::PlateformeSimulee& p) { return std::make_unique<banc::PiloteModele>(p); }) {}
};

/// The program in a temporary folder of its own, which holds what the program comes with.
struct Machine {
    /// `jeu`: where the program's pictures are.
    explicit Machine(const std::filesystem::path& jeu) : seance(dossier.chemin()) {
        banc::garnir(dossier.chemin(), jeu);
    }

    banc::Dossier dossier;
    Programme seance;
};

}  // namespace fuzz
