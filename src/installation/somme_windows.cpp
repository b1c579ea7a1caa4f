// Sums by Windows (CNG).

#include "somme.h"

#include <windows.h>
#include <array>
#include <limits>
// After windows.h.
#include <bcrypt.h>

namespace installation {
namespace {

void exiger(NTSTATUS etat) {
    if (!BCRYPT_SUCCESS(etat))
        throw std::system_error(static_cast<int>(etat), std::system_category(), "SHA-256");
}

}  // namespace

struct Somme::Calcul {
    Calcul() {
        exiger(::BCryptOpenAlgorithmProvider(&moyen, BCRYPT_SHA256_ALGORITHM, nullptr, 0));
        if (const auto etat = ::BCryptCreateHash(moyen, &calcul, nullptr, 0, nullptr, 0, 0);
            !BCRYPT_SUCCESS(etat)) {
            ::BCryptCloseAlgorithmProvider(moyen, 0);
            exiger(etat);
        }
    }
    ~Calcul() {
        ::BCryptDestroyHash(calcul);
        ::BCryptCloseAlgorithmProvider(moyen, 0);
    }
    Calcul(const Calcul&) = delete;
    Calcul& operator=(const Calcul&) = delete;
    Calcul(Calcul&&) = delete;
    Calcul& operator=(Calcul&&) = delete;

    BCRYPT_ALG_HANDLE moyen = nullptr;
    BCRYPT_HASH_HANDLE calcul = nullptr;
};

Somme::Somme() : calcul_(std::make_unique<Calcul>()) {}

Somme::~Somme() = default;

void Somme::ajouter(std::string_view octets) {
    while (!octets.empty()) {
        const auto pris =
            octets.substr(0, static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()));
        // The call only reads, but does not say so.
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast,cppcoreguidelines-pro-type-reinterpret-cast)
        exiger(::BCryptHashData(calcul_->calcul,
                                reinterpret_cast<PUCHAR>(const_cast<char*>(pris.data())),
                                static_cast<ULONG>(pris.size()), 0));
        octets.remove_prefix(pris.size());
    }
}

std::string Somme::finir() {
    std::array<std::uint8_t, chiffresdesomme / 2> octets{};
    exiger(
        ::BCryptFinishHash(calcul_->calcul, octets.data(), static_cast<ULONG>(octets.size()), 0));
    return enhexadecimal(octets);
}

}  // namespace installation
