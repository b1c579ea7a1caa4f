#include "terminaisons.h"

#include <algorithm>
#include <span>
#include <string>

#include "annexe.h"

namespace atelier {
namespace {

bool termine(std::string_view forme, std::string_view radical,
             std::span<const std::string_view> terminaisons) {
    if (!forme.starts_with(radical))
        return false;
    return std::find(terminaisons.begin(), terminaisons.end(), forme.substr(radical.size())) !=
           terminaisons.end();
}

/// An ordinary form of a verb in -ER: the stem and an ending, where a G may be softened by E, a Y
/// may have turned to I, and the last consonant may be doubled.
bool ordinaireener(std::string_view forme, std::string radical) {
    const auto terminaisons = terminaisonser();
    if (termine(forme, radical, terminaisons))
        return true;
    if (radical.empty())
        return false;
    if (radical.back() == 'G' && termine(forme, radical + 'E', terminaisons))
        return true;
    if (termine(forme, radical + radical.back(), terminaisons))
        return true;
    if (radical.back() != 'Y')
        return false;
    radical.back() = 'I';
    return termine(forme, radical, terminaisons);
}

}  // namespace

bool ordinaire(std::string_view forme, std::string_view verbe, char groupe) {
    const auto moins = [&](std::size_t n) { return verbe.substr(0, verbe.size() - n); };
    const auto radical =
        verbe.ends_with("OIR") ? moins(3) : moins(std::min<std::size_t>(2, verbe.size()));
    if (verbe.ends_with("ER"))
        return ordinaireener(forme, std::string(radical));
    if (groupe == '2')
        return termine(forme, radical, terminaisonsgroupe2());
    return termine(forme, radical, terminaisonsautres()) ||
           termine(forme, radical, terminaisonser()) ||
           termine(forme, radical, terminaisonsgroupe2());
}

}  // namespace atelier
