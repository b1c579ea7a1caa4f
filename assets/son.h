#pragma once

// The tune that is played at the end of a list.

#include <cstdint>
#include <string>
#include <vector>

namespace assets {

constexpr int cadence = 44100;  // samples a second
constexpr const char* nomson = "APP05.WAV";

/// The samples of the tune: one channel, less than two seconds.
[[nodiscard]] std::vector<std::int16_t> phrase();

/// The bytes of a wave file with these samples: one channel, 16 bits a sample, at `cadence`.
[[nodiscard]] std::string wav(const std::vector<std::int16_t>& echantillons);

}  // namespace assets
