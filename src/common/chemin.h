#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace common {

/// A path from its UTF-8 text. `path::string()` gives that text back; the constructor of `path`
/// itself takes bytes to be in whatever code the system has.
[[nodiscard]] inline std::filesystem::path chemin(std::string_view texte) {
    return {std::u8string(texte.begin(), texte.end())};
}

}  // namespace common
