#pragma once

#include <cstdint>
#include <random>

namespace common {

/// A source of uniform random numbers.
class Hasard {
  public:
    Hasard() = default;
    Hasard(const Hasard&) = delete;
    Hasard& operator=(const Hasard&) = delete;
    virtual ~Hasard() = default;
    /// Seeds the source from the time of day, in seconds since midnight.
    virtual void amorcer(std::int32_t secondes) = 0;
    /// A uniform number in [0,1).
    [[nodiscard]] virtual double tirer() = 0;
};

/// The real source. Each seed is mixed with how many there have been, so that two draws seeded
/// within one second differ.
class HasardReel : public Hasard {
  public:
    void amorcer(std::int32_t secondes) override {
        ++amorces_;
        std::seed_seq graine{static_cast<std::uint32_t>(secondes), amorces_};
        moteur_.seed(graine);
    }
    [[nodiscard]] double tirer() override {
        constexpr double unite = 1.0 / 9007199254740992.0;  // 2^-53
        return static_cast<double>(moteur_() >> 11U) * unite;
    }

  private:
    std::mt19937_64 moteur_;
    std::uint32_t amorces_ = 0;
};

}  // namespace common
