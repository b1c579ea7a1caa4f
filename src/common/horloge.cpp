#include "horloge.h"

#include "nombre.h"

namespace common {

std::string Instant::date() const {
    auto texteannee = std::to_string(annee);
    texteannee.insert(0, texteannee.size() < 4 ? 4 - texteannee.size() : 0, '0');
    return deuxchiffres(jour) + "/" + deuxchiffres(mois) + "/" + texteannee;
}

std::string Instant::heuredujour() const {
    return deuxchiffres(heure) + ":" + deuxchiffres(minute) + ":" + deuxchiffres(seconde);
}

}  // namespace common
