#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "disque.h"

namespace installation {

/// Digits of a sum in hexadecimal.
inline constexpr std::size_t chiffresdesomme = 64;

/// The SHA-256 of bytes that come piece by piece.
class Somme {
  public:
    void ajouter(std::string_view octets);
    /// The sum, in lower-case hexadecimal. Nothing may be added after it.
    [[nodiscard]] std::string finir();

  private:
    static constexpr std::size_t bloc = 64;

    void melanger();

    std::array<std::uint32_t, 8> etat_{0x6A09E667U, 0xBB67AE85U, 0x3C6EF372U, 0xA54FF53AU,
                                       0x510E527FU, 0x9B05688CU, 0x1F83D9ABU, 0x5BE0CD19U};
    std::array<std::uint8_t, bloc> attente_{};
    std::uint64_t octets_ = 0;
};

/// The sum of a file.
[[nodiscard]] std::error_code sommer(common::Disque& disque, std::string_view chemin,
                                     std::string& somme);

}  // namespace installation
