#pragma once

#include <filesystem>
#include <random>
#include <string>

#include "chemin.h"

namespace essais {

/// Makes a folder in that of the system's temporary files; its name is `debut` and a number.
[[nodiscard]] inline std::filesystem::path dossierneuf(const std::string& debut) {
    std::random_device hasard;
    while (true) {
        auto chemin = std::filesystem::temp_directory_path() /
                      common::chemin(debut + std::to_string(hasard()));
        if (std::filesystem::create_directory(chemin))
            return chemin;
    }
}

}  // namespace essais
