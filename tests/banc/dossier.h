#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace banc {

/// The working folder of a scenario.
class Dossier {
  public:
    /// A new temporary folder, with a blank and an accent in its name; removed on destruction.
    Dossier();
    /// An existing folder; kept on destruction.
    explicit Dossier(std::filesystem::path existant) : chemin_(std::move(existant)) {}
    Dossier(const Dossier&) = delete;
    Dossier& operator=(const Dossier&) = delete;
    ~Dossier();

    [[nodiscard]] const std::filesystem::path& chemin() const { return chemin_; }

  private:
    std::filesystem::path chemin_;
    bool provisoire_ = false;
};

/// A file that a scenario finds: `octets`, or the content of `source`, which nothing writes to.
struct Fourniture {
    std::string_view octets;
    std::filesystem::path source;

    /// Creates the file at `but`; a source is linked there, or copied where links are impossible.
    void poser(const std::filesystem::path& but) const;
};

/// The files that a scenario finds in its folder, by path with "/": the pictures and the sound of
/// the program, taken from `jeu`; empty reference lists and notes; and for each file of the
/// catalogue, a list of one row.
[[nodiscard]] std::map<std::string, Fourniture> fournitures(const std::filesystem::path& jeu);

/// Creates all these files in a folder.
void garnir(const std::filesystem::path& dossier, const std::filesystem::path& jeu);

}  // namespace banc
