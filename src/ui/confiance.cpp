#include "confiance.h"

#include <algorithm>

namespace ui {
namespace {

constexpr std::string_view blancs = " \t";

/// Takes a beginning, written in lower case, off a text, whose own case does not count.
bool oter(std::string_view& texte, std::string_view debut) {
    const auto minuscule = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    const bool porte = texte.size() >= debut.size() &&
                       std::equal(debut.begin(), debut.end(), texte.begin(),
                                  [&](char attendu, char lu) { return attendu == minuscule(lu); });
    if (porte)
        texte.remove_prefix(debut.size());
    return porte;
}

}  // namespace

bool adressesure(std::string_view adresse) {
    adresse.remove_prefix(std::min(adresse.find_first_not_of(blancs), adresse.size()));
    if (oter(adresse, "https://"))
        return true;
    if (!oter(adresse, "http://127.0.0.1"))
        return false;
    // Nothing but a port may follow: "127.0.0.1.exemple" and "127.0.0.1:80@exemple" are elsewhere.
    auto port = adresse.substr(0, adresse.find_first_of("/?#"));
    return port.empty() || (oter(port, ":") &&
                            std::ranges::all_of(port, [](char c) { return c >= '0' && c <= '9'; }));
}

bool memesomme(std::string_view publiee, std::string_view trouvee) {
    publiee.remove_prefix(std::min(publiee.find_first_not_of(blancs), publiee.size()));
    publiee.remove_suffix(publiee.size() - (publiee.find_last_not_of(blancs) + 1));
    return !trouvee.empty() && oter(publiee, trouvee) && publiee.empty();
}

}  // namespace ui
