#pragma once

// A pattern of letters: `?` one letter, `*` any run of letters, `[..]` one of, `[^..]` none of.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace recherche {

class Motif {
  public:
    /// Reads capitals and signs. `ennui` tells in French what is wrong; it is empty if nothing is.
    Motif(std::string_view texte, std::string& ennui);

    [[nodiscard]] bool convient(std::string_view mot) const;

  private:
    /// The letters allowed at each place; 0: any number of any letters.
    using Place = std::uint32_t;

    [[nodiscard]] static bool accepte(Place place, char lettre);
    std::string lireclasse(std::string_view& reste);

    std::vector<Place> places_;
    std::size_t minimum_ = 0;
    bool etoile_ = false;
};

}  // namespace recherche
