#pragma once

// Names of lists, each stored once. The lines of a series name the same list, so the last name is
// tried first.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "parmots.h"

namespace carnet {

class Nomsdelistes {
  public:
    /// The place of a name, from 0, which never changes.
    std::uint32_t ranger(std::string_view nom) {
        if (derniere_ < noms_.size() && noms_[derniere_] == nom)
            return derniere_;
        auto& rang = rangs_.ranger(nom);
        if (rang == 0) {
            noms_.emplace_back(nom);
            rang = static_cast<std::uint32_t>(noms_.size());
        }
        return derniere_ = rang - 1;
    }
    [[nodiscard]] const std::string& nom(std::uint32_t place) const { return noms_.at(place); }

  private:
    std::vector<std::string> noms_;
    Parmots<std::uint32_t> rangs_;  ///< in `noms_`, from 1
    std::uint32_t derniere_ = 0;
};

}  // namespace carnet
