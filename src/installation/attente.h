#pragma once

// New files, written under numbers in a folder of their own. Once all are there, each is moved to
// its place.

#include <deque>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>

#include "appels.h"
#include "provisoire.h"

namespace installation {

class Attente {
  public:
    /// `dossier` is created when the first file is added.
    Attente(common::Appels& appels, std::filesystem::path dossier)
        : appels_(appels), dossier_(std::move(dossier)) {}
    Attente(const Attente&) = delete;
    Attente& operator=(const Attente&) = delete;
    /// Deletes the folder with what is left in it, by this run or by one that was killed.
    ~Attente();

    /// Writes the file of the next number, from 0.
    [[nodiscard]] std::error_code ajouter(std::string_view octets);
    /// Returns once all files would survive a power cut. To be called before the first is placed.
    [[nodiscard]] std::error_code synchroniser();
    /// Moves the file of a number to `place`, replacing the file there, if any.
    [[nodiscard]] std::error_code placer(std::size_t rang, const std::filesystem::path& place);
    /// Returns once the moves of all placed files would survive a power cut.
    [[nodiscard]] std::error_code finir();

    [[nodiscard]] std::filesystem::path fichier(std::size_t rang) const;

  private:
    [[nodiscard]] std::error_code creer(common::Descripteur& ouvert);
    [[nodiscard]] std::error_code fermerlot();

    common::Appels& appels_;
    std::filesystem::path dossier_;
    std::deque<common::Descripteur> lot_;  ///< written and not yet synchronised
    std::set<std::filesystem::path> changes_;
    std::size_t nombre_ = 0;
};

}  // namespace installation
