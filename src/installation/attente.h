#pragma once

// New files that wait, under numbers, until all are there; then each takes its place.

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
    /// The waiting folder is made when it is needed.
    Attente(common::Appels& appels, std::filesystem::path dossier)
        : appels_(appels), dossier_(std::move(dossier)) {}
    Attente(const Attente&) = delete;
    Attente& operator=(const Attente&) = delete;
    /// Removes what still waits, from this run and from one that was killed, and the folder.
    ~Attente();

    /// Writes the file of the next number, from 0.
    [[nodiscard]] std::error_code ajouter(std::string_view octets);
    /// Returns once all files would survive a power cut. To be called before the first is placed.
    [[nodiscard]] std::error_code synchroniser();
    /// Puts the file of a number in the place of another or of none.
    [[nodiscard]] std::error_code placer(std::size_t rang, const std::filesystem::path& place);
    /// Returns once all that were placed would be found there after a power cut.
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
