#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "disque.h"

namespace installation {

/// Digits of a sum in hexadecimal.
inline constexpr std::size_t chiffresdesomme = 64;

/// The SHA-256 of bytes that come piece by piece, computed by a library of the system. A refusal of
/// that library throws `std::system_error`.
class Somme {
  public:
    Somme();
    ~Somme();
    Somme(const Somme&) = delete;
    Somme& operator=(const Somme&) = delete;
    Somme(Somme&&) = delete;
    Somme& operator=(Somme&&) = delete;

    void ajouter(std::string_view octets);
    /// The sum, in lower-case hexadecimal. Nothing may be added after it.
    [[nodiscard]] std::string finir();

  private:
    struct Calcul;
    std::unique_ptr<Calcul> calcul_;
};

/// Bytes in lower-case hexadecimal.
[[nodiscard]] std::string enhexadecimal(std::span<const std::uint8_t> octets);

/// The sum of a file.
[[nodiscard]] std::error_code sommer(common::Disque& disque, std::string_view chemin,
                                     std::string& somme);

}  // namespace installation
