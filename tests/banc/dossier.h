#pragma once

#include <filesystem>

namespace banc {

/// The working folder of a scenario.
class Dossier {
  public:
    /// A new temporary folder, whose name holds a blank and an accent; removed at the end.
    Dossier();
    /// A folder as it is; left as it is.
    explicit Dossier(std::filesystem::path existant) : chemin_(std::move(existant)) {}
    Dossier(const Dossier&) = delete;
    Dossier& operator=(const Dossier&) = delete;
    ~Dossier();

    [[nodiscard]] const std::filesystem::path& chemin() const { return chemin_; }

  private:
    std::filesystem::path chemin_;
    bool provisoire_ = false;
};

/// Puts into a folder what a scenario finds there: the program's pictures and sound, taken from
/// `jeu`, empty reference lists and notes, and a list of one row for every file of the catalogue.
void garnir(const std::filesystem::path& dossier, const std::filesystem::path& jeu);

}  // namespace banc
