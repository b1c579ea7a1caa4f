#include "textes.h"

#include <algorithm>

namespace banc {
namespace {

constexpr std::string_view points = "...";

bool partie(std::string_view lu, std::string_view attendu) {
    if (!attendu.starts_with(points))
        return lu == attendu;
    attendu.remove_prefix(points.size());
    if (!attendu.ends_with(points))
        return lu.ends_with(attendu);
    attendu.remove_suffix(points.size());
    return lu.find(attendu) != std::string_view::npos;
}

}  // namespace

std::string enligne(std::string_view texte) {
    std::string ligne;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char c = texte[i];
        if (c != '\r' && c != '\n') {
            ligne += c;
            continue;
        }
        ligne += "\\n";
        if (c == '\r' && i + 1 < texte.size() && texte[i + 1] == '\n')
            ++i;
    }
    return ligne;
}

std::string sansguillemets(std::string_view texte) {
    if (texte.size() >= 2 && texte.front() == '"' && texte.back() == '"')
        texte = texte.substr(1, texte.size() - 2);
    return std::string(texte);
}

bool concorde(std::string_view lu, std::string_view attendu) {
    return lu == attendu || lu == sansguillemets(attendu);
}

bool concordepartie(std::string_view lu, std::string_view attendu) {
    return partie(lu, attendu) || partie(lu, sansguillemets(attendu));
}

std::vector<std::string> mots(std::string_view texte) {
    std::vector<std::string> liste;
    while (true) {
        texte.remove_prefix(std::min(texte.find_first_not_of(' '), texte.size()));
        if (texte.empty())
            return liste;
        const auto mot = texte.substr(0, texte.find(' '));
        liste.emplace_back(mot);
        texte.remove_prefix(mot.size());
    }
}

std::string joindre(const std::vector<std::string>& textes) {
    std::string resultat;
    for (const auto& texte : textes)
        resultat.append(&texte == textes.data() ? "" : " | ").append(texte);
    return resultat;
}

}  // namespace banc
