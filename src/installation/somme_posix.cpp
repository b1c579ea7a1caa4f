// Sums by libmd.

#include "somme.h"

#include <array>
#include <sha2.h>

namespace installation {

struct Somme::Calcul {
    SHA2_CTX etat{};
};

Somme::Somme() : calcul_(std::make_unique<Calcul>()) {
    ::SHA256Init(&calcul_->etat);
}

Somme::~Somme() = default;

void Somme::ajouter(std::string_view octets) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
    ::SHA256Update(&calcul_->etat, reinterpret_cast<const std::uint8_t*>(octets.data()),
                   octets.size());
}

std::string Somme::finir() {
    std::array<std::uint8_t, SHA256_DIGEST_LENGTH> octets{};
    ::SHA256Final(octets.data(), &calcul_->etat);
    return enhexadecimal(octets);
}

}  // namespace installation
