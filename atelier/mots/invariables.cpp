#include "invariables.h"

#include <string>

namespace atelier {

bool invariable(const Vocabulaire& v, const Mot& mot) {
    if (std::string_view("SXZ").find(mot.texte().back()) != std::string_view::npos)
        return false;
    const std::string texte(mot.texte());
    if (v.existe(texte + 'S') || v.existe(texte + 'X'))
        return false;
    return v.toutes(mot, [](const Lecture& l) {
        return l.nonverbale() && (l.aunnombre(Nombre::invariable) ||
                                  (l.nature == Nature::autre && l.aunnombre(Nombre::aucun)));
    });
}

}  // namespace atelier
