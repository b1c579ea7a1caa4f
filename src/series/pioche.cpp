#include "pioche.h"

#include <numeric>

namespace series {

std::vector<int> tirersansremise(common::Hasard& hasard, int total, int nombre,
                                 Comblement comblement) {
    std::vector<int> indices(static_cast<std::size_t>(total));
    std::iota(indices.begin(), indices.end(), 0);
    std::vector<int> tires;
    tires.reserve(static_cast<std::size_t>(nombre));
    for (int i = 0; i < nombre; ++i) {
        const auto r =
            static_cast<std::ptrdiff_t>(hasard.tirer() * static_cast<double>(indices.size()));
        const auto place = indices.begin() + r;
        tires.push_back(*place);
        if (comblement == Comblement::Suivants) {
            indices.erase(place);
        } else {
            *place = indices.back();
            indices.pop_back();
        }
    }
    return tires;
}

}  // namespace series
