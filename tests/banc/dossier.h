#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

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

/// A file that a scenario finds: these bytes, or those of a file that nothing writes to.
struct Fourniture {
    std::string_view octets;
    std::filesystem::path source;

    /// Writes it; a source is given a second name, and copied where that cannot be.
    void poser(const std::filesystem::path& but) const;
};

/// What a scenario finds in its folder, by path with "/": the program's pictures and sound, taken
/// from `jeu`, empty reference lists and notes, and a list of one row for every file of the
/// catalogue.
[[nodiscard]] std::map<std::string, Fourniture> fournitures(const std::filesystem::path& jeu);

/// Puts all of it into a folder.
void garnir(const std::filesystem::path& dossier, const std::filesystem::path& jeu);

}  // namespace banc
