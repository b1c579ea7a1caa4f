#pragma once

// What a making asks of the system beside `common::Appels`.

#include <cstdint>
#include <filesystem>
#include <system_error>

namespace atelier {

/// Keeps other makings out of a folder as long as it lives, or its program.
class Exclusion {
  public:
    /// Fails with `operation_would_block` if another one lives.
    Exclusion(const std::filesystem::path& dossier, std::error_code& erreur);
    Exclusion(const Exclusion&) = delete;
    Exclusion& operator=(const Exclusion&) = delete;
    ~Exclusion();

  private:
    std::intptr_t poignee_;
};

/// Returns once all that was written in a folder would survive a power cut. As one call for its
/// whole disk, where the system has that.
[[nodiscard]] std::error_code abriter(const std::filesystem::path& dossier);

}  // namespace atelier
