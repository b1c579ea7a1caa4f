#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace common {

/// A path as the wide calls take it, of any length. Fails if a name in it cannot be one of a file:
/// see `nompourwindows`.
[[nodiscard]] std::error_code cheminlarge(const std::filesystem::path& chemin, std::wstring& large);

/// The one path of an open file, whatever name it was opened by; empty if its disk has none.
[[nodiscard]] std::wstring cheminfinal(void* fichier);

/// Without the mark of paths of any length, which only whole wide calls understand.
[[nodiscard]] std::wstring sansmarque(const std::wstring& large);

}  // namespace common
