#include "historique.h"

#include <algorithm>

#include "texte.h"

namespace menu {
namespace {

constexpr std::size_t separateur = 3;  // " - "
constexpr std::size_t extension = 4;   // ".txt"

std::string sans(std::string_view record, std::size_t oter) {
    return common::depuis1252(record.substr(0, record.size() - std::min(oter, record.size())));
}

}  // namespace

std::optional<std::string> lignehistorique(std::string_view record, const Liste& liste) {
    const auto nom = common::vers1252(liste.fichier);
    if (nom.empty())
        return std::nullopt;
    if (record.ends_with(nom))
        return sans(record, nom.size() + separateur);
    for (std::size_t i = 0; i < liste.parties; ++i) {
        if (record.ends_with(fichierdepartie(nom, i)))
            return sans(record, extension);
    }
    return std::nullopt;
}

}  // namespace menu
